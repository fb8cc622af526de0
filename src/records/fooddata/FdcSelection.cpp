#include "records/fooddata/FdcSelection.h"

#include "records/fooddata/BrandedFood.h"
#include "records/fooddata/FdcTable.h"
#include "records/fooddata/FoodFilter.h"
#include "records/fooddata/FoodTally.h"
#include "records/fooddata/FoodText.h"
#include "runtime/RuntimeError.h"

#include <algorithm>
#include <tuple>

namespace {
constexpr FdcKind Kinds[] = {
    {"sr_legacy_food", "SR Legacy", "sr", "sr:", "sr_legacy_food.csv", "NDB_number", 5, false},
    {"foundation_food", "Foundation", "foundation", "foundation:", "foundation_food.csv",
     "NDB_number", 0, false},
    {"survey_fndds_food", "Survey (FNDDS)", "survey", "survey:", "survey_fndds_food.csv",
     "food_code", 0, false},
    {"branded_food", "Branded", "branded", "gtin:", "branded_food.csv", "gtin_upc", 14, true},
};
constexpr const FdcKind& Foundation = Kinds[1];
constexpr const FdcKind& Branded = Kinds[3];

const FdcKind* KindOf(QByteArrayView type) {
    const auto* kind = std::ranges::find_if(
        Kinds, [&](const FdcKind& one) { return type == one.type || type == one.shown; });
    return kind == std::end(Kinds) ? nullptr : kind;
}

QByteArray Lasting(const FdcKind& kind, QByteArrayView number) {
    const QByteArray digits = number.trimmed().toByteArray();
    return digits.isEmpty() ? QByteArray() : kind.lasting + digits.rightJustified(kind.digits, '0');
}

auto Age(const FdcFood& food) {
    return std::tie(food.number, food.published, food.modified, food.available, food.key);
}

bool IsLatest(const FdcFood& food, const FdcFood& next) {
    return food.number.isEmpty() || food.number != next.number;
}
} // namespace

FdcSelection::FdcSelection(QString folder, const FoodFilter& filter, FoodTally& tally)
    : folder_(std::move(folder))
    , filter_(filter)
    , tally_(tally) {}

FdcFoods FdcSelection::Choose() {
    ReadFoods();
    RefuseDoubles();
    ReadCategories();
    for (const FdcKind& kind : Kinds)
        if (&kind != &Branded && HasKind(kind))
            ReadNumbers(kind);
    if (HasKind(Branded))
        ReadBranded();
    LeaveSuperseded();
    LeaveUnwanted();
    return std::move(foods_);
}

void FdcSelection::ReadFoods() {
    enum { Key, Type, Name, Category, Published };
    FdcTable table(folder_, QStringLiteral("food.csv"),
                   {QStringLiteral("fdc_id"), QStringLiteral("data_type"),
                    QStringLiteral("description"), QStringLiteral("?food_category_id"),
                    QStringLiteral("?publication_date")});
    while (table.Next()) {
        const FdcKind* kind = KindOf(table[Type]);
        if (!kind || !filter_.TakesType(QLatin1String(kind->asked)))
            continue;
        FdcFood food{table.Key(Key), table.Line(), kind};
        food.name = FoodText::Allowed(table.Text(Name)).toUtf8();
        food.category = Shared(table[Category].toByteArray());
        food.published = table.Day(Published);
        if (food.key == 0)
            tally_.Refuse(table.Name(), food.line, QString::fromUtf8(food.name),
                          QStringLiteral("its fdc_id is not a number"));
        else
            foods_.push_back(std::move(food));
    }
}

void FdcSelection::RefuseDoubles() {
    std::ranges::stable_sort(foods_, {}, &FdcFood::key);
    for (size_t i = 1; i < foods_.size(); ++i)
        if (foods_[i].key == foods_[i - 1].key) {
            tally_.Refuse(QStringLiteral("food.csv"), foods_[i].line,
                          QString::fromUtf8(foods_[i].name),
                          QStringLiteral("its fdc_id stands twice"));
            Mark(foods_[i]);
        }
    RemoveMarked();
}

/// The names of the categories, where the download has them; else their numbers stay.
void FdcSelection::ReadCategories() {
    if (FdcTable::Find(folder_, QStringLiteral("food_category.csv")).isEmpty())
        return;
    enum { Key, Name };
    FdcTable table(folder_, QStringLiteral("food_category.csv"),
                   {QStringLiteral("id"), QStringLiteral("description")});
    QHash<QByteArray, QByteArray> names;
    while (table.Next())
        names.insert(table[Key].toByteArray(), table.Text(Name).toUtf8());
    for (FdcFood& food : foods_)
        food.category = names.value(food.category, food.category);
}

/// Foundation foods without an entry there are earlier publications.
void FdcSelection::ReadNumbers(const FdcKind& kind) {
    enum { Key, Number };
    FdcTable table(folder_, QLatin1String(kind.file),
                   {QStringLiteral("fdc_id"), QLatin1String(kind.column)});
    while (table.Next())
        if (FdcFood* food = FindFood(foods_, table.Key(Key)); food && food->kind == &kind)
            food->number = Lasting(kind, table[Number]);
    for (FdcFood& food : foods_)
        if (food.kind == &Foundation && &kind == &Foundation && food.number.isEmpty())
            Mark(food);
    LeaveMarked(QStringLiteral("earlier publications of a food were left"));
}

void FdcSelection::ReadBranded() {
    BrandedTable table(folder_);
    while (table.Next()) {
        FdcFood* food = FindFood(foods_, table.Key());
        if (!food || food->kind != &Branded)
            continue;
        food->number = Lasting(Branded, table.Number());
        const QString refused = table.ReadInto(*food, tally_);
        food->category = Shared(food->category);
        if (table.IsDiscontinued())
            tally_.Note(QStringLiteral("discontinued foods were left"));
        else if (!refused.isEmpty())
            tally_.Refuse(table.Name(), table.Line(), QString::fromUtf8(food->name), refused);
        if (table.IsDiscontinued() || !refused.isEmpty())
            Mark(*food);
    }
    RemoveMarked();
}

void FdcSelection::LeaveSuperseded() {
    std::ranges::sort(foods_, {}, Age);
    for (size_t i = 0; i + 1 < foods_.size(); ++i)
        if (!IsLatest(foods_[i], foods_[i + 1]))
            Mark(foods_[i]);
    LeaveMarked(QStringLiteral("earlier publications of a food were left"));
    std::ranges::sort(foods_, {}, &FdcFood::key);
    for (FdcFood& food : foods_)
        if (food.number.isEmpty())
            food.number = "fdc:" + QByteArray::number(food.key);
}

void FdcSelection::LeaveUnwanted() {
    std::erase_if(foods_, [this](const FdcFood& food) {
        return !filter_.TakesName(QString::fromUtf8(food.name)) ||
               !filter_.TakesCategory(QString::fromUtf8(food.category));
    });
}

int FdcSelection::RemoveMarked() {
    return static_cast<int>(std::erase_if(foods_, [](const FdcFood& food) { return !food.kind; }));
}

void FdcSelection::LeaveMarked(const QString& why) {
    tally_.Note(why, RemoveMarked());
}

bool FdcSelection::HasKind(const FdcKind& kind) const {
    return std::ranges::any_of(foods_, [&](const FdcFood& food) { return food.kind == &kind; });
}

QByteArray FdcSelection::Shared(const QByteArray& text) {
    const auto known = shared_.constFind(text);
    return known == shared_.cend() ? *shared_.insert(text, text) : *known;
}
