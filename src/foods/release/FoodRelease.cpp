#include "foods/release/FoodRelease.h"

#include "foods/release/FoodColumns.h"
#include "runtime/RuntimeError.h"

#include <QDir>

#include <algorithm>

namespace {
struct Description {
    QString group;
    QString name;
    int line = 0;
};

QString In(const QString& folder, const char* file) {
    return QDir(folder).filePath(QLatin1String(file));
}

QHash<QString, Description> Described(const ReleaseTable& table) {
    QHash<QString, Description> descriptions;
    for (const ReleaseTable::Record& record : table.Records())
        descriptions.insert(record.Field(1), {record.Field(2), record.Field(3), record.line});
    return descriptions;
}

ReleaseFood Food(const ReleaseTable::Record& values, const Description& description,
                 const Measures& measures) {
    ReleaseFood food;
    food.number = values.Field(1);
    food.group = description.group;
    food.name = description.name;
    food.nameLine = description.line;
    food.valuesLine = values.line;
    for (const FoodColumn& column : FoodColumns()) {
        food.nutrients << ColumnValue(values, column);
        if (column.fallback)
            food.plainFolate =
                AbbrevField(values, column.field).isEmpty() && !food.nutrients.last().isEmpty();
    }
    food.servings = measures.Choose(food.number, values);
    return food;
}
} // namespace

bool ReleaseFood::HasValue() const {
    return std::ranges::any_of(nutrients, [](const QString& value) { return !value.isEmpty(); });
}

bool FoodRelease::IsIn(const QString& folder) {
    return QFile::exists(In(folder, ValuesFile));
}

FoodRelease FoodRelease::Read(const QString& folder) {
    const auto values = ReleaseTable::Read(In(folder, ValuesFile), {ShortLayout, LongLayout});
    const auto descriptions = ReleaseTable::Read(In(folder, NamesFile), {14});
    const auto weights = ReleaseTable::Read(In(folder, WeightsFile), {7});

    FoodRelease release;
    release.fieldCount_ = values.FieldCount();
    release.valuesRead_ = int(values.Records().size());
    release.descriptionsRead_ = int(descriptions.Records().size());
    release.weightsRead_ = int(weights.Records().size());
    release.AddFoods(values, descriptions, Measures(weights));
    release.Sort();
    return release;
}

void FoodRelease::AddFoods(const ReleaseTable& values, const ReleaseTable& descriptions,
                           const Measures& measures) {
    const QHash<QString, Description> described = Described(descriptions);
    for (const ReleaseTable::Record& record : values.Records()) {
        const Description description = described.value(record.Field(1));
        if (description.name.isEmpty())
            unnamed_ << record.Field(1);
        else
            foods_ << Food(record, description, measures);
    }
}

void FoodRelease::Sort() {
    const auto byNumber = [](const ReleaseFood& food) { return food.number.toInt(); };
    std::ranges::sort(foods_, {}, byNumber);
    const auto twice = std::ranges::adjacent_find(foods_, {}, byNumber);
    if (twice != foods_.end())
        throw RuntimeError(ErrorNumber::TypeMismatch, u"food " + twice->number + u" stands twice");
    if (foods_.isEmpty())
        throw RuntimeError(ErrorNumber::TypeMismatch, QStringLiteral("the release holds no foods"));
}
