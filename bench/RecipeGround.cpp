#include "RecipeGround.h"

#include "store/Connection.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
void FillNames(SQLite::Database& database, const char* sql, int rows) {
    SQLite::Statement insert(database, sql);
    for (int i = 0; i < rows; ++i) {
        insert.bind(1, (i % 3 ? "Bean stew " : "Lentil soup ") + std::to_string(i));
        insert.exec();
        insert.reset();
    }
}

void FillIngredients() {
    SQLite::Statement insert(UserDB().Raw(),
                             "INSERT INTO Ingredients (RecipeID, FoodName, Serving, QTY, "
                             "Calories) VALUES (1, ?, '1 cup, chopped', 1.5, 100)");
    for (int i = 0; i < RecipeGround::ManyIngredients; ++i) {
        insert.bind(1, "Lentils, mature seeds, raw " + std::to_string(i));
        insert.exec();
        insert.reset();
    }
}
} // namespace

RecipeGround::RecipeGround(int rows)
    : Ground(false) {
    SQLite::Transaction users(UserDB().Raw());
    SQLite::Transaction foods(FoodDB().Raw());
    FillNames(UserDB().Raw(),
              "INSERT INTO Recipes (RecipeName, ServingName, RecipeYield, "
              "Instructions, PrepTime) VALUES (?1, '1 bowl', 4, ?1, 30)",
              rows);
    FillNames(FoodDB().Raw(),
              "INSERT INTO FOODS (ID, FoodName, Serv_Desc_A, Serv_Desc_B, Serv_GM_WT_A) "
              "SELECT max(ID) + 1, ?1, '1 cup', '', 100 FROM FOODS",
              rows);
    FillIngredients();
    users.commit();
    foods.commit();
}
