#include "durability/Promises.h"

#include "store/Connection.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <map>

namespace {

enum class Rows { There, Gone };

/// Where the number of a row stands, for each kind of action.
struct Kind {
    const char* name;
    Rows rows;
    Connection& (*database)();
    const char* numbers;
};

/// The quantities are tenths, which their limits allow.
constexpr Kind Kinds[] = {
    {"food", Rows::There, UserDB, "SELECT round(QTY * 10) FROM USER_FOODS WHERE Meal = 'Lunch'"},
    {"removed", Rows::Gone, UserDB, "SELECT round(QTY * 10) FROM USER_FOODS WHERE Meal = 'Snack'"},
    {"cleared", Rows::Gone, UserDB,
     "SELECT round(QTY * 10) FROM USER_FOODS WHERE Meal = 'Dinner' OR Meal = 'Breakfast'"},
    {"weight", Rows::There, UserDB, "SELECT Weight FROM USER_WEIGHTS"},
    {"custom", Rows::There, FoodDB, "SELECT CAST(FoodName AS INTEGER) FROM FOODS WHERE ID > 23508"},
    {"corrected", Rows::There, FoodDB,
     "SELECT CAST(FoodName AS INTEGER) FROM FOODS WHERE ID > 23508 AND Serv_Desc_A = '1 bowl'"},
    {"custom-deleted", Rows::Gone, FoodDB,
     "SELECT CAST(substr(FoodName, 5) AS INTEGER) FROM FOODS WHERE FoodName LIKE 'Old %'"},
    {"recipe", Rows::There, UserDB,
     "SELECT CAST(RecipeName AS INTEGER) FROM Recipes WHERE ServingName = '1 cup'"},
    {"ingredient", Rows::There, UserDB, "SELECT round(QTY * 10) FROM Ingredients"},
    {"ingredient-removed", Rows::Gone, UserDB,
     "SELECT round((QTY - 50) * 10) FROM Ingredients WHERE QTY > 50"},
    {"recipe-deleted", Rows::Gone, UserDB,
     "SELECT CAST(substr(RecipeName, 5) AS INTEGER) FROM Recipes WHERE RecipeName LIKE 'Old %'"},
    {"imported", Rows::There, UserDB,
     "SELECT CAST(RecipeName AS INTEGER) FROM Recipes WHERE ServingName = '1 bowl' AND 2 = "
     "(SELECT count(*) FROM Ingredients WHERE Ingredients.RecipeID = Recipes.RecipeID)"},
    // The last name of the profile stands for all before it.
    {"profile", Rows::There, UserDB,
     "WITH numbers(i) AS (SELECT CAST(UserName AS INTEGER) FROM profiles UNION ALL "
     "SELECT i - 1 FROM numbers WHERE i > 0) SELECT i FROM numbers"},
};

/// Half-written rows: no kill may leave any.
struct HalfWritten {
    Connection& (*database)();
    const char* rows;
};
constexpr HalfWritten HalfWrittenRows[] = {
    {FoodDB, "SELECT ID FROM FOODS WHERE ID > 23508 AND FoodName IS NOT NULL AND "
             "(Serv_GM_WT_A IS NOT 100 OR Serv_Desc_A IS NULL OR Calories IS NULL)"},
    {FoodDB, "SELECT ID FROM FOODS WHERE ID > 23508 AND FoodName IS NULL AND "
             "coalesce(Calories, Serv_GM_WT_A, Serv_Desc_A) IS NOT NULL"},
    {UserDB, "SELECT RecID FROM USER_FOODS WHERE FoodName IS NULL OR UDate IS NULL OR QTY IS NULL "
             "OR Calories IS NULL"},
    {UserDB, "SELECT UID FROM USER_WEIGHTS WHERE UDate IS NULL OR Weight IS NULL"},
    {UserDB, "SELECT ID FROM Ingredients WHERE FoodName IS NULL OR RecipeID IS NULL OR QTY IS NULL "
             "OR Calories IS NULL"},
    {UserDB, "SELECT RecipeID FROM Recipes WHERE RecipeName IS NULL"},
    {UserDB, "SELECT UID FROM profiles WHERE UserName IS NULL OR Calories IS NULL"},
};

QSet<int> NumbersIn(Connection& connection, const char* statement) {
    SQLite::Statement rows(connection.Raw(), statement);
    QSet<int> numbers;
    while (rows.executeStep())
        numbers << rows.getColumn(0).getInt();
    return numbers;
}

bool IsKept(const Kind& kind, const QSet<int>& acknowledged) {
    const QSet<int> found = NumbersIn(kind.database(), kind.numbers);
    return kind.rows == Rows::There ? found.contains(acknowledged)
                                    : !found.intersects(acknowledged);
}

std::map<QByteArray, int>& AllAcknowledged() {
    static std::map<QByteArray, int> all;
    return all;
}

} // namespace

void Promises::TakeDown(const QByteArray& acknowledged) {
    for (const QByteArray& line : acknowledged.split('\n')) {
        const QList<QByteArray> words = line.split(' ');
        if (words.size() != 2)
            continue;
        numbers_[words[0]] << words[1].toInt();
        next_ = qMax(next_, words[1].toInt() + 1);
        ++AllAcknowledged()[words[0]];
    }
    ++next_; // rows may hold the last number although nothing of it was acknowledged
}

QByteArrayList Promises::Broken() const {
    QByteArrayList broken;
    for (const Kind& kind : Kinds)
        if (!IsKept(kind, numbers_[kind.name]))
            broken << QByteArray("an acknowledged row is not as promised: ").append(kind.name);
    for (const HalfWritten& half : HalfWrittenRows)
        if (!NumbersIn(half.database(), half.rows).isEmpty())
            broken << QByteArray("a row is half written: ").append(half.rows);
    for (Connection* connection : {&UserDB(), &FoodDB()})
        if (connection->Raw().execAndGet("PRAGMA integrity_check").getString() != "ok")
            broken << "the integrity check fails";
    return broken;
}

QByteArray Promises::Totals() {
    QByteArray totals;
    for (const Kind& kind : Kinds)
        totals +=
            QByteArray(" ") + kind.name + ' ' + QByteArray::number(AllAcknowledged()[kind.name]);
    return totals;
}
