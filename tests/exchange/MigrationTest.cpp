#include "support/ExchangeTest.h"
#include "support/Until.h"

#include "exchange/Columns.h"
#include "exchange/Moment.h"
#include "exchange/Secrets.h"
#include "exchange/Text.h"

#include <csignal>
#include <map>
#include <thread>

/// A database of the first version, with 10,000 recipes, is taken over by the present server.
class MigrationTest : public ExchangeTest {
protected:
    static constexpr int Recipes = 10'000;
    static constexpr int Rows = 3;
    static constexpr int Unfinished = 77; ///< each recipe of this multiple

    void SetUp() override {
        exchange::Connection connection(Database());
        exchange::Transaction transaction(connection);
        const auto tables =
            ReadFile(std::string(HALVANE_SOURCE_DIR) + "/tests/exchange/data/first-version.sql");
        for (const auto& statement : exchange::SplitWords(tables, ";"))
            if (!exchange::Trimmed(statement).empty())
                connection.Once(statement);
        FillRecipes(connection);
        FillIngredients(connection);
        FillDocuments(connection);
        FillListing(connection);
        transaction.Commit();
    }

    /// The tables r and n of the numbers of recipes and rows.
    static std::string Numbers() {
        return "WITH RECURSIVE r(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM r WHERE i < " +
               std::to_string(Recipes) +
               "), n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
               std::to_string(Rows) + ")";
    }

    /// The amount of a nutrient in a row of a recipe: null now and then, and like no other.
    static std::string AmountIn(const std::string& recipe, const std::string& row, size_t number) {
        const auto n = std::to_string(number);
        return "CASE WHEN (" + recipe + " + " + n + ") % 7 = 0 THEN NULL ELSE " + recipe + " + " +
               n + " * 100000 + " + row + " * 0.25 END";
    }
    static json Amount(int recipe, int row, int number) {
        return (recipe + number) % 7 == 0 ? json(nullptr)
                                          : json(recipe + number * 100000 + row * 0.25);
    }

    static void FillRecipes(exchange::Connection& connection) {
        connection.Once(
            Numbers() +
            " INSERT INTO recipes SELECT i + 1, 'Recipe ' || i, '1 bowl', 4.5, 'Cook ' || i, i,"
            " 'anna@example.com', 'bert@example.org', i % 2, '" +
            exchange::Secrets::Digest("token") + "', 3, " + Now() + ", CASE WHEN i % " +
            std::to_string(Unfinished) + " = 0 THEN 0 ELSE " + Now() + " END, 0 FROM r");
        connection.Once("INSERT INTO counters (Name, Slot, Hits) VALUES ('mails', 900000, 7)");
    }

    static std::string Now() { return std::to_string(exchange::Moment::Now()); }

    static void FillIngredients(exchange::Connection& connection) {
        std::string columns;
        std::string amounts;
        size_t number = 0;
        for (const auto& column : exchange::NutrientColumns()) {
            columns.append(column.name).append(", ");
            amounts += AmountIn("r.i", "n.i", ++number) + ", ";
        }
        connection.Once(Numbers() + " INSERT INTO ingredients (ID, " + columns +
                        "FoodName, Serving, RecipeID, QTY) SELECT n.i, " + amounts +
                        "'Food ' || n.i, '1 cup', r.i + 1,"
                        " CASE WHEN n.i = 2 THEN 1.5 ELSE NULL END FROM r, n");
    }

    /// As the first version wrote them: in the order of its own columns.
    static void FillDocuments(exchange::Connection& connection) {
        for (int recipe = 1; recipe <= Recipes; ++recipe) {
            if (recipe % Unfinished == 0)
                continue;
            const int id = recipe + 1;
            const auto text =
                json{{"RecipeID", id},          {"RecipeName", "Recipe " + std::to_string(recipe)},
                     {"ServingName", "1 bowl"}, {"RecipeYield", 4.5},
                     {"PrepTime", recipe},      {"Instructions", "Cook " + std::to_string(recipe)}}
                    .dump();
            connection.Change("INSERT INTO documents VALUES (:id, :recipe, :ingredients)",
                              soci::use(id), soci::use(text), soci::use(OldDocument(recipe)));
        }
    }

    static std::string OldDocument(int recipe) {
        json fields = {"ID"};
        for (const int column : exchange::LabelOrder())
            fields.push_back(exchange::NutrientColumns()[static_cast<size_t>(column)].name);
        for (const auto* name : {"FoodName", "Serving", "RecipeID", "QTY"})
            fields.push_back(name);
        json rows = json::array();
        for (int row = 1; row <= Rows; ++row) {
            json values = {row};
            for (const int column : exchange::LabelOrder())
                values.push_back(Amount(recipe, row, column + 1));
            values.push_back("Food " + std::to_string(row));
            values.push_back("1 cup");
            values.push_back(recipe + 1);
            values.push_back(row == 2 ? json(1.5) : json(nullptr));
            rows.push_back(values);
        }
        return json{{"fields", fields}, {"rows", rows}}.dump();
    }

    static void FillListing(exchange::Connection& connection) {
        connection.Once("INSERT INTO listing SELECT SentAt + RecipeID, RecipeID, RecipeName,"
                        " ServingName, PrepTime, 100 FROM recipes WHERE ISPUBLIC = 1"
                        " AND SentAt <> 0");
        for (const auto* word : {"'recipe'", "CAST(PrepTime AS INTEGER) || ''"})
            connection.Once("INSERT INTO words SELECT " + std::string(word) +
                            ", ListedAt, RecipeID FROM listing");
    }

    void ExpectTablesWhole() {
        EXPECT_EQ(Count("SELECT COUNT(*) FROM recipes"), Recipes);
        EXPECT_EQ(Count("SELECT COUNT(*) FROM ingredients"), Recipes * Rows);
        EXPECT_EQ(Count("SELECT COUNT(*) FROM documents"), Recipes - Recipes / Unfinished);
        EXPECT_EQ(Count("SELECT COUNT(*) FROM listing"), 5000 - 65);
        EXPECT_EQ(Count("SELECT COUNT(*) FROM recipes WHERE RecipeName = 'Recipe ' || "
                        "(RecipeID - 1) AND PrepTime = RecipeID - 1 AND RecipeYield = 4.5"
                        " AND Instructions = 'Cook ' || (RecipeID - 1)"
                        " AND EMAILTO = 'bert@example.org'"),
                  Recipes);
        size_t number = 0;
        for (const auto& column : exchange::NutrientColumns())
            EXPECT_EQ(Count("SELECT COUNT(*) FROM ingredients WHERE " + std::string(column.name) +
                            " IS DISTINCT FROM " + AmountIn("(RecipeID - 1)", "ID", ++number)),
                      0)
                << column.name;
        EXPECT_EQ(Count("SELECT COUNT(*) FROM ingredients WHERE QTY = 1.5"), Recipes);
        EXPECT_EQ(Count("SELECT Hits FROM counters WHERE Name = 'mails'"), 7);
        EXPECT_EQ(Cell("SELECT Value FROM settings WHERE Name = 'salt'"),
                  "the salt of the first version");
    }

    /// All of them first: a statement has five seconds, which checking them may exceed.
    std::map<int, std::string> Documents() {
        exchange::Connection connection(Database());
        std::map<int, std::string> documents;
        std::string text;
        int id = 0;
        connection.Each(
            "SELECT RecipeID, IngredientsText FROM documents", [&] { documents[id] = text; },
            soci::into(id), soci::into(text));
        return documents;
    }

    void ExpectDocumentsWhole() {
        const json fields(exchange::FieldNames());
        const auto documents = Documents();
        EXPECT_EQ(documents.size(), static_cast<size_t>(Recipes - Recipes / Unfinished));
        for (const auto& [id, text] : documents) {
            const auto document = json::parse(text);
            ASSERT_EQ(document["fields"], fields);
            ASSERT_EQ(document["rows"].size(), static_cast<size_t>(Rows));
            for (int row = 1; row <= Rows; ++row)
                ExpectRow(document["rows"][static_cast<size_t>(row) - 1], id, row);
        }
    }

    static void ExpectRow(const json& values, int id, int row) {
        for (int number = 1; number <= exchange::NutrientCount; ++number)
            ASSERT_EQ(values[static_cast<size_t>(number)], Amount(id - 1, row, number)) << id;
        ASSERT_EQ(values[0], row);
        ASSERT_EQ(values[32], "Food " + std::to_string(row));
        ASSERT_EQ(values[33], row == 2 ? "1.5 x 1 cup" : "1 cup");
        ASSERT_EQ(values[34], id);
        ASSERT_TRUE(values[35].is_null());
    }

    std::string ColumnAt(int position) {
        return Cell(OnServer() ? "SELECT CAST(column_name AS TEXT) FROM information_schema.columns"
                                 " WHERE table_name = 'ingredients' AND ordinal_position = " +
                                     std::to_string(position + 1)
                               : "SELECT name FROM pragma_table_info('ingredients') WHERE cid = " +
                                     std::to_string(position));
    }
};
ON_BOTH_DATABASES(MigrationTest);

TEST_P(MigrationTest, ARunningExchangeIsTakenOverWithNothingLost) {
    Start();
    ExpectTablesWhole();
    ExpectDocumentsWhole();
    const auto names = exchange::FieldNames();
    for (int position = 1; position <= exchange::NutrientCount; ++position)
        EXPECT_EQ(exchange::Lower(ColumnAt(position)),
                  exchange::Lower(names[static_cast<size_t>(position)]));
    EXPECT_NE(Text("/halvane/community.asp?q=recipe+9999+food").find("recID=10000\">"),
              std::string::npos);
    EXPECT_LT(Text("/halvane/community.asp").find("recID=10000\">"),
              Text("/halvane/community.asp").find("recID=9998\">"));
    const auto page = Text("/halvane/recipe.asp?recID=10000");
    for (const auto* part : {"<h1>Recipe 9999</h1>", "<dd>9999 minutes</dd>", ">Cook 9999<",
                             "Food 2<span class=\"note\">1.5 x 1 cup</span>"})
        EXPECT_NE(page.find(part), std::string::npos) << part;
}

TEST_P(MigrationTest, ARecipeThatWasBegunBeforeIsFinishedAfterwards) {
    Start();
    const Created begun{Unfinished + 1, "token"};
    Add(begun, json::array({Row(5)}));
    Text("/halvane/sendrecipe.asp?recID=" + std::to_string(begun.id));
    const auto rows = json::parse(
        Text("/halvane/api/recipes/" + std::to_string(begun.id) + "/ingredients"))["rows"];
    ASSERT_EQ(rows.size(), 4U);
    ExpectRow(rows[0], begun.id, 1);
    EXPECT_EQ(rows[3][12], 5);
}

TEST_P(MigrationTest, AServerThatIsKilledWhileItMigratesLosesNothing) {
    const Folder folder;
    for (const int milliseconds : {50, 150, 300, 600}) {
        Process server({Server::Program()},
                       {{"HALVANE_EXCHANGE_DATABASE", Database()},
                        {"HALVANE_EXCHANGE_PORT", "0"},
                        {"HALVANE_EXCHANGE_SECRET", "the secret of a server that is killed"}},
                       folder / "log");
        std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
        server.Signal(SIGKILL);
        server.Wait();
    }
    Start();
    ExpectTablesWhole();
    ExpectDocumentsWhole();
}
