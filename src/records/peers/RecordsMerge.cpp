#include "records/peers/RecordsMerge.h"

#include "analysis/Period.h"
#include "foods/CustomFoods.h"
#include "intake/DayLog.h"
#include "model/User.h"
#include "recipes/RecipeBook.h"
#include "records/StoredAmounts.h"
#include "records/peers/StoredFood.h"
#include "runtime/Convert.h"
#include "runtime/Round.h"
#include "store/Connection.h"
#include "store/Recordset.h"

#include <QHash>

#include <algorithm>

namespace {
/// How often each row stands in the records. Taking one of them leaves one less.
class Present {
public:
    void Add(const QByteArray& key) { ++counts_[key]; }
    bool Take(const QByteArray& key) {
        const auto found = counts_.find(key);
        const bool isThere = found != counts_.end() && *found > 0;
        if (isThere)
            --*found;
        return isThere;
    }

private:
    QHash<QByteArray, int> counts_;
};

/// Removes what is present and counts both.
template <class Row, class Key>
RecordsMerge::Count Separate(std::vector<Row>& rows, Present& present, Key key) {
    const size_t removed =
        std::erase_if(rows, [&](const Row& row) { return present.Take(key(row)); });
    return {static_cast<int>(rows.size()), static_cast<int>(removed)};
}

QString Uid() {
    return QString::number(User::Current().UID);
}

template <class Row> QString DaysOf(const std::vector<Row>& rows) {
    const auto [first, last] = std::ranges::minmax(rows, {}, &Row::day);
    return Period{first.day, last.day}.Condition();
}

QByteArray EntryKey(QDate day, const QString& meal, const ImportedFood& food) {
    return day.toString(Qt::ISODate).toUtf8() + meal.toUtf8() + '\0' + StoredFood::Key(food);
}

QByteArray OwnFoodKey(const CustomFood& food) {
    return StoredFood::Key({food.name, food.serving, 1, food.amounts});
}

QByteArray RecipeKey(const Recipe& recipe, const std::vector<ImportedFood>& ingredients) {
    QByteArray key = recipe[RecipeField::Name].toString().toUtf8() + '\0' +
                     recipe[RecipeField::Serving].toString().toUtf8() + '\0' +
                     QByteArray::number(recipe[RecipeField::Yield].toDouble(), 'g', 17);
    for (const ImportedFood& ingredient : ingredients)
        key += '\0' + StoredFood::Key(ingredient);
    return key;
}

std::vector<ImportedFood> IngredientsOf(qint32 RecipeID) {
    std::vector<ImportedFood> foods;
    for (Recordset rows(UserDB(), "SELECT * FROM Ingredients WHERE RecipeID =" +
                                      QString::number(RecipeID) + " ORDER BY ID");
         !rows.AtEnd(); rows.MoveNext())
        foods.push_back(StoredFood::Read(rows));
    return foods;
}

/// The latest of each day, in the order of the days.
void KeepOneADay(Imported& imported) {
    std::vector<ImportedWeight> kept;
    std::ranges::stable_sort(imported.weights, {}, [](const ImportedWeight& weight) {
        return std::pair(weight.day, weight.order);
    });
    for (ImportedWeight& weight : imported.weights) {
        if (!kept.empty() && kept.back().day == weight.day) {
            imported.LeaveOut(kept.back().origin, "A later weight of the same day counts: " +
                                                      weight.origin.place + u'.');
            kept.pop_back();
        }
        kept.push_back(std::move(weight));
    }
    imported.weights = std::move(kept);
}

QHash<QDate, double> StoredWeights(const QString& days) {
    QHash<QDate, double> weights;
    for (Recordset rows(UserDB(), "SELECT * FROM USER_WEIGHTS WHERE UID=" + Uid() + " AND " + days);
         !rows.AtEnd(); rows.MoveNext())
        weights[rows[QStringLiteral("UDate")].Day()] = rows[QStringLiteral("Weight")].NumberOr(0);
    return weights;
}

QVariantList IngredientRow(const ImportedFood& food) {
    return StoredAmounts::Values(food.amounts)
           << food.name << food.serving << QVariant() << food.quantity;
}
} // namespace

RecordsMerge::RecordsMerge(Imported& imported)
    : imported_(imported) {
    CompareEntries();
    CompareWeights();
    CompareFoods();
    CompareRecipes();
}

bool RecordsMerge::AddsNothing() const {
    return entries_.added + weights_.added + foods_.added + recipes_.added == 0;
}

void RecordsMerge::CompareEntries() {
    if (imported_.entries.empty())
        return;
    Present present;
    for (Recordset rows(UserDB(), "SELECT * FROM USER_FOODS WHERE UID=" + Uid() + " AND " +
                                      DaysOf(imported_.entries));
         !rows.AtEnd(); rows.MoveNext())
        present.Add(EntryKey(rows[QStringLiteral("UDate")].Day(),
                             rows[QStringLiteral("Meal")].Text(), StoredFood::Read(rows)));
    entries_ = Separate(imported_.entries, present, [](const ImportedEntry& entry) {
        return EntryKey(entry.day, entry.meal, entry.food);
    });
}

/// A day has one weight. A weight of 0 was taken back.
void RecordsMerge::CompareWeights() {
    if (imported_.weights.empty())
        return;
    KeepOneADay(imported_);
    const auto stored = StoredWeights(DaysOf(imported_.weights));
    std::erase_if(imported_.weights, [&](const ImportedWeight& weight) {
        const double before = stored.value(weight.day, 0);
        if (before == weight.pounds)
            ++weights_.present;
        else if (before > 0)
            imported_.Refuse(weight.origin, "The records hold another weight of this day: " +
                                                DecimalText(before) + " pounds.");
        return before > 0;
    });
    weights_.added = static_cast<int>(imported_.weights.size());
}

void RecordsMerge::CompareFoods() {
    if (imported_.foods.empty())
        return;
    Present present;
    for (Recordset rows(FoodDB(), QStringLiteral("SELECT * FROM foods WHERE ID > 23508"));
         !rows.AtEnd(); rows.MoveNext())
        present.Add(
            OwnFoodKey({rows[QStringLiteral("FoodName")].Text(),
                        rows[QStringLiteral("Serv_Desc_A")].Text(), StoredAmounts::Of(rows)}));
    foods_ = Separate(imported_.foods, present,
                      [](const ImportedOwnFood& own) { return OwnFoodKey(own.food); });
}

void RecordsMerge::CompareRecipes() {
    if (imported_.recipes.empty())
        return;
    Present present;
    for (const auto& [name, key] : RecipeBook::Names())
        present.Add(RecipeKey(RecipeBook::ReadValues(key), IngredientsOf(key)));
    recipes_ = Separate(imported_.recipes, present, [](const ImportedRecipe& own) {
        return RecipeKey(own.recipe, own.ingredients);
    });
}

void RecordsMerge::Write() const {
    WriteEntries();
    WriteWeights();
    WriteFoods();
    WriteRecipes();
}

/// No food of the catalogue belongs to an entry: its key stays null.
void RecordsMerge::WriteEntries() const {
    Recordset rows(UserDB(), QStringLiteral("SELECT * FROM USER_FOODS WHERE RecID < 0"),
                   CursorType::Dynamic, LockType::Optimistic);
    for (const ImportedEntry& entry : imported_.entries) {
        rows.AddNew();
        StoredFood::Set(rows, entry.food);
        rows.Set(QStringLiteral("UID"), User::Current().UID);
        rows.Set(QStringLiteral("Meal"), entry.meal);
        rows.Set(QStringLiteral("UDate"), entry.day);
        rows.Update();
    }
}

void RecordsMerge::WriteWeights() const {
    for (const ImportedWeight& weight : imported_.weights)
        DayLog::SetWeight(weight.day, weight.pounds);
}

void RecordsMerge::WriteFoods() const {
    qint32 key = CustomFoods::HighestKey();
    Recordset rows(FoodDB(), QStringLiteral("SELECT * FROM foods WHERE ID < 0"),
                   CursorType::Dynamic, LockType::Optimistic);
    for (const ImportedOwnFood& own : imported_.foods) {
        rows.AddNew();
        rows.Set(QStringLiteral("ID"), key = Round(key + 1.0));
        rows.Set(QStringLiteral("FoodName"), own.food.name);
        rows.Set(QStringLiteral("Serv_Desc_A"), own.food.serving);
        rows.Set(QStringLiteral("Serv_GM_WT_A"), CustomFoods::ServingGrams);
        StoredAmounts::Set(rows, own.food.amounts);
        rows.Update();
    }
}

void RecordsMerge::WriteRecipes() const {
    for (const ImportedRecipe& own : imported_.recipes)
        RecipeBook::KeepIngredients(
            RecipeBook::KeepRecipe(own.recipe), static_cast<int>(own.ingredients.size()),
            [&own](int row) { return IngredientRow(own.ingredients[static_cast<size_t>(row)]); });
}
