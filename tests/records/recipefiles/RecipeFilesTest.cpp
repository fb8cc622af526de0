#include "records/recipefiles/RecipeFilesTest.h"

#include "records/archive/TestZip.h"
#include "records/recipefiles/RecipeFiles.h"
#include "runtime/RuntimeError.h"

#include <QFile>

QString RecipeFilesTest::Written(const QString& name, const QByteArray& bytes) const {
    const QString path = Folder() + '/' + name;
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(bytes), bytes.size());
    return path;
}

RecipeDraft RecipeFilesTest::One(const QString& name, const QByteArray& bytes) const {
    const QList<RecipeDraft> recipes = RecipeFiles::Read(Written(name, bytes));
    EXPECT_EQ(recipes.size(), 1);
    return recipes.value(0);
}

QString RecipeFilesTest::Refusal(const QByteArray& bytes) const {
    try {
        RecipeFiles::Read(Written("refused", bytes));
    } catch (const RuntimeError& failure) {
        return failure.Description();
    }
    return {};
}

QStringList RecipeFilesTest::Lines(const RecipeDraft& draft) {
    QStringList lines;
    for (const IngredientLine& line : draft.ingredients)
        lines << (line.isHeading ? "[" + line.text + "]" : line.text);
    return lines;
}

namespace {
using enum RecipeField;

constexpr auto Schema = R"json({"@context": "https://schema.org", "@type": "Recipe",
 "name": "Lentil soup (invented)", "recipeYield": "4 servings", "prepTime": "PT15M",
 "cookTime": "PT0H40M", "totalTime": "P0DT0H55M",
 "recipeIngredient": ["1 1/2 cups brown lentils, rinsed", "2 tbsp olive oil", "salt"],
 "recipeInstructions": [
   {"@type": "HowToSection", "name": "Soup", "itemListElement":
     [{"@type": "HowToStep", "text": "Fry the onion in the oil."}]},
   {"@type": "HowToStep", "text": "Simmer for 40 minutes."}],
 "recipeCategory": "Soup", "keywords": "lentil, winter",
 "nutrition": {
    "@type" : "NutritionInformation",
              "calories" : "212 kcal",
                           "fatContent" : "4.5 g",
                                          "sodiumContent" : "640 mg",
                                                            "servingSize" : "1 bowl"
}
})json";

constexpr auto Mealie = R"json({"name": "Lentil soup (invented)", "slug": "lentil-soup-invented",
 "recipe_yield": "4 servings", "prep_time": "15 minutes", "total_time": "55 minutes",
 "recipe_ingredient": [
   {"title": "Soup", "quantity": 1.5, "unit": {"name": "cup"}, "food": {"name": "brown lentils"},
    "note": "rinsed", "disable_amount": false},
   {"title": null, "quantity": 1.0, "unit": null, "food": null, "note": "2 tbsp olive oil",
    "disable_amount": true}],
 "recipe_instructions": [{"title": "", "text": "Simmer for 40 minutes."}],
 "nutrition": {"calories": "212", "fat_content": "4.5", "sodium_content": "640"},
 "tags": [{"name": "winter", "slug": "winter"}], "org_url": null
})json";

constexpr auto Tandoor = R"json({"name": "Lentil soup (invented)", "description": "",
 "keywords": [{"name": "winter"}], "working_time": 15, "waiting_time": 40, "servings": 4,
 "servings_text": "bowls", "source_url": null,
 "steps": [{"name": "", "instruction": "Fry the onion.", "time": 10, "order": 0,
   "show_as_header": false, "ingredients": [
   {"food": null, "unit": null, "amount": 0, "note": "Soup", "order": 0, "is_header": true,
    "no_amount": true},
   {"food": {"name": "salt"}, "unit": null, "amount": 0, "note": "", "order": 2,
    "is_header": false, "no_amount": true},
   {"food": {"name": "brown lentils", "plural_name": null}, "unit": {"name": "cup"},
    "amount": 1.5, "note": "rinsed", "order": 1, "is_header": false, "no_amount": false}]}],
 "nutrition": null
})json";

constexpr auto OneColumn =
    "MMMMM----- Recipe via Meal-Master (tm) v8.05\r\n"
    " \r\n"
    "      Title: Invented Lentil Soup\r\n"
    " Categories: Soups, Beans\r\n"
    "      Yield: 4 servings\r\n"
    " \r\n"
    "  1 1/2 c  Brown lentils; rinsed\r\n"
    "      2 tb Olive oil\r\n"
    "      1 lg Onion; chopped\r\n"
    "           Salt and pepper to taste,\r\n"
    "           -added at the end\r\n"
    "\r\n"
    "MMMMM------------------------GARNISH------------------------------\r\n"
    "     .5 c  Plain yogurt\r\n"
    "    1/4 c  Parsley leaves\r\n"
    " \r\n"
    "  Heat the oil and cook the onion until it is soft. Add the lentils.\r\n"
    "  Simmer for forty minutes.\r\n"
    " \r\n"
    "MMMMM\r\n";

constexpr auto TwoColumns = "---------- Recipe via Meal-Master (tm) v8.02\n"
                            " \n"
                            "      Title: Invented Bean Salad\n"
                            " Categories: Salads\n"
                            "      Yield: 6 servings\n"
                            " \n"
                            "     15 oz Can of kidney beans;                3 tb Wine vinegar\n"
                            "           -drained                            1 ts Dry mustard\n"
                            "      1 c  Green beans, cooked                      Black pepper\n"
                            " \n"
                            "  Mix all and chill for two hours.\n"
                            " \n"
                            "-----\n";
} // namespace

TEST_F(RecipeFilesTest, JsonLdGivesFieldsLinesAndStepsWithTheirSections) {
    const RecipeDraft recipe = One("a.json", Schema);
    EXPECT_EQ(recipe.Name(), "Lentil soup (invented)");
    EXPECT_EQ(Value(recipe, Yield), 4.0);
    EXPECT_EQ(Value(recipe, Serving), "1 bowl");
    EXPECT_EQ(Value(recipe, Time), 55.0);
    EXPECT_EQ(Value(recipe, Instructions),
              "Soup:\nFry the onion in the oil.\nSimmer for 40 minutes.");
    EXPECT_EQ(Lines(recipe),
              QStringList({"1 1/2 cups brown lentils, rinsed", "2 tbsp olive oil", "salt"}));
    EXPECT_EQ(recipe.kcal, 212);
    EXPECT_TRUE(recipe.remarks.contains("Keywords: lentil, winter"));
}

TEST_F(RecipeFilesTest, JsonLdIsFoundInGraphsArraysAndWebPages) {
    EXPECT_EQ(One("a", QByteArray("[") + Schema + "]").Name(), "Lentil soup (invented)");
    EXPECT_EQ(One("a", QByteArray("{\"@graph\":[{\"@type\":\"Person\"},") + Schema + "]}").Name(),
              "Lentil soup (invented)");
    EXPECT_EQ(One("a", QByteArray("{\"@type\":\"WebPage\",\"mainEntity\":") + Schema + "}").Name(),
              "Lentil soup (invented)");
    EXPECT_EQ(One("a", QByteArray("<html><script type=\"application/ld+json\">") + Schema +
                           "</script></html>")
                  .Name(),
              "Lentil soup (invented)");
}

TEST_F(RecipeFilesTest, ABrokenBlockOfAPageDoesNotHideTheRecipeOfAnother) {
    const QByteArray begin = "<script type=\"application/ld+json\">";
    const QByteArray broken = begin + R"({"@type": "WebSite", "name": "Soups",})" + "</script>";
    const QByteArray sound = begin + Schema + "</script>";
    EXPECT_EQ(One("a", "<html>" + broken + sound).Name(), "Lentil soup (invented)");
    EXPECT_EQ(One("a", "<html>" + sound + broken).Name(), "Lentil soup (invented)");
}

TEST_F(RecipeFilesTest, APageWithBrokenBlocksAloneSaysWhatIsWrong) {
    const QString message =
        Refusal("<html><script type=\"application/ld+json\">{\"name\":}</script>");
    EXPECT_TRUE(message.contains("It is not JSON: ")) << message.toStdString();
}

TEST_F(RecipeFilesTest, JsonLdMayBeOlderOrLoose) {
    const RecipeDraft recipe = One("a", R"({"@type": ["Thing", "Recipe"], "name": "A &amp; B",
        "yield": ["", "12 rolls"], "prepTime": "PT", "cookTime": {"maxValue": "PT1H30M"},
        "ingredients": "1 egg\n2 cups flour",
        "recipeInstructions": "<p>Mix.</p><p>Bake at 200&deg;.</p>"})");
    EXPECT_EQ(recipe.Name(), "A & B");
    EXPECT_EQ(Value(recipe, Yield), 12.0);
    EXPECT_EQ(Value(recipe, Serving), "rolls");
    EXPECT_EQ(Value(recipe, Time), 90.0);
    EXPECT_EQ(Lines(recipe), QStringList({"1 egg", "2 cups flour"}));
    EXPECT_EQ(Value(recipe, Instructions), QStringLiteral("Mix.\nBake at 200\u00B0."));
}

TEST_F(RecipeFilesTest, MealieIsReadInBothSpellings) {
    const RecipeDraft recipe = One("a.json", Mealie);
    EXPECT_EQ(Lines(recipe),
              QStringList({"[Soup]", "1.5 cup brown lentils, rinsed", "2 tbsp olive oil"}));
    EXPECT_EQ(Value(recipe, Yield), 4.0);
    EXPECT_EQ(Value(recipe, Time), 55.0);
    EXPECT_EQ(recipe.kcal, 212);
    QByteArray camel(Mealie);
    camel.replace("recipe_ingredient", "recipeIngredient")
        .replace("recipe_yield", "recipeYield")
        .replace("disable_amount", "disableAmount")
        .replace("total_time", "totalTime")
        .replace("recipe_instructions", "recipeInstructions");
    const RecipeDraft same = One("a.json", camel);
    EXPECT_EQ(Lines(same), Lines(recipe));
    EXPECT_EQ(Value(same, Instructions), "Simmer for 40 minutes.");
}

TEST_F(RecipeFilesTest, ABackupOfMealieIsReadFromItsTables) {
    const RecipeDraft recipe = One("database.json", R"({
        "recipes": [{"id": "r1", "name": "Soup", "recipe_yield": "2", "total_time": "1 hour"}],
        "recipes_ingredients": [
            {"recipe_id": "r1", "position": 1, "quantity": 1, "food_id": "f2", "note": ""},
            {"recipe_id": "r1", "position": 0, "quantity": 2, "unit_id": "u1", "food_id": "f1"},
            {"recipe_id": "r2", "position": 0, "quantity": 9}],
        "ingredient_foods": [{"id": "f1", "name": "water"}, {"id": "f2", "name": "onion"}],
        "ingredient_units": [{"id": "u1", "name": "cup"}],
        "recipe_instructions": [{"recipe_id": "r1", "position": 0, "text": "Boil."}],
        "recipe_nutrition": [{"recipe_id": "r1", "calories": "20"}], "notes": []})");
    EXPECT_EQ(Lines(recipe), QStringList({"2 cup water", "1 onion"}));
    EXPECT_EQ(Value(recipe, Instructions), "Boil.");
    EXPECT_EQ(Value(recipe, Time), 60.0);
    EXPECT_EQ(recipe.kcal, 20);
}

TEST_F(RecipeFilesTest, TandoorIsReadInTheOrderOfItsSteps) {
    const RecipeDraft recipe = One("recipe.json", Tandoor);
    EXPECT_EQ(Lines(recipe), QStringList({"[Soup]", "1.5 cup brown lentils, rinsed", "salt"}));
    EXPECT_EQ(Value(recipe, Yield), 4.0);
    EXPECT_EQ(Value(recipe, Serving), "bowls");
    EXPECT_EQ(Value(recipe, Time), 55.0);
    EXPECT_EQ(Value(recipe, Instructions), "Fry the onion.");
}

TEST_F(RecipeFilesTest, AZipOfZipsIsReadWithoutItsPictures) {
    const QByteArray one = TestZip({{"recipe.json", Tandoor}, {"image.jpg", "no picture"}});
    const QList<RecipeDraft> recipes = RecipeFiles::Read(Written("all", TestZip({{"1.zip", one}})));
    ASSERT_EQ(recipes.size(), 1);
    EXPECT_EQ(recipes[0].Name(), "Lentil soup (invented)");
}

TEST_F(RecipeFilesTest, AZipThatGrowsTooMuchIsRefused) {
    EXPECT_TRUE(Refusal(TestZip({{"recipe.json", QByteArray(50 << 20, '[')}}))
                    .contains("unpacks to more than"));
}

TEST_F(RecipeFilesTest, MealMasterInOneColumn) {
    const RecipeDraft recipe = One("a.mmf", OneColumn);
    EXPECT_EQ(recipe.Name(), "Invented Lentil Soup");
    EXPECT_EQ(Value(recipe, Yield), 4.0);
    EXPECT_EQ(Lines(recipe),
              QStringList({"1 1/2 c Brown lentils; rinsed", "2 tb Olive oil", "1 lg Onion; chopped",
                           "Salt and pepper to taste, added at the end", "[GARNISH]",
                           ".5 c Plain yogurt", "1/4 c Parsley leaves"}));
    EXPECT_EQ(Value(recipe, Instructions),
              "Heat the oil and cook the onion until it is soft. Add the lentils.\n"
              "Simmer for forty minutes.");
    EXPECT_EQ(recipe.remarks, QStringList("Category: Soups, Beans"));
}

TEST_F(RecipeFilesTest, MealMasterInTwoColumnsIsReadDownTheLeftOneFirst) {
    const RecipeDraft recipe = One("a.mmf", TwoColumns);
    EXPECT_EQ(Lines(recipe),
              QStringList({"15 oz Can of kidney beans; drained", "1 c Green beans, cooked",
                           "3 tb Wine vinegar", "1 ts Dry mustard", "Black pepper"}));
    EXPECT_EQ(Value(recipe, Instructions), "Mix all and chill for two hours.");
}

TEST_F(RecipeFilesTest, AMealMasterFileHasManyRecipesAndOtherText) {
    const QByteArray both = QByteArray("From a list of mails\n") + OneColumn + "Bye\n" + TwoColumns;
    EXPECT_EQ(RecipeFiles::Read(Written("a.txt", both)).size(), 2);
}

TEST_F(RecipeFilesTest, OldEncodingsAreTold) {
    QByteArray dos(OneColumn);
    EXPECT_EQ(One("a", QByteArray(dos).replace("Onion", "Cr\x8Ame")).ingredients[2].text,
              QStringLiteral("1 lg Cr\u00E8me; chopped"));
    EXPECT_EQ(One("a", QByteArray(dos).replace("Onion", "Cr\xE8me")).ingredients[2].text,
              QStringLiteral("1 lg Cr\u00E8me; chopped"));
}

TEST_F(RecipeFilesTest, MarkdownOfOthersIsRead) {
    const RecipeDraft recipe =
        One("a.md", "# Bread\r\n\r\nServes: 8 slices\r\n**Time:** 2 hours\r\n\r\n"
                    "A good one.\r\n\r\n## Ingredients\r\n\r\n- 2 cups flour\r\n"
                    "* 1 tsp salt\r\n\r\n## Directions\r\n\r\n1. Mix.\r\n"
                    "2. Bake.\r\n\r\n## Notes\r\n\r\nKeeps a week.\r\n");
    EXPECT_EQ(recipe.Name(), "Bread");
    EXPECT_EQ(Value(recipe, Yield), 8.0);
    EXPECT_EQ(Value(recipe, Serving), "slices");
    EXPECT_EQ(Value(recipe, Time), 120.0);
    EXPECT_EQ(Lines(recipe), QStringList({"2 cups flour", "1 tsp salt"}));
    EXPECT_EQ(Value(recipe, Instructions), "1. Mix.\n2. Bake.");
    EXPECT_EQ(recipe.remarks, QStringList({"A good one.", "Notes:\nKeeps a week."}));
}

TEST_F(RecipeFilesTest, WhatARecipeLacksIsFilledInAndWhatTheScreenRefusesIsReplaced) {
    const RecipeDraft recipe = One("a", R"({"@type": "Recipe", "name": "A~B^C"})");
    EXPECT_EQ(recipe.Name(), "A-B-C");
    EXPECT_EQ(Value(recipe, Yield), 1.0);
    EXPECT_EQ(Value(recipe, Serving), "1 serving");
    const auto steps = R"({"@type": "Recipe", "recipeInstructions": "~1 hour | or two"})";
    EXPECT_EQ(Value(One("a", steps), Instructions), "-1 hour / or two");
    EXPECT_EQ(One("a", R"({"@type": "Recipe"})").Name(), "Recipe without a name");
}

TEST_F(RecipeFilesTest, BadFilesAreRefusedWithTheirNames) {
    const QString place = Folder() + "/refused: ";
    EXPECT_TRUE(Refusal("{\"@type\": \"Recipe\", ").startsWith(place + "It is not JSON: "));
    EXPECT_TRUE(Refusal(QByteArray(100'000, '[')).startsWith(place + "It is not JSON"));
    EXPECT_EQ(Refusal("{}"), place + "There is no recipe in it that can be read.");
    EXPECT_EQ(Refusal(""), place + "There is no recipe in it that can be read.");
    EXPECT_EQ(Refusal(QByteArray(20 << 20, 'x')),
              place + "There is no recipe in it that can be read.");
    EXPECT_EQ(Refusal(QByteArray("\x00\xFF\xFE\x80", 4)),
              place + "There is no recipe in it that can be read.");
    EXPECT_TRUE(Refusal("PK\x03\x04 and no more").startsWith(place));
}

TEST_F(RecipeFilesTest, ARecipeOfThousandsOfIngredientsIsRefused) {
    const QByteArray lines = QByteArray("\"salt\",").repeated(1000);
    EXPECT_TRUE(Refusal("{\"@type\": \"Recipe\", \"recipeIngredient\": [" + lines + "\"salt\"]}")
                    .endsWith("A recipe has at most 1000 ingredients."));
}

TEST_F(RecipeFilesTest, AnyPartOfAFileIsReadOrRefused) {
    for (const QByteArray& whole : {QByteArray(Schema), QByteArray(Mealie), QByteArray(Tandoor),
                                    QByteArray(OneColumn), QByteArray(TwoColumns)})
        for (qsizetype length = 0; length < whole.size(); length += 7)
            Refusal(whole.left(length));
}
