#include "records/RowChecks.h"

#include "model/Nutrients.h"
#include "store/Schema.h"

#include <QStringList>

#include <SQLiteCpp/SQLiteCpp.h>

#include <vector>

namespace {
/// In the statements, {greatest} and {least} are those of the 31 amounts of a row.
struct Check {
    const char* condition; ///< true for a row with the problem
    const char* problem;
    const char* meaning;
    const char* advice;
    const char* repair; ///< a statement; null: nobody but the user knows what is right
};

struct Table {
    DatabaseKind file;
    const char* name;
    const char* key;
    RowChecks::Part part;
    std::vector<Check> checks;
};

constexpr auto Restore = "Look for them in a snapshot (`backups`, `restore`).";
constexpr auto Remove = "Remove the line on its screen and enter it again.";
constexpr auto KeyTooLarge = "{key} NOT BETWEEN -2147483648 AND 2147483647";
constexpr auto StrangeAmount = "{greatest} > 1e9 OR {least} < 0";

constexpr auto NoProfile = "UID IS NULL OR UID NOT IN (SELECT UID FROM profiles)";
// Each date is looked at once, not in each row. Without "+0 days" the store takes February 30 for a
// date.
constexpr auto TimeOfDay =
    "UDate IN (SELECT day FROM (SELECT DISTINCT UDate AS day FROM {table}) WHERE length(day) > 10 "
    "AND substr(day, 1, 10) IS date(substr(day, 1, 10), '+0 days') AND "
    "substr(day, 11, 1) IN (' ', 'T'))";
constexpr auto NoDate =
    "UDate IS NULL OR UDate IN (SELECT day FROM (SELECT DISTINCT UDate AS day FROM {table}) WHERE "
    "date(day, '+0 days') IS NOT day AND NOT (length(day) > 10 AND "
    "substr(day, 1, 10) IS date(substr(day, 1, 10), '+0 days') AND "
    "substr(day, 11, 1) IN (' ', 'T')))";
constexpr auto Future = "UDate > date({today}, '+1 year') AND date(UDate, '+0 days') IS UDate";

const std::vector<Table>& Tables() {
    static const std::vector<Table> tables = {
        {DatabaseKind::Users,
         "profiles",
         "UID",
         RowChecks::Part::AllElse,
         {{KeyTooLarge, "have a key that no screen can use", "That profile is not found.",
           "Change the key with a tool for SQLite.", nullptr},
          {"trim(coalesce(UserName, '')) = ''", "have no name", "The profile cannot be chosen.",
           "Open Edit My Profile and enter a name.", nullptr},
          {"EXISTS (SELECT 1 FROM profiles p WHERE p.UserName = t.UserName AND p.UID < t.UID)",
           "have the name of another profile", "Commands find only the first by its name.",
           "Open Edit My Profile and change one of the names.", nullptr},
          {"typeof(age) = 'text' OR typeof(height) = 'text' OR typeof(current_weight) = 'text' OR "
           "typeof(desired_weight) = 'text' OR typeof(activity_level) = 'text' OR "
           "age < 0 OR height < 0 OR current_weight < 0 OR desired_weight < 0",
           "have an age, a height or a weight that is none",
           "It counts as 0, and so the targets "
           "are wrong.",
           "Open Edit My Profile, enter it again and save.", nullptr}}},
        {DatabaseKind::Users,
         "USER_FOODS",
         "RecID",
         RowChecks::Part::AllElse,
         {{KeyTooLarge, "have a key that no screen can use", "The day does not list them.",
           "Change the key with a tool for SQLite.", nullptr},
          {NoProfile, "belong to no profile", "No screen shows them.", Restore, nullptr},
          {NoDate, "have a date that is none", "No day shows them.", Restore, nullptr},
          {TimeOfDay, "have a time beside their date", "No day shows them.", "",
           "UPDATE USER_FOODS AS t SET UDate = substr(UDate, 1, 10) WHERE "},
          {Future, "lie more than a year in the future", "They are most likely slips.",
           "Look at that day, and remove what is wrong.", nullptr},
          {"coalesce(Meal, '') NOT IN ('Breakfast', 'Lunch', 'Dinner', 'Snacks', '')",
           "belong to a meal that the program does not know",
           "They count in the sums of their day, but its list does not show them.", Restore,
           nullptr},
          {"trim(coalesce(FoodName, '')) = ''", "have no name", "Their line on the day is empty.",
           Remove, nullptr},
          {"QTY IS NULL OR typeof(QTY) = 'text' OR typeof(QTY) = 'blob' OR QTY <= 0 OR QTY > 1e9",
           "have a quantity that no food has", "The list of the day shows it.", Remove, nullptr}}},
        {DatabaseKind::Users,
         "USER_FOODS",
         "RecID",
         RowChecks::Part::Amounts,
         {{StrangeAmount, "have amounts that no food has", "The sums of their day are wrong.",
           Remove, nullptr}}},
        {DatabaseKind::Users,
         "USER_WEIGHTS",
         "rowid",
         RowChecks::Part::AllElse,
         {{NoProfile, "belong to no profile", "No screen shows them.", Restore, nullptr},
          {NoDate, "have a date that is none", "No day shows them.", Restore, nullptr},
          {TimeOfDay, "have a time beside their date", "No day shows them.", "",
           "UPDATE USER_WEIGHTS AS t SET UDate = substr(UDate, 1, 10) WHERE "},
          {Future, "lie more than a year in the future", "They are most likely slips.",
           "Look at that day, and remove the weight.", nullptr},
          {"typeof(Weight) NOT IN ('integer', 'real') OR Weight < 0 OR Weight > 1000000",
           "are no weights", "No chart shows them.", "Enter the weight of that day again.",
           nullptr},
          {"EXISTS (SELECT 1 FROM USER_WEIGHTS w WHERE w.UID = t.UID AND w.UDate = t.UDate AND "
           "w.rowid < t.rowid)",
           "are second weights of a day",
           "The day shows and changes the first one only, but the line of weights has both.", "",
           "DELETE FROM USER_WEIGHTS AS t WHERE "}}},
        {DatabaseKind::Users,
         "Recipes",
         "RecipeID",
         RowChecks::Part::AllElse,
         {{KeyTooLarge, "have a key that no screen can use", "The recipe cannot be opened.",
           "Change the key with a tool for SQLite.", nullptr},
          {"trim(coalesce(RecipeName, '')) = ''", "have no name", "No search finds the recipe.",
           "Open the recipe, enter a name and save.", nullptr},
          {"RecipeYield IS NULL OR typeof(RecipeYield) IN ('text', 'blob') OR RecipeYield <= 0 OR "
           "RecipeYield > 1e9",
           "have a number of servings that is none",
           "The amounts of a serving cannot be worked out.",
           "Open the recipe, enter the number of servings and save.", nullptr}}},
        {DatabaseKind::Users,
         "Ingredients",
         "ID",
         RowChecks::Part::AllElse,
         {{"RecipeID IS NULL OR RecipeID NOT IN (SELECT RecipeID FROM Recipes)",
           "belong to no recipe", "They are left of recipes that were deleted.", "",
           "DELETE FROM Ingredients AS t WHERE "},
          {KeyTooLarge, "have a key that no screen can use", "The recipe does not list them.",
           "Change the key with a tool for SQLite.", nullptr},
          {StrangeAmount, "have amounts that no food has", "The sums of their recipe are wrong.",
           Remove, nullptr}}},
        {DatabaseKind::Foods,
         "FOODS",
         "ID",
         RowChecks::Part::AllElse,
         {{KeyTooLarge, "have a key that no screen can use", "The food cannot be logged.",
           "Change the key with a tool for SQLite.", nullptr},
          {"trim(coalesce(FoodName, '')) = ''", "have no name", "No search finds the food.",
           "Open My Foods, enter a name and save, or delete the food.", nullptr},
          {"({greatest} > 1e9 OR {least} < 0 OR Calories > 1000 OR "
           "max(coalesce(protein, 0), coalesce(carbs, 0), coalesce(TotalFat, 0)) > 100.5)",
           "have amounts in 100 grams that no food has", "What is logged of it is wrong.",
           "Open My Foods, enter the amounts again and save.", nullptr},
          {"ID > 23508 AND FoodName IS NOT NULL AND (Serv_GM_WT_A IS NULL OR "
           "typeof(Serv_GM_WT_A) IN ('text', 'blob') OR Serv_GM_WT_A <= 0 OR Serv_GM_WT_A > 1e9)",
           "have a serving without a weight", "What is logged of it counts as 0.",
           "Open My Foods, enter the serving again and save.", nullptr}}},
    };
    return tables;
}
static_assert(Schema::LastStockFood == 23508);

/// A null counts as 0, as on the screens. The store takes every text for greater than every number.
QString Amounts(const char* function) {
    QStringList columns;
    for (const NutrientInfo& row : Nutrients())
        columns << QStringLiteral("coalesce(%1, 0)").arg(QLatin1String(row.logColumn));
    return QLatin1String(function) + u'(' + columns.join(u',') + u')';
}

QString Filled(const char* text, const Table& table, const QString& today) {
    static const QString greatest = Amounts("max");
    static const QString least = Amounts("min");
    QString filled = QString::fromLatin1(text);
    return filled.replace(QLatin1String("{greatest}"), greatest)
        .replace(QLatin1String("{least}"), least)
        .replace(QLatin1String("{key}"), QLatin1String(table.key))
        .replace(QLatin1String("{table}"), QLatin1String(table.name))
        .replace(QLatin1String("{today}"), u'\'' + today + u'\'');
}

/// The count of each check, in one walk over the table.
QString Counts(const Table& table, const QString& today) {
    QStringList columns;
    for (const Check& check : table.checks)
        columns << "count(CASE WHEN " + Filled(check.condition, table, today) + " THEN 1 END)";
    return "SELECT " + columns.join(u',') + " FROM " + QLatin1String(table.name) + " AS t";
}

QString FirstKey(SQLite::Database& database, const Table& table, const QString& condition) {
    const QString key = "t." + QLatin1String(table.key);
    const QString select =
        "SELECT min(" + key + ") FROM " + QLatin1String(table.name) + " AS t WHERE " + condition;
    return QString::fromStdString(database.execAndGet(select.toStdString()).getString());
}

Finding Found(SQLite::Database& database, const Check& check, const Table& table,
              const QString& condition, qint64 rows) {
    Finding finding{QLatin1String(table.name),
                    QLatin1String(check.problem),
                    rows,
                    FirstKey(database, table, condition),
                    QLatin1String(check.meaning),
                    QLatin1String(check.advice)};
    if (check.repair != nullptr)
        finding.repair = QLatin1String(check.repair) + condition;
    return finding;
}

void Walk(SQLite::Database& database, const Table& table, const QString& today,
          QList<Finding>& findings) {
    SQLite::Statement counts(database, Counts(table, today).toStdString());
    counts.executeStep();
    for (size_t i = 0; i < table.checks.size(); ++i)
        if (const qint64 rows = counts.getColumn(static_cast<int>(i)).getInt64(); rows > 0)
            findings << Found(database, table.checks[i], table,
                              Filled(table.checks[i].condition, table, today), rows);
}
} // namespace

QList<Finding> RowChecks::Run(SQLite::Database& database, DatabaseKind kind, Part part,
                              const QString& today) {
    QList<Finding> findings;
    for (const Table& table : Tables())
        if (table.file == kind && table.part == part)
            Walk(database, table, today, findings);
    return findings;
}
