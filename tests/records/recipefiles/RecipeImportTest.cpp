#include "records/recipefiles/RecipeImport.h"

#include "foods/ScaledFood.h"
#include "model/Nutrients.h"
#include "recipes/RecipeBook.h"
#include "records/RecordsChange.h"
#include "records/RecordsReading.h"
#include "records/recipefiles/RecipeFiles.h"
#include "records/recipefiles/RecipeFilesTest.h"
#include "records/recipefiles/RecipeStore.h"
#include "runtime/RuntimeError.h"

#include <QRandomGenerator>

#include <limits>

namespace {
constexpr auto Soup = R"({"@type": "Recipe", "name": "Soup", "recipeYield": "2",
 "recipeIngredient": ["1 cup lentils", "1 onion", "salt to taste"],
 "recipeInstructions": "Boil.", "url": "https://example.org/soup",
 "nutrition": {"calories": "350 kcal"}})";
constexpr qint32 RawLentils = 20704;
} // namespace

class RecipeImportTest : public RecipeFilesTest {
protected:
    RecipeImport::Options Of(const QByteArray& bytes) const { return {{Written("r.json", bytes)}}; }
    RecipeImport::Result Import(const RecipeImport::Options& options) const {
        return RecipeImport::Run(Records(), options);
    }
    RecipeImport::Result Accept(const QByteArray& bytes) const {
        RecipeImport::Options options = Of(bytes);
        options.accept = true;
        return Import(options);
    }
    QList<RecipeDraft> Stored() const {
        const RecordsReading records(Records());
        return RecipeStore::All();
    }
    void Keep(const RecipeDraft& draft) const {
        RecordsChange change(Records());
        RecipeStore::Append(draft);
        change.Commit();
    }
    void Forget() const {
        RecordsChange change(Records());
        for (const NamedKey& one : RecipeBook::Names()) {
            for (const Ingredient& ingredient : RecipeBook::Ingredients(one.key))
                RecipeBook::RemoveIngredient(ingredient.ID);
            RecipeBook::DeleteRecipe(one.key);
        }
        change.Commit();
    }
    QByteArray Export(RecipeFiles::Format format) const {
        return RecipeFiles::Write(Stored(), format);
    }
};

TEST_F(RecipeImportTest, WithoutADecisionNothingIsTakenAndTheFoodsAreShown) {
    const RecipeImport::Result result = Import(Of(Soup));
    EXPECT_TRUE(result.undecided);
    EXPECT_TRUE(Stored().isEmpty());
    const auto& proposals = result.recipes[0].proposals;
    ASSERT_EQ(proposals.size(), 3);
    ASSERT_TRUE(proposals[0].match);
    EXPECT_EQ(proposals[0].match->key, RawLentils);
    EXPECT_GT(proposals[0].kcal, 500);
    EXPECT_FALSE(proposals[0].taken);
    ASSERT_TRUE(proposals[1].match);
    EXPECT_FALSE(proposals[1].match->quantity);
}

TEST_F(RecipeImportTest, AcceptedFoodsAreTakenAndOtherLinesStayAsText) {
    const RecipeImport::Result result = Accept(Soup);
    EXPECT_EQ(result.added, 1);
    const QList<RecipeDraft> stored = Stored();
    ASSERT_EQ(stored.size(), 1);
    ASSERT_EQ(stored[0].ingredients.size(), 1);
    EXPECT_EQ(stored[0].ingredients[0].finished->name, "Lentils, raw");
    EXPECT_EQ(stored[0].ingredients[0].finished->quantity, 1.0);
    EXPECT_EQ(Value(stored[0], RecipeField::Instructions),
              "Ingredients without amounts:\n- 1 onion\n- salt to taste\n\nBoil.\n\n"
              "Source: https://example.org/soup\nNutrition of a serving: calories 350 kcal");
    EXPECT_EQ(result.recipes[0].fileKcal, 350);
    EXPECT_EQ(result.recipes[0].kcal, result.recipes[0].proposals[0].kcal / 2);
}

TEST_F(RecipeImportTest, ASecondImportAddsNothing) {
    Accept(Soup);
    const RecipeImport::Result again = Accept(Soup);
    EXPECT_EQ(again.added, 0);
    EXPECT_TRUE(again.recipes[0].isThere);
    EXPECT_EQ(Stored().size(), 1);
}

TEST_F(RecipeImportTest, ALineCanBeChosenOrLeft) {
    RecipeImport::Options options = Of(Soup);
    options.accept = true;
    options.choices = {*IngredientChoice::Of("1.1=text"), *IngredientChoice::Of("1.2=19122:b:0.5")};
    Import(options);
    const QList<RecipeDraft> stored = Stored();
    ASSERT_EQ(stored.size(), 1);
    ASSERT_EQ(stored[0].ingredients.size(), 1);
    EXPECT_EQ(stored[0].ingredients[0].finished->name, "Onions, raw");
    EXPECT_EQ(stored[0].ingredients[0].finished->serving, "1 cup, sliced");
    EXPECT_EQ(stored[0].ingredients[0].finished->quantity, 0.5);
}

TEST_F(RecipeImportTest, LinesCanAllStayAsText) {
    RecipeImport::Options options = Of(Soup);
    options.keepText = true;
    EXPECT_EQ(Import(options).added, 1);
    EXPECT_TRUE(Stored()[0].ingredients.isEmpty());
}

TEST_F(RecipeImportTest, ADryRunChangesNothing) {
    RecipeImport::Options options = Of(Soup);
    options.accept = true;
    options.dryRun = true;
    EXPECT_EQ(Import(options).added, 1);
    EXPECT_TRUE(Stored().isEmpty());
}

TEST_F(RecipeImportTest, ChoicesOfWhatIsNotThereAreRefusedAndNothingIsAdded) {
    RecipeImport::Options options = Of(Soup);
    for (const char* choice :
         {"1.4=text", "2.1=text", "0.1=text", "1.1=99999999:A:1", "1.1=20704:A:500"}) {
        options.choices = {*IngredientChoice::Of(choice)};
        EXPECT_THROW(Import(options), RuntimeError) << choice;
    }
    EXPECT_TRUE(Stored().isEmpty());
}

TEST_F(RecipeImportTest, ADamagedFileAmongOthersAddsNothing) {
    RecipeImport::Options options = Of(Soup);
    options.accept = true;
    options.files << Written("bad.json", "{");
    EXPECT_THROW(Import(options), RuntimeError);
    EXPECT_TRUE(Stored().isEmpty());
}

TEST(IngredientChoiceTest, OnlyItsFormIsRead) {
    EXPECT_TRUE(IngredientChoice::Of("12.3=16329:B:1.5"));
    for (const char* text :
         {"", "1=text", "1.2=", "1.2=5:C:1", "1.2=5:A", "1.2=5:A:-1", "1.2=5:A:1e9"})
        EXPECT_FALSE(IngredientChoice::Of(text)) << text;
}

// ---- our own files, out and in again ----

class OwnRecipeFilesTest : public RecipeImportTest {
protected:
    static QVariant AnyText(QRandomGenerator& random) {
        static const QString letters =
            QStringLiteral("aB \n\r\t|\\#-_*&<>\"'~^{}[]:;,.0\u00E9\u4E2D");
        if (random.bounded(6) == 0)
            return {};
        QString text(random.bounded(20), u' '); // never null
        for (QChar& c : text)
            c = letters[random.bounded(letters.size())];
        return text;
    }
    static QVariant AnyNumber(QRandomGenerator& random) {
        switch (random.bounded(5)) {
        case 0:
            return {};
        case 1:
            return double(random.bounded(100));
        case 2:
            return random.generateDouble() * 1e-7;
        default:
            return random.generateDouble() * 1e5;
        }
    }
    static RecipeDraft AnyRecipe(QRandomGenerator& random) {
        RecipeDraft draft;
        for (const RecipeFieldInfo& field : RecipeFields())
            draft.values[field.id] = field.isNumber ? AnyNumber(random) : AnyText(random);
        for (int i = random.bounded(1, 5); i > 0; --i) {
            FinishedIngredient ingredient{AnyText(random), AnyText(random), AnyNumber(random), {}};
            for (int n = 0; n < NutrientCount; ++n)
                ingredient.amounts << AnyNumber(random);
            draft.ingredients.append({{}, ingredient});
        }
        return draft;
    }
    void ExpectTheSameAfterARoundTrip(RecipeFiles::Format format) {
        QRandomGenerator random(7);
        for (int round = 0; round < 20; ++round) {
            for (int i = 0; i < 3; ++i)
                Keep(AnyRecipe(random));
            const QByteArray before = Export(format);
            Forget();
            EXPECT_EQ(Import({{Written("out", before)}}).added, 3);
            EXPECT_EQ(Export(format), before);
            EXPECT_EQ(Import({{Written("out", before)}}).added, 0);
            Forget();
        }
    }
};

TEST_F(OwnRecipeFilesTest, MarkdownComesBackTheSameToTheByte) {
    ExpectTheSameAfterARoundTrip(RecipeFiles::Format::Markdown);
}

TEST_F(OwnRecipeFilesTest, JsonLdComesBackTheSameToTheByte) {
    ExpectTheSameAfterARoundTrip(RecipeFiles::Format::JsonLd);
}

TEST_F(OwnRecipeFilesTest, ARecipeWithoutIngredientsComesBack) {
    RecipeDraft draft;
    draft.values[RecipeField::Name] = "Water";
    draft.values[RecipeField::Yield] = 0.0;
    draft.values[RecipeField::Instructions] = "Pour.\n\n# Not a heading\n\\ either\n";
    Keep(draft);
    for (const RecipeFiles::Format format :
         {RecipeFiles::Format::Markdown, RecipeFiles::Format::JsonLd}) {
        const QByteArray out = Export(format);
        Forget();
        Import({{Written("out", out)}});
        EXPECT_EQ(Export(format), out);
    }
}

TEST_F(OwnRecipeFilesTest, TheNutritionIsThatOfAServing) {
    Accept(Soup);
    const QByteArray out = Export(RecipeFiles::Format::JsonLd);
    EXPECT_TRUE(out.contains("\"calories\": \"338.9 kcal\"")) << out.toStdString();
    EXPECT_TRUE(out.contains("\"recipeYield\": \"2 servings\""));
    EXPECT_TRUE(out.contains("\"1 x 1 cup, Lentils, raw\""));
}

TEST_F(OwnRecipeFilesTest, MarkdownIsReadableByPeople) {
    Accept(Soup);
    const QByteArray out = Export(RecipeFiles::Format::Markdown);
    EXPECT_TRUE(out.startsWith("# Soup\n\nYield: 2\nServing: 1 serving\n\n## Ingredients\n\n"
                               "- 1 x 1 cup, Lentils, raw\n\n## Instructions\n\n"))
        << out.toStdString();
}
