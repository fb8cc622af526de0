#include "records/RecordsCounts.h"

#include "records/RecordsFiles.h"
#include "records/RecordsFolder.h"
#include "runtime/Counted.h"
#include "store/Schema.h"
#include "store/UnchangedFile.h"

#include <QStringList>

#include <SQLiteCpp/SQLiteCpp.h>

#include <iterator>

namespace {
struct Kind {
    const char* key; ///< in JSON
    const char* one;
    const char* many;
    DatabaseKind file;
    const char* rows;
};
constexpr Kind All[] = {
    {"profiles", "profile", "profiles", DatabaseKind::Users, "profiles"},
    {"loggedFoods", "logged food", "logged foods", DatabaseKind::Users, "USER_FOODS"},
    {"weights", "weight", "weights", DatabaseKind::Users, "USER_WEIGHTS"},
    {"ownFoods", "own food", "own foods", DatabaseKind::Foods, "FOODS WHERE ID > 23508"},
    {"recipes", "recipe", "recipes", DatabaseKind::Users, "Recipes"},
    {"ingredients", "ingredient", "ingredients", DatabaseKind::Users, "Ingredients"},
};
static_assert(std::size(All) == RecordsCounts::Kinds);
static_assert(Schema::LastStockFood == 23508);
} // namespace

RecordsCounts RecordsCounts::Of(const RecordsFolder& folder) {
    RecordsCounts counts;
    for (const RecordsFile& file : RecordsFiles) {
        UnchangedFile database(folder.File(file.name));
        for (size_t i = 0; i < Kinds; ++i)
            if (All[i].file == file.kind)
                counts.counts_[i] =
                    database.Number(QByteArray("SELECT count(*) FROM ") + All[i].rows);
    }
    return counts;
}

RecordsCounts RecordsCounts::FromJson(const QJsonObject& json) {
    RecordsCounts counts;
    for (size_t i = 0; i < Kinds; ++i)
        counts.counts_[i] = json[QLatin1String(All[i].key)].toInteger();
    return counts;
}

QJsonObject RecordsCounts::ToJson() const {
    QJsonObject json;
    for (size_t i = 0; i < Kinds; ++i)
        json[QLatin1String(All[i].key)] = counts_[i];
    return json;
}

QString RecordsCounts::Text() const {
    QStringList phrases;
    for (size_t i = 0; i < Kinds; ++i)
        phrases << Counted(counts_[i], All[i].one, All[i].many);
    return phrases.join(QStringLiteral(", "));
}
