#include "records/RowChecks.h"

#include "model/Nutrients.h"
#include "store/Schema.h"

#include <QMap>
#include <QSet>
#include <QStringList>

#include <SQLiteCpp/SQLiteCpp.h>

#include <algorithm>
#include <span>
#include <vector>

#include <sqlite3.h>

namespace {
/// In the statements, {table}, {key}, {name}, {quantity} and {amounts} are those of the table.
struct Check {
    const char* condition; ///< true for a row with the problem
    const char* problem;
    const char* meaning;
    const char* advice;
    const char* repair = nullptr; ///< a statement; null: nobody but the user knows what is right
    const char* column = nullptr; ///< the only one that the condition reads, if it has few values
};

struct Table {
    DatabaseKind file;
    const char* name;
    const char* key;
    const char* nameOfRow;
    const char* quantity;
    std::vector<Check> checks;
};

constexpr auto Restore = "Look for them in a snapshot (`backups`, `restore`).";
constexpr auto Remove = "Remove the line on its screen and enter it again.";

// The store takes every text for greater than every number. Without "+0 days" it takes February 30
// for a date.
constexpr Check NoProfile{"UID IS NULL OR UID NOT IN (SELECT UID FROM profiles)",
                          "belong to no profile",
                          "No screen shows them.",
                          Restore,
                          nullptr,
                          "UID"};
constexpr Check NoDate{"UDate IS NULL OR (date(UDate, '+0 days') IS NOT UDate AND NOT "
                       "(length(UDate) > 10 AND substr(UDate, 1, 10) IS "
                       "date(substr(UDate, 1, 10), '+0 days') AND "
                       "substr(UDate, 11, 1) IN (' ', 'T')))",
                       "have an invalid date",
                       "No day shows them.",
                       Restore,
                       nullptr,
                       "UDate"};
constexpr Check TimeOfDay{
    "length(UDate) > 10 AND substr(UDate, 1, 10) IS date(substr(UDate, 1, 10), '+0 days') AND "
    "substr(UDate, 11, 1) IN (' ', 'T')",
    "have a time after the date",
    "No day shows them.",
    "",
    "UPDATE {table} AS t SET UDate = substr(UDate, 1, 10) WHERE ",
    "UDate"};
constexpr Check Future{"UDate > date({today}, '+1 year') AND date(UDate, '+0 days') IS UDate",
                       "have a date more than a year in the future",
                       "Most likely it is a typing error.",
                       "Look at that day, and remove what is wrong.",
                       nullptr,
                       "UDate"};

constexpr Check KeyTooLarge(const char* meaning) {
    return {"{key} NOT BETWEEN -2147483648 AND 2147483647",
            "have a key that the screens cannot use", meaning,
            "Change the key with a tool for SQLite."};
}
/// Nearly every name begins with a character between the two, so it need not be trimmed.
constexpr Check NoName(const char* meaning, const char* advice) {
    return {"coalesce({name}, '') NOT BETWEEN '!' AND '~' AND trim(coalesce({name}, '')) = ''",
            "have no name", meaning, advice};
}
constexpr Check NoQuantity(const char* problem, const char* meaning, const char* advice) {
    return {"{quantity} IS NULL OR {quantity} <= 0 OR {quantity} > 1e9", problem, meaning, advice};
}
constexpr Check StrangeAmounts(const char* meaning) {
    return {"has_strange_amount({amounts})", "have impossible amounts", meaning, Remove};
}

const std::vector<Table>& Tables() {
    static const std::vector<Table> tables = {
        {DatabaseKind::Users,
         "profiles",
         "UID",
         "UserName",
         "",
         {KeyTooLarge("That profile is not found."),
          NoName("The profile cannot be chosen.", "Open Edit My Profile and enter a name."),
          {"EXISTS (SELECT 1 FROM profiles p WHERE p.UserName = t.UserName AND p.UID < t.UID)",
           "have the name of another profile", "Commands find only the first by its name.",
           "Open Edit My Profile and change one of the names."},
          {"typeof(age) = 'text' OR typeof(height) = 'text' OR typeof(current_weight) = 'text' OR "
           "typeof(desired_weight) = 'text' OR typeof(activity_level) = 'text' OR "
           "age < 0 OR height < 0 OR current_weight < 0 OR desired_weight < 0",
           "have an invalid age, height or weight", "It counts as 0, and so the targets are wrong.",
           "Open Edit My Profile, enter it again and save."}}},
        {DatabaseKind::Users,
         "USER_FOODS",
         "RecID",
         "FoodName",
         "QTY",
         {KeyTooLarge("The day does not list them."),
          NoProfile,
          NoDate,
          TimeOfDay,
          Future,
          {"Meal NOT IN ('Breakfast', 'Lunch', 'Dinner', 'Snacks', '')",
           "belong to a meal that the program does not know",
           "They count in the sums of their day, but its list does not show them.", Restore},
          NoName("Their lines in the list of the day are empty.", Remove),
          NoQuantity("have an impossible quantity", "The list of the day shows it.", Remove),
          StrangeAmounts("The sums of their day are wrong.")}},
        {DatabaseKind::Users,
         "USER_WEIGHTS",
         "rowid",
         "",
         "",
         {NoProfile,
          NoDate,
          TimeOfDay,
          Future,
          {"Weight IS NULL OR Weight < 0 OR Weight > 1000000", "have an invalid weight",
           "No chart shows them.", "Enter the weight of that day again."},
          {"EXISTS (SELECT 1 FROM USER_WEIGHTS w WHERE w.UID = t.UID AND w.UDate = t.UDate AND "
           "w.rowid < t.rowid)",
           "are a second weight on the same day",
           "The day shows and changes only the first, but the weight chart shows both.", "",
           "DELETE FROM {table} AS t WHERE "}}},
        {DatabaseKind::Users,
         "Recipes",
         "RecipeID",
         "RecipeName",
         "RecipeYield",
         {KeyTooLarge("The recipe cannot be opened."),
          NoName("No search finds the recipe.", "Open the recipe, enter a name and save."),
          NoQuantity("have an invalid number of servings",
                     "The amounts of a serving cannot be calculated.",
                     "Open the recipe, enter the number of servings and save.")}},
        {DatabaseKind::Users,
         "Ingredients",
         "ID",
         "FoodName",
         "QTY",
         {{"RecipeID IS NULL OR RecipeID NOT IN (SELECT RecipeID FROM Recipes)",
           "belong to no recipe", "They are left over from deleted recipes.", "",
           "DELETE FROM {table} AS t WHERE "},
          KeyTooLarge("The recipe does not list them."),
          StrangeAmounts("The sums of their recipe are wrong.")}},
        {DatabaseKind::Foods,
         "FOODS",
         "ID",
         "FoodName",
         "Serv_GM_WT_A",
         {KeyTooLarge("The food cannot be logged."),
          NoName("No search finds the food.",
                 "Open My Foods, enter a name and save, or delete the food."),
          {"has_strange_amount({amounts}) OR Calories > 1000 OR protein > 100.5 OR carbs > 100.5 "
           "OR TotalFat > 100.5",
           "have impossible amounts in 100 grams", "What is logged from it is wrong.",
           "Open My Foods, enter the amounts again and save."},
          {"ID > 23508 AND FoodName IS NOT NULL AND "
           "({quantity} IS NULL OR {quantity} <= 0 OR {quantity} > 1e9)",
           "have a serving without a weight", "What is logged from it counts as 0.",
           "Open My Foods, enter the serving again and save."}}},
    };
    return tables;
}
static_assert(Schema::LastStockFood == 23508);

constexpr double GreatestAmount = 1e9;

/// An unknown amount is no fault.
bool IsStrange(sqlite3_value* amount) {
    const int type = sqlite3_value_type(amount);
    const double value = sqlite3_value_double(amount);
    return type == SQLITE_TEXT || type == SQLITE_BLOB || value < 0 || value > GreatestAmount;
}

void HasStrangeAmount(sqlite3_context* context, int count, sqlite3_value** values) {
    const std::span amounts(values, static_cast<size_t>(count));
    sqlite3_result_int(context, std::ranges::any_of(amounts, IsStrange) ? 1 : 0);
}

QString Amounts() {
    QStringList columns;
    for (const NutrientInfo& row : Nutrients())
        columns << QLatin1String(row.logColumn);
    return columns.join(u',');
}

QString Filled(const char* text, const Table& table, const QString& today) {
    static const QString amounts = Amounts();
    QString filled = QString::fromLatin1(text);
    return filled.replace(QLatin1String("{amounts}"), amounts)
        .replace(QLatin1String("{table}"), QLatin1String(table.name))
        .replace(QLatin1String("{key}"), QLatin1String(table.key))
        .replace(QLatin1String("{name}"), QLatin1String(table.nameOfRow))
        .replace(QLatin1String("{quantity}"), QLatin1String(table.quantity))
        .replace(QLatin1String("{today}"), u'\'' + today + u'\'');
}

/// Looks through one table.
class Walk {
public:
    Walk(SQLite::Database& database, const Table& table, const QString& today)
        : database_(database)
        , table_(table)
        , today_(today) {}

    /// Rows with a problem are rare: they are counted only where there is one.
    QList<Finding> Run() {
        QList<Finding> findings;
        const QSet<QLatin1String> suspect = SuspectColumns();
        for (const Check& check : table_.checks)
            if (suspect.contains(QLatin1String(check.column)))
                AddIfAny(check, findings);
        return findings;
    }

private:
    /// The checks that read one column of few values look at each value once. All others share one
    /// walk over the rows; for them the column is empty.
    QSet<QLatin1String> SuspectColumns() {
        QMap<QLatin1String, QStringList> conditions;
        for (const Check& check : table_.checks)
            conditions[QLatin1String(check.column)] << u'(' + Condition(check) + u')';
        QSet<QLatin1String> suspect;
        for (const auto& [column, any] : conditions.asKeyValueRange())
            if (IsThere(column, any.join(QLatin1String(" OR "))))
                suspect << column;
        return suspect;
    }

    bool IsThere(QLatin1String column, const QString& condition) {
        const QString rows = QLatin1String(table_.name) + " AS t";
        const QString values = "WITH t AS MATERIALIZED (SELECT DISTINCT " + column + " FROM " +
                               rows + ") SELECT EXISTS (SELECT 1 FROM t WHERE " + condition + ')';
        const QString walk = "SELECT EXISTS (SELECT 1 FROM " + rows + " WHERE " + condition + ')';
        return database_.execAndGet((column.isEmpty() ? walk : values).toStdString()).getInt() != 0;
    }

    void AddIfAny(const Check& check, QList<Finding>& findings) {
        const QString condition = Condition(check);
        const QString select =
            QStringLiteral("SELECT count(*), min(t.%1) FROM %2 AS t WHERE %3")
                .arg(QLatin1String(table_.key), QLatin1String(table_.name), condition);
        SQLite::Statement found(database_, select.toStdString());
        found.executeStep();
        if (const qint64 rows = found.getColumn(0).getInt64(); rows > 0)
            findings << Finding{QLatin1String(table_.name),
                                QLatin1String(check.problem),
                                rows,
                                QString::fromStdString(found.getColumn(1).getString()),
                                QLatin1String(check.meaning),
                                QLatin1String(check.advice),
                                Repair(check, condition)};
    }

    QString Condition(const Check& check) const { return Filled(check.condition, table_, today_); }
    QString Repair(const Check& check, const QString& condition) const {
        return check.repair == nullptr ? QString()
                                       : Filled(check.repair, table_, today_) + condition;
    }

    SQLite::Database& database_;
    const Table& table_;
    const QString& today_;
};
} // namespace

QList<Finding> RowChecks::Run(SQLite::Database& database, DatabaseKind kind, const QString& today) {
    database.createFunction("has_strange_amount", -1, true, nullptr, HasStrangeAmount);
    QList<Finding> findings;
    for (const Table& table : Tables())
        if (table.file == kind)
            findings << Walk(database, table, today).Run();
    return findings;
}
