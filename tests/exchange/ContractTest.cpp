#include "support/ExchangeTest.h"

#include "exchange/Columns.h"
#include "exchange/Text.h"

#include <algorithm>
#include <limits>
#include <set>

/// What the program relies on when it imports and sends, as docs/exchange-wire.md describes it.
class ContractTest : public ExchangeTest {
protected:
    void SetUp() override { Start(); }
    std::string Path(int id) { return "/halvane/api/recipes/" + std::to_string(id); }
    json Ingredients(int id) { return json::parse(Text(Path(id) + "/ingredients")); }
    httplib::Result AddBody(const Created& recipe, const json& body) {
        return Post(Path(recipe.id) + "/ingredients", body, recipe.token);
    }
    json RowsAfterSending(const Created& recipe) {
        Text("/halvane/sendrecipe.asp?recID=" + std::to_string(recipe.id));
        return Ingredients(recipe.id)["rows"];
    }
    void ExpectRefused(const httplib::Result& reply, int status) {
        ASSERT_TRUE(reply);
        EXPECT_EQ(reply->status, status) << reply->body;
        EXPECT_FALSE(json::parse(reply->body)["reason"].get<std::string>().empty());
    }
};
ON_BOTH_DATABASES(ContractTest);

TEST_P(ContractTest, ASentRecipeIsReadByItsID) {
    const int id = Send();
    const auto recipe = json::parse(Text(Path(id)));
    EXPECT_EQ(recipe, (json{{"RecipeID", id},
                            {"RecipeName", "Lentil soup"},
                            {"ServingName", "1 bowl"},
                            {"RecipeYield", 4},
                            {"PrepTime", 45.5},
                            {"Instructions", "Rinse the lentils.\nSimmer."}}));
}

TEST_P(ContractTest, TheFieldsStandInTheOrderOfTheTable) {
    const char* expected[] = {
        "ID",       "VitaminC",    "VitaminE",  "VitaminB12", "VitaminB6", "VitaminA",
        "SatFat",   "Potassium",   "PolyFat",   "MonoFat",    "Folate",    "Water",
        "Calories", "Protein",     "TotalFat",  "carbs",      "fiber",     "Ash",
        "Calcium",  "Phosphorus",  "Iron",      "Sodium",     "Magnesium", "Panto",
        "Zinc",     "Copper",      "Manganese", "Selenium",   "Thiamin",   "Riboflavin",
        "Niacin",   "Cholesterol", "FoodName",  "Serving",    "RecipeID",  "QTY"};
    EXPECT_EQ(Ingredients(Send())["fields"], json(expected));
}

TEST_P(ContractTest, RowsComeBackAsTheyWereSentInTheirOrder) {
    const int id = Send(Soup(), json::array({Row(0.1), Row(1e-7, "Onions"), Row(123456789.125)}));
    const auto rows = Ingredients(id)["rows"];
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0][12], 0.1);
    EXPECT_EQ(rows[1][12], 1e-7);
    EXPECT_EQ(rows[2][12], 123456789.125);
    EXPECT_EQ(rows[1][1], 1.25);
    EXPECT_EQ(rows[1][31], 31.25);
    EXPECT_EQ(rows[1][32], "Onions");
    EXPECT_EQ(rows[1][33], "1 cup");
    for (const auto& row : rows)
        EXPECT_EQ(row[34], id);
}

TEST_P(ContractTest, RowsOfAProgramThatNamesNoFieldsAreInTheOrderOfOlderPrograms) {
    const char* older[] = {"Calories",    "TotalFat", "SatFat",   "MonoFat",    "PolyFat",
                           "Cholesterol", "Sodium",   "carbs",    "fiber",      "Protein",
                           "Calcium",     "Copper",   "Folate",   "Iron",       "Magnesium",
                           "Manganese",   "Niacin",   "Panto",    "Phosphorus", "Potassium",
                           "Riboflavin",  "Selenium", "Thiamin",  "VitaminA",   "VitaminB12",
                           "VitaminB6",   "VitaminC", "VitaminE", "Zinc",       "Ash",
                           "Water"};
    const auto created = Create();
    ASSERT_EQ(AddBody(created, {{"rows", json::array({Row(1)})}})->status, 201);
    const auto stored = RowsAfterSending(created)[0];
    const auto sent = Row(1);
    const auto names = exchange::FieldNames();
    for (size_t i = 0; i < std::size(older); ++i) {
        const auto place = std::find(names.begin(), names.end(), older[i]) - names.begin();
        EXPECT_EQ(stored[static_cast<size_t>(place)], sent[i + 1]) << older[i];
    }
    EXPECT_EQ(stored[32], "Lentils, raw");
    EXPECT_EQ(stored[33], "1 cup");
}

TEST_P(ContractTest, NamedFieldsMayStandInAnyOrderAndCase) {
    json fields(exchange::FieldNames());
    std::reverse(fields.begin(), fields.end());
    for (auto& field : fields)
        field = exchange::Upper(field.get<std::string>());
    auto row = Row(77, "Onions");
    row.push_back(nullptr);
    row.push_back(nullptr);
    std::reverse(row.begin(), row.end());
    const auto created = Create();
    ASSERT_EQ(AddBody(created, {{"fields", fields}, {"rows", json::array({row})}})->status, 201);
    const auto stored = RowsAfterSending(created)[0];
    EXPECT_EQ(stored[12], 77);
    EXPECT_EQ(stored[31], 31.25);
    EXPECT_EQ(stored[32], "Onions");
}

TEST_P(ContractTest, FieldsThatAreUnknownMissingOrDoubleAreRefused) {
    const json good(exchange::FieldNames());
    auto unknown = good;
    unknown[5] = "VitaminK";
    auto twice = good;
    twice[5] = "vitaminc";
    auto missing = good;
    missing.erase(5);
    auto more = good;
    more.push_back("VitaminK");
    auto number = good;
    number[5] = 7;
    const auto created = Create();
    for (const auto& fields : {unknown, twice, missing, more, number, json("ID"), json(nullptr)})
        ExpectRefused(AddBody(created, {{"fields", fields}, {"rows", json::array({Row(1)})}}), 400);
    EXPECT_EQ(Count("SELECT COUNT(*) FROM ingredients"), 0);
}

TEST_P(ContractTest, AQuantityGoesWithTheServing) {
    struct Case {
        json quantity;
        json serving;
        json read;
    };
    const Case cases[] = {{nullptr, "1 cup", "1 cup"},   {1, "1 cup", "1 cup"},
                          {1.5, "1 cup", "1.5 x 1 cup"}, {0.1, "100 grams", "0.1 x 100 grams"},
                          {2, nullptr, "2 servings"},    {1.5, "", "1.5 servings"},
                          {1, nullptr, nullptr},         {nullptr, "", ""}};
    json rows = json::array();
    json quantities = json::array();
    for (const auto& [quantity, serving, read] : cases) {
        auto row = Row(1);
        row[33] = serving;
        rows.push_back(row);
        quantities.push_back(quantity);
    }
    const auto created = Create();
    ASSERT_EQ(
        AddBody(created,
                {{"fields", exchange::FieldNames()}, {"rows", rows}, {"quantities", quantities}})
            ->status,
        201);
    const auto stored = RowsAfterSending(created);
    for (size_t i = 0; i < std::size(cases); ++i) {
        EXPECT_EQ(stored[i][33], cases[i].read) << cases[i].quantity;
        EXPECT_TRUE(stored[i][35].is_null());
        EXPECT_EQ(stored[i][12], 1) << "the amounts are those of the whole quantity";
    }
}

TEST_P(ContractTest, QuantitiesThatDoNotFitTheRowsAreRefused) {
    const auto created = Create();
    for (const auto& quantities :
         {json::array(), json::array({1, 2}), json::array({"1"}), json(1), json::object()})
        ExpectRefused(
            AddBody(created, {{"rows", json::array({Row(1)})}, {"quantities", quantities}}), 400);
    EXPECT_EQ(Count("SELECT COUNT(*) FROM ingredients"), 0);
}

TEST_P(ContractTest, NullsAndMissingPositionsStayNull) {
    auto row = json::array({17, nullptr, 5});
    const int id = Send(Soup(), json::array({row}));
    const auto stored = Ingredients(id)["rows"][0];
    ASSERT_EQ(stored.size(), 36U);
    EXPECT_TRUE(stored[1].is_null());
    EXPECT_EQ(stored[2], 5);
    for (const size_t position : {3, 31, 32, 33, 35})
        EXPECT_TRUE(stored[position].is_null()) << position;
    EXPECT_EQ(stored[34], id);
}

TEST_P(ContractTest, NullsOfARecipeStayNull) {
    json recipe = {{"EMAILFROM", "anna@example.com"}, {"EMAILTO", "bert@example.org"}};
    for (const auto* name :
         {"RecipeName", "ServingName", "RecipeYield", "PrepTime", "Instructions"})
        recipe[name] = nullptr;
    recipe["ISPUBLIC"] = true;
    const int id = Send(recipe);
    const auto stored = json::parse(Text(Path(id)));
    for (const auto* name :
         {"RecipeName", "ServingName", "RecipeYield", "PrepTime", "Instructions"})
        EXPECT_TRUE(stored[name].is_null()) << name;
    Text("/halvane/recipe.asp?recID=" + std::to_string(id));
    Text("/halvane/community.asp");
}

TEST_P(ContractTest, TheRecipeIDOfARowIsAlwaysThatOfThePath) {
    auto row = Row(10);
    row.push_back(4711);
    row.push_back(2.5);
    const int id = Send(Soup(), json::array({row}));
    EXPECT_EQ(Ingredients(id)["rows"][0][34], id);
    EXPECT_EQ(Ingredients(id)["rows"][0][33], "2.5 x 1 cup");
}

TEST_P(ContractTest, ARecipeWithoutIngredientsIsSentAndHasNoRows) {
    const int id = Send(Soup(), json::array());
    EXPECT_EQ(Ingredients(id)["rows"], json::array());
}

TEST_P(ContractTest, AnUnknownIDIsNotFound) {
    ExpectRefused(Get(Path(123456)), 404);
    ExpectRefused(Get(Path(123456) + "/ingredients"), 404);
}

TEST_P(ContractTest, ARecipeCannotBeReadBeforeItIsSent) {
    const auto created = Create();
    Add(created, json::array({Row(1)}));
    ExpectRefused(Get(Path(created.id)), 404);
    ExpectRefused(Get(Path(created.id) + "/ingredients"), 404);
    Text("/halvane/sendrecipe.asp?recID=" + std::to_string(created.id));
    EXPECT_FALSE(Text(Path(created.id)).empty());
}

TEST_P(ContractTest, TheSameRecipeTwiceIsTwoRecipes) {
    EXPECT_NE(Send(), Send());
    EXPECT_EQ(Count("SELECT COUNT(*) FROM recipes"), 2);
}

TEST_P(ContractTest, IDsAreLargeRandomNumbers) {
    std::set<int> ids;
    for (int i = 0; i < 20; ++i)
        ids.insert(Create().id);
    EXPECT_EQ(ids.size(), 20U);
    EXPECT_GE(*ids.begin(), 2);
    EXPECT_GT(*ids.rbegin(), 1'000'000);
}

TEST_P(ContractTest, OnlyTheCreatorAddsIngredients) {
    const auto one = Create();
    const auto other = Create();
    const auto path = Path(one.id) + "/ingredients";
    const json body = {{"rows", json::array({Row(1)})}};
    ExpectRefused(Post(path, body), 403);
    ExpectRefused(Post(path, body, "wrong"), 403);
    ExpectRefused(Post(path, body, other.token), 403);
    ExpectRefused(Post(Path(99) + "/ingredients", body, one.token), 403);
    EXPECT_EQ(Count("SELECT COUNT(*) FROM ingredients"), 0);
}

TEST_P(ContractTest, ASentRecipeTakesNoMoreIngredients) {
    const auto created = Create();
    Text("/halvane/sendrecipe.asp?recID=" + std::to_string(created.id));
    const json body = {{"rows", json::array({Row(1)})}};
    ExpectRefused(Post(Path(created.id) + "/ingredients", body, created.token), 409);
    EXPECT_EQ(Count("SELECT COUNT(*) FROM ingredients"), 0);
}

TEST_P(ContractTest, IngredientsCanComeInSeveralRequests) {
    const auto created = Create();
    Add(created, json::array({Row(1), Row(2)}));
    Add(created, json::array({Row(3)}));
    Text("/halvane/sendrecipe.asp?recID=" + std::to_string(created.id));
    const auto rows = Ingredients(created.id)["rows"];
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[2][0], 3);
    EXPECT_EQ(rows[2][12], 3);
}

TEST_P(ContractTest, OneBadRowAmongGoodOnesStoresNone) {
    const auto created = Create();
    auto bad = Row(1);
    bad[5] = "much";
    ExpectRefused(Post(Path(created.id) + "/ingredients",
                       {{"rows", json::array({Row(1), bad, Row(2)})}}, created.token),
                  400);
    EXPECT_EQ(Count("SELECT COUNT(*) FROM ingredients"), 0);
    EXPECT_EQ(Count("SELECT IngredientCount FROM recipes"), 0);
}

TEST_P(ContractTest, TooManyIngredientsAreRefusedInOneOrSeveralRequests) {
    Restart({{"ingredients_per_recipe", "3"}});
    const auto created = Create();
    const auto path = Path(created.id) + "/ingredients";
    ExpectRefused(
        Post(path, {{"rows", json::array({Row(1), Row(2), Row(3), Row(4)})}}, created.token), 413);
    Add(created, json::array({Row(1), Row(2)}));
    ExpectRefused(Post(path, {{"rows", json::array({Row(3), Row(4)})}}, created.token), 413);
    Add(created, json::array({Row(3)}));
    EXPECT_EQ(Count("SELECT COUNT(*) FROM ingredients"), 3);
}

TEST_P(ContractTest, TheTablesHoldWhatTheSenderGave) {
    Create(Soup(false));
    EXPECT_EQ(Cell("SELECT EMAILFROM FROM recipes"), "anna@example.com");
    EXPECT_EQ(Cell("SELECT EMAILTO FROM recipes"), "bert@example.org");
    EXPECT_EQ(Count("SELECT ISPUBLIC FROM recipes"), 0);
    EXPECT_EQ(Count("SELECT COUNT(*) FROM recipes WHERE PrepTime = 45.5 AND RecipeYield = 4"), 1);
}

TEST_P(ContractTest, TextsOfEveryKindComeBackToTheLetter) {
    auto recipe = Soup();
    recipe["RecipeName"] = "Crème brûlée \"à l'ancienne\" 🍮 ~^| {{name}} %s \\ '";
    recipe["Instructions"] = "1\t2\r\n3 </script> &amp; :id ?";
    const auto stored = json::parse(Text(Path(Send(recipe))));
    EXPECT_EQ(stored["RecipeName"], recipe["RecipeName"]);
    EXPECT_EQ(stored["Instructions"], recipe["Instructions"]);
}

TEST_P(ContractTest, TextsOfEveryLetterAndLengthComeBackToTheByte) {
    std::string letters;
    for (char c = 0; c < 0x20; ++c)
        letters += c;
    letters += "\x7f\u0080\u009b\u200b\u202e\ufeff\ufffe";
    for (const auto& text : {letters, std::string(300'000, 'x'), std::string(1, '\0'),
                             std::string("\x01"
                                         "0"),
                             std::string(" ")}) {
        auto recipe = Soup();
        for (const auto* field : {"RecipeName", "ServingName", "Instructions"})
            recipe[field] = text;
        auto row = Row(1, text);
        row[33] = text;
        const int id = Send(recipe, json::array({row}));
        const auto stored = json::parse(Text(Path(id)));
        for (const auto* field : {"RecipeName", "ServingName", "Instructions"})
            EXPECT_EQ(stored[field], text) << field;
        EXPECT_EQ(Ingredients(id)["rows"][0][32], text);
        EXPECT_EQ(Ingredients(id)["rows"][0][33], text);
    }
}

TEST_P(ContractTest, EveryFiniteNumberComesBack) {
    using Numbers = std::numeric_limits<double>;
    auto row = Row(Numbers::max());
    row[2] = Numbers::lowest();
    row[3] = Numbers::denorm_min();
    row[4] = Numbers::min();
    row[5] = 0.1 + 0.2;
    row[6] = 9007199254740993.0;
    auto recipe = Soup();
    recipe["RecipeYield"] = Numbers::max();
    recipe["PrepTime"] = 1e15 / 3;
    const int id = Send(recipe, json::array({row}));
    const auto stored = Ingredients(id)["rows"][0];
    for (size_t i = 1; i <= 6; ++i)
        EXPECT_EQ(stored[i].get<double>(), row[i].get<double>()) << i;
    EXPECT_EQ(json::parse(Text(Path(id)))["RecipeYield"], Numbers::max());
    EXPECT_EQ(json::parse(Text(Path(id)))["PrepTime"], 1e15 / 3);
}

TEST_P(ContractTest, TheTokenIsNotStored) {
    const auto created = Create();
    EXPECT_EQ(created.token.size(), 64U);
    EXPECT_EQ(Count("SELECT COUNT(*) FROM recipes WHERE Token = '" + created.token + "'"), 0);
}

TEST_P(ContractTest, WhatWasSentIsThereAfterARestart) {
    const int id = Send();
    Restart();
    EXPECT_EQ(json::parse(Text(Path(id)))["RecipeName"], "Lentil soup");
}
