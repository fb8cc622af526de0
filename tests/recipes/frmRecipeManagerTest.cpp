#include "recipes/RecipeManagerTest.h"

#include "recipes/ui/ucIngredients.h"
#include "runtime/AppState.h"
#include "store/Connection.h"
#include "toolkit/ucAte.h"
#include "toolkit/ucBox.h"
#include "toolkit/ucScroll.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>
#include <QTimer>

#include <SQLiteCpp/SQLiteCpp.h>

namespace {

const QString Placeholder = "(enter preparation instructions here...)";
const QStringList Labels = {"aaRecipeName", "aaCals", "lblRecYield", "lblServingDesc",
                            "aaTotalTime"};

} // namespace

class frmRecipeManagerTest : public RecipeManagerTest {
protected:
    ucScroll* Bar() { return Find<ucScroll>(screen.get(), "vsInstructions"); }
    QString Shown(const QString& label) {
        return Find(screen.get(), label)->property("Caption").toString();
    }
    bool Visible(const QString& name) { return Find(screen.get(), name)->isVisible(); }
    QStringList IngredientNames() {
        QStringList names;
        for (const ucAte* line : Find(screen.get(), "ucING")->findChildren<ucAte*>())
            if (line->isVisible())
                names << line->FoodName();
        return names;
    }

    qint32 Recipe(const QString& name, const QString& serving = "1 bowl", double yield = 4,
                  double time = 45, const QString& instructions = "Stir.") {
        const qint32 id = FoodsTest::AddRecipe(name, serving);
        SQLite::Statement update(UserDB().Raw(), "UPDATE Recipes SET RecipeYield = ?, PrepTime = "
                                                 "?, Instructions = ? WHERE RecipeID = ?");
        update.bind(1, yield);
        update.bind(2, time);
        update.bind(3, instructions.toStdString());
        update.bind(4, id);
        update.exec();
        return id;
    }
    QString Stored(qint32 id, const QString& column) {
        return Users("SELECT " + column + " FROM Recipes WHERE RecipeID = " + QString::number(id))
            .toString();
    }

    void Type(const QString& entry, const QString& text) {
        Entry(entry)->setFocus();
        Entry(entry)->selectAll();
        text.isEmpty() ? QTest::keyClick(Entry(entry), Qt::Key_Delete)
                       : QTest::keyClicks(Entry(entry), text);
    }
    void Paste(QWidget* field, const QString& text) {
        QApplication::clipboard()->setText(text);
        field->setFocus();
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(field, Qt::Key_V, Qt::ControlModifier);
    }
    void FillIn(const QString& name, const QString& yield, const QString& serving,
                const QString& time, const QString& instructions) {
        Entry("txtName")->setText(name);
        Entry("txtYield")->setText(yield);
        Entry("txtServing")->setText(serving);
        Entry("txtTime")->setText(time);
        Instructions()->setPlainText(instructions);
    }
    /// All stored recipes as one text.
    QString AllStored() {
        QString all;
        for (const QVariantList& row : Rows(UserDB(), "SELECT * FROM Recipes"))
            for (const QVariant& value : row)
                all += value.toString() + u'\n';
        return all;
    }
    void ExpectRefused(const QString& message) {
        const QString before = AllStored();
        ExpectAlert(message);
        Press("cmdEdit");
        EXPECT_EQ(AllStored(), before);
        EXPECT_EQ(Button("cmdEdit")->Caption(), "Save Changes");
        EXPECT_TRUE(Visible("txtName"));
    }

    void ExpectEmptyState() {
        EXPECT_EQ(screen->CurrentRecipe(), -1);
        EXPECT_TRUE(List()->isEnabled());
        EXPECT_TRUE(Button("cmdNew")->Enabled());
        EXPECT_FALSE(Button("cmdEdit")->Enabled());
        EXPECT_EQ(Button("cmdEdit")->Caption(), "Edit Recipe");
        EXPECT_FALSE(Button("cmdDelete")->Enabled());
        EXPECT_FALSE(Button("cmdSend")->Enabled());
        for (const QString& label : Labels)
            EXPECT_EQ(Shown(label), "") << label.toStdString();
        EXPECT_EQ(Instructions()->toPlainText(), "");
        EXPECT_EQ(IngredientNames(), QStringList());
    }
    void ExpectViewing() {
        EXPECT_NE(screen->CurrentRecipe(), -1);
        EXPECT_TRUE(List()->isEnabled());
        for (const char* button : {"cmdNew", "cmdImport", "cmdEdit", "cmdDelete", "cmdSend"}) {
            EXPECT_TRUE(Button(button)->Enabled()) << button;
            EXPECT_EQ(Button(button)->State(), 1) << button;
        }
        EXPECT_EQ(Button("cmdEdit")->Caption(), "Edit Recipe");
        EXPECT_FALSE(Visible("cmdIngreds"));
        EXPECT_TRUE(Instructions()->isReadOnly());
        for (const QString& label : Labels)
            EXPECT_TRUE(Visible(label)) << label.toStdString();
        for (const QString& entry : entries)
            EXPECT_FALSE(Visible(entry)) << entry.toStdString();
    }
    void ExpectEditing() {
        EXPECT_FALSE(List()->isEnabled());
        for (const char* button : {"cmdNew", "cmdImport", "cmdDelete", "cmdSend"}) {
            EXPECT_FALSE(Button(button)->Enabled()) << button;
            EXPECT_EQ(Button(button)->State(), 4) << button;
        }
        EXPECT_TRUE(Button("cmdEdit")->Enabled());
        EXPECT_EQ(Button("cmdEdit")->Caption(), "Save Changes");
        EXPECT_TRUE(Visible("cmdIngreds"));
        EXPECT_FALSE(Instructions()->isReadOnly());
        for (const QString& label : Labels)
            EXPECT_FALSE(Visible(label)) << label.toStdString();
        for (const QString& entry : entries)
            EXPECT_TRUE(Visible(entry)) << entry.toStdString();
    }
};

TEST_F(frmRecipeManagerTest, ControlsCarryTheirCaptionsAndTips) {
    Open();
    EXPECT_EQ(screen->Title(), "Recipe Manager");
    EXPECT_EQ(Find<ucBox>(screen.get(), "ucBox1")->Caption(), "Recipe List");
    EXPECT_EQ(List()->toolTip(), "Select a recipe to edit or delete");
    const QStringList rows[] = {
        {"cmdImport", "Import", "Import a recipe from the web"},
        {"cmdNew", "New", "Create a new recipe"},
        {"cmdEdit", "Edit Recipe", "Edit the current recipe"},
        {"cmdDelete", "Delete Recipe", "Delete the current recipe"},
        {"cmdSend", "Send to Friend", "Send the current recipe to a friend"},
        {"cmdIngreds", "Ingredients", "Add ingredients to this recipe"},
        {"cmdDone", "Done", ""}};
    for (const QStringList& row : rows) {
        EXPECT_EQ(Button(row[0])->Caption(), row[1]);
        EXPECT_EQ(Button(row[0])->toolTip(), row[2]);
    }
    const QStringList texts[] = {{"Label1", "Recipe yield:"},
                                 {"Label2", "servings"},
                                 {"Label3", "Serving size:"},
                                 {"Label5", "Total Time:"},
                                 {"Label6", "minutes"}};
    for (const QStringList& row : texts)
        EXPECT_EQ(Find(screen.get(), row[0])->property("text"), row[1]);
    EXPECT_EQ(Shown("aaPrepare"), "Preparation Instructions");
    EXPECT_EQ(Shown("aaIngredientsLBL"), "Ingredients");
}

TEST_F(frmRecipeManagerTest, IsEmptyUntilTheRecipesAreListed) {
    Recipe("Soup");
    screen = std::make_unique<frmRecipeManager>(&window);
    EXPECT_EQ(screen->CurrentRecipe(), -1);
    EXPECT_EQ(List()->ListCount(), 0);
    EXPECT_EQ(Shown("aaCals"), "Calories:");
    for (const char* button : {"cmdEdit", "cmdDelete", "cmdSend"})
        EXPECT_FALSE(Button(button)->Enabled());
}

TEST_F(frmRecipeManagerTest, NoRecipesLeaveTheScreenEmptyWithoutASelection) {
    Open();
    ExpectEmptyState();
    EXPECT_EQ(List()->ListCount(), 0);
    EXPECT_EQ(List()->ListIndex(), -1);
}

TEST_F(frmRecipeManagerTest, ShowsTheFirstRecipeAsSoonAsItOpens) {
    const qint32 id = Recipe("Lentil soup", "1 bowl", 4, 45, "Rinse the lentils.");
    Recipe("Melon salad");
    AddIngredients(id, 3, 400);
    Open();
    ExpectViewing();
    EXPECT_EQ(screen->CurrentRecipe(), id);
    EXPECT_EQ(List()->ListIndex(), 0);
    EXPECT_EQ(Shown("aaRecipeName"), "Lentil soup");
    EXPECT_EQ(Shown("lblRecYield"), "4");
    EXPECT_EQ(Shown("lblServingDesc"), "1 bowl");
    EXPECT_EQ(Shown("aaTotalTime"), "45");
    EXPECT_EQ(Shown("aaCals"), "Calories: 300 per serving");
    EXPECT_EQ(Instructions()->toPlainText(), "Rinse the lentils.");
    EXPECT_EQ(IngredientNames(), QStringList({"Food 1", "Food 2", "Food 3"}));
}

TEST_F(frmRecipeManagerTest, ListsRecipesInTheOrderThatAPersonExpects) {
    const qint32 zebra = Recipe("Zebra");
    Recipe("éclair");
    Recipe("Äpfel");
    const qint32 apple = Recipe("apple");
    Open();
    EXPECT_EQ(List()->List(), QStringList({"apple", "Äpfel", "éclair", "Zebra"}));
    EXPECT_EQ(List()->ItemData(0), apple);
    EXPECT_EQ(List()->ItemData(3), zebra);
}

TEST_F(frmRecipeManagerTest, RecipesOfOneNameStandInTheOrderOfCreation) {
    const qint32 first = Recipe("Soup");
    const qint32 second = Recipe("soup");
    const qint32 third = Recipe("Soup");
    Open();
    EXPECT_EQ(List()->ItemData(0), first);
    EXPECT_EQ(List()->ItemData(1), second);
    EXPECT_EQ(List()->ItemData(2), third);
}

TEST_F(frmRecipeManagerTest, ARenamedRecipeStaysChosenAtItsNewPlace) {
    const qint32 id = Recipe("Apple pie");
    Recipe("Middle");
    Open();
    Press("cmdEdit");
    Type("txtName", "Zebra cake");
    Press("cmdEdit");
    EXPECT_EQ(List()->List(), QStringList({"Middle", "Zebra cake"}));
    EXPECT_EQ(screen->CurrentRecipe(), id);
    EXPECT_EQ(List()->ListIndex(), 1);
}

TEST_F(frmRecipeManagerTest, ARecipeWithoutANameStillHasALine) {
    const qint32 id = Recipe("gone");
    UserDB().Raw().exec("UPDATE Recipes SET RecipeName = NULL");
    Open();
    EXPECT_EQ(List()->List(), QStringList(""));
    EXPECT_EQ(screen->CurrentRecipe(), id);
}

TEST_F(frmRecipeManagerTest, ClickOnALineShowsThatRecipe) {
    Recipe("Bean soup");
    const qint32 salad = Recipe("Salad", "1 plate", 2, 10, "Toss.");
    AddIngredients(salad, 1, 90);
    Open();
    Click(List()->viewport(), List()->visualRect(List()->model()->index(1, 0)).center());
    EXPECT_EQ(screen->CurrentRecipe(), salad);
    EXPECT_EQ(Shown("aaRecipeName"), "Salad");
    EXPECT_EQ(Shown("aaCals"), "Calories: 45 per serving");
    EXPECT_EQ(IngredientNames(), QStringList("Food 1"));
}

TEST_F(frmRecipeManagerTest, ArrowKeysWalkTheList) {
    Recipe("Bean soup");
    Recipe("Salad");
    Open();
    QTest::keyClick(List(), Qt::Key_Down);
    EXPECT_EQ(Shown("aaRecipeName"), "Salad");
}

TEST_F(frmRecipeManagerTest, RecipeWithoutIngredientsShowsNoCalories) {
    Recipe("Soup");
    Open();
    EXPECT_EQ(Shown("aaCals"), "Calories: --");
}

TEST_F(frmRecipeManagerTest, NullsEmptyNameAndInstructionsAndKeepTheOtherLabels) {
    Recipe("Bean soup", "1 bowl", 4, 45, "Stir.");
    Recipe("Salad");
    UserDB().Raw().exec("UPDATE Recipes SET RecipeName = NULL, Instructions = NULL, ServingName = "
                        "NULL, RecipeYield = NULL, PrepTime = NULL WHERE RecipeName = 'Salad'");
    Open();
    List()->SetListIndex(1);
    List()->SetListIndex(0);
    EXPECT_EQ(Shown("aaRecipeName"), "");
    EXPECT_EQ(Instructions()->toPlainText(), "");
    EXPECT_EQ(Shown("lblRecYield"), "4");
    EXPECT_EQ(Shown("lblServingDesc"), "1 bowl");
    EXPECT_EQ(Shown("aaTotalTime"), "45");
}

TEST_F(frmRecipeManagerTest, FractionsShowInTheirShortestForm) {
    Recipe("Soup", "1 bowl", 2.5, 0.1);
    Open();
    EXPECT_EQ(Shown("lblRecYield"), "2.5");
    EXPECT_EQ(Shown("aaTotalTime"), "0.1");
}

TEST_F(frmRecipeManagerTest, ListingKeepsTheChosenPlace) {
    Recipe("Apple");
    Recipe("Bread");
    Recipe("Cake");
    Open();
    List()->SetListIndex(1);
    screen->ListRecipes();
    EXPECT_EQ(List()->ListIndex(), 1);
    EXPECT_EQ(Shown("aaRecipeName"), "Bread");
}

TEST_F(frmRecipeManagerTest, ListingAShorterListChoosesItsLastLine) {
    Recipe("Apple");
    Recipe("Bread");
    Recipe("Cake");
    Open();
    List()->SetListIndex(2);
    UserDB().Raw().exec("DELETE FROM Recipes WHERE RecipeName <> 'Apple'");
    screen->ListRecipes();
    EXPECT_EQ(List()->ListIndex(), 0);
    EXPECT_EQ(Shown("aaRecipeName"), "Apple");
}

TEST_F(frmRecipeManagerTest, FailedReadsOfTheListAreIgnored) {
    Recipe("Soup");
    Open();
    UserDB().Raw().exec("ALTER TABLE Recipes RENAME TO Elsewhere");
    screen->ListRecipes();
    ExpectEmptyState();
    UserDB().Raw().exec("ALTER TABLE Elsewhere RENAME TO Recipes");
}

// Editing

TEST_F(frmRecipeManagerTest, EditShowsEntriesInThePlacesOfTheLabels) {
    const qint32 id = Recipe("Soup", "1 bowl", 4, 45, "Stir.");
    AddIngredients(id, 2);
    Open();
    Press("cmdEdit");
    ExpectEditing();
    EXPECT_EQ(Entry("txtName")->text(), "Soup");
    EXPECT_EQ(Entry("txtYield")->text(), "4");
    EXPECT_EQ(Entry("txtServing")->text(), "1 bowl");
    EXPECT_EQ(Entry("txtTime")->text(), "45");
    EXPECT_EQ(Instructions()->toPlainText(), "Stir.");
    EXPECT_EQ(IngredientNames().size(), 2);
    EXPECT_TRUE(Entry("txtName")->hasFocus());
    for (const auto& [entry, label] :
         {std::pair("txtName", "aaRecipeName"), std::pair("txtYield", "lblRecYield"),
          std::pair("txtServing", "lblServingDesc"), std::pair("txtTime", "aaTotalTime")}) {
        const QRect field = Entry(entry)->geometry();
        const QRect shown = Find(screen.get(), label)->geometry();
        EXPECT_EQ(field.left(), shown.left()) << entry;
        EXPECT_NEAR(field.center().y(), shown.center().y(), 1) << entry;
    }
}

TEST_F(frmRecipeManagerTest, EditWithoutACurrentRecipeDoesNothing) {
    Open();
    Button("cmdEdit")->Activate();
    ExpectEmptyState();
}

TEST_F(frmRecipeManagerTest, SaveWritesAllFieldsAndReturnsToViewing) {
    const qint32 id = Recipe("Soup");
    Open();
    Press("cmdEdit");
    Type("txtName", "Better soup");
    Type("txtYield", "2.5 big ones");
    Type("txtServing", "1 mug");
    Type("txtTime", "1 2.5 min");
    Instructions()->setPlainText("Stir\ntwice.");
    Press("cmdEdit");
    ExpectViewing();
    EXPECT_EQ(Stored(id, "RecipeName"), "Better soup");
    EXPECT_EQ(Stored(id, "RecipeYield"), "2.5");
    EXPECT_EQ(Stored(id, "ServingName"), "1 mug");
    EXPECT_EQ(Stored(id, "PrepTime"), "12.5");
    EXPECT_EQ(Stored(id, "Instructions"), "Stir\ntwice.");
    EXPECT_EQ(Shown("aaRecipeName"), "Better soup");
    EXPECT_EQ(List()->List(), QStringList("Better soup"));
}

TEST_F(frmRecipeManagerTest, NegativeNumbersAreStoredWithoutTheirSign) {
    const qint32 id = Recipe("Soup");
    Open();
    Press("cmdEdit");
    Type("txtYield", "-4");
    Type("txtTime", "-4");
    Press("cmdEdit");
    EXPECT_EQ(Stored(id, "RecipeYield"), "4");
    EXPECT_EQ(Stored(id, "PrepTime"), "4");
}

TEST_F(frmRecipeManagerTest, TextThatIsNoNumberIsStoredAsZeroAndTheCardDividesByOne) {
    const qint32 id = Recipe("Soup");
    AddIngredients(id, 1, 250);
    Open();
    Press("cmdEdit");
    Type("txtYield", "abc");
    Type("txtTime", "^~|");
    Press("cmdEdit");
    EXPECT_EQ(Stored(id, "RecipeYield"), "0");
    EXPECT_EQ(Stored(id, "PrepTime"), "0");
    EXPECT_EQ(Shown("aaCals"), "Calories: 250 per serving");
}

TEST_F(frmRecipeManagerTest, EmptyTimeIsNotTested) {
    const qint32 id = Recipe("Soup");
    Open();
    Press("cmdEdit");
    Type("txtTime", "");
    Press("cmdEdit");
    EXPECT_EQ(Stored(id, "PrepTime"), "0");
    EXPECT_EQ(Button("cmdEdit")->Caption(), "Edit Recipe");
}

TEST_F(frmRecipeManagerTest, CaloriesOfOneServingAreRoundedHalfToEven) {
    const qint32 id = Recipe("Soup", "1 bowl", 3);
    AddIngredients(id, 1, 1000);
    Open();
    EXPECT_EQ(Shown("aaCals"), "Calories: 333 per serving");
    for (const auto& [calories, figure] : {std::pair(2.5, "2"), std::pair(3.5, "4")}) {
        UserDB().Raw().exec("UPDATE Recipes SET RecipeYield = 1");
        UserDB().Raw().exec("UPDATE Ingredients SET Calories = " + std::to_string(calories));
        screen->ShowRecipe(id);
        EXPECT_EQ(Shown("aaCals"), QString("Calories: ") + figure + " per serving");
    }
}

TEST_F(frmRecipeManagerTest, EveryRefusedCharacterIsRefusedTypedAndPasted) {
    Recipe("Soup");
    Open();
    Press("cmdEdit");
    const QStringList rows[] = {
        {"txtName", "Recipe name cannot contain the special characters '~' or '^'."},
        {"txtYield", "Recipe yield cannot contain the special characters '~' or '^'."},
        {"txtServing",
         "Recipe serving description cannot contain the special characters '~' or '^'."}};
    for (const QStringList& row : rows)
        for (const QString& refused : {QStringLiteral("^"), QStringLiteral("~")}) {
            const QString before = Entry(row[0])->text();
            Type(row[0], "4 a" + refused + "b");
            ExpectRefused(row[1]);
            Paste(Entry(row[0]), refused);
            ExpectRefused(row[1]);
            EXPECT_TRUE(Entry(row[0])->hasFocus());
            Entry(row[0])->setText(before);
        }
}

TEST_F(frmRecipeManagerTest, EveryRefusedCharacterOfTheInstructionsIsRefusedTypedAndPasted) {
    Recipe("Soup");
    Open();
    Press("cmdEdit");
    for (const QString& refused : {QStringLiteral("^"), QStringLiteral("~"), QStringLiteral("|")}) {
        const QString message =
            refused == "|"
                ? "Recipe preparation instructions cannot contain the special character '|' "
                : "Recipe preparation instructions cannot contain the special characters '~' or "
                  "'^'.";
        Instructions()->setFocus();
        Instructions()->selectAll();
        QTest::keyClicks(Instructions(), "Stir" + refused + "well.");
        ExpectRefused(message);
        Paste(Instructions(), "Stir.\n\n" + refused);
        ExpectRefused(message);
        EXPECT_TRUE(Instructions()->hasFocus());
    }
}

TEST_F(frmRecipeManagerTest, BarIsAcceptedEverywhereButInTheInstructions) {
    const qint32 id = Recipe("Soup");
    Open();
    Press("cmdEdit");
    FillIn("A|B", "4|", "1 | bowl", "|", "Stir.");
    Press("cmdEdit");
    EXPECT_EQ(Stored(id, "RecipeName"), "A|B");
    EXPECT_EQ(Stored(id, "ServingName"), "1 | bowl");
    EXPECT_EQ(Stored(id, "RecipeYield"), "4");
}

TEST_F(frmRecipeManagerTest, ChecksRunInTheirOrder) {
    Recipe("Soup");
    Open();
    Press("cmdEdit");
    FillIn("^", "~", "~", "~", "^|");
    ExpectRefused("Recipe name cannot contain the special characters '~' or '^'.");
    Entry("txtName")->clear();
    ExpectRefused("Recipe yield cannot contain the special characters '~' or '^'.");
    Entry("txtYield")->clear();
    ExpectRefused("Recipe serving description cannot contain the special characters '~' or '^'.");
    Entry("txtServing")->clear();
    ExpectRefused(
        "Recipe preparation instructions cannot contain the special characters '~' or '^'.");
    Instructions()->setPlainText("|");
    ExpectRefused("Recipe preparation instructions cannot contain the special character '|' ");
    Instructions()->clear();
    ExpectRefused("Please give your new recipe a name.");
    Entry("txtName")->setText("Soup");
    ExpectRefused("Please give your new recipe a serving size.");
    Entry("txtServing")->setText("1 bowl");
    ExpectRefused("Please give your new recipe a yield (Recipe Makes __ Servings).");
    Entry("txtYield")->setText("1");
    Press("cmdEdit");
    EXPECT_EQ(Button("cmdEdit")->Caption(), "Edit Recipe");
}

TEST_F(frmRecipeManagerTest, EmptyNameAndTildeInTheYieldReportTheYieldFirst) {
    Recipe("Soup");
    Open();
    Press("cmdEdit");
    Type("txtName", "");
    Type("txtYield", "4~");
    ExpectRefused("Recipe yield cannot contain the special characters '~' or '^'.");
}

TEST_F(frmRecipeManagerTest, BlanksCountAsText) {
    const qint32 id = Recipe("Soup");
    Open();
    Press("cmdEdit");
    FillIn(" ", " ", " ", "", "");
    Press("cmdEdit");
    EXPECT_EQ(Stored(id, "RecipeName"), " ");
    EXPECT_EQ(Stored(id, "RecipeYield"), "0");
    EXPECT_EQ(Stored(id, "Instructions"), "");
}

TEST_F(frmRecipeManagerTest, ApostrophesInEveryFieldAreStoredAsTyped) {
    const qint32 id = Recipe("Soup");
    Open();
    Press("cmdEdit");
    FillIn("Grandma's 'best'", "'4", "1 cook's bowl", "'30", "Don't burn it.'); --");
    Press("cmdEdit");
    EXPECT_EQ(Stored(id, "RecipeName"), "Grandma's 'best'");
    EXPECT_EQ(Stored(id, "RecipeYield"), "0");
    EXPECT_EQ(Stored(id, "ServingName"), "1 cook's bowl");
    EXPECT_EQ(Stored(id, "PrepTime"), "0");
    EXPECT_EQ(Stored(id, "Instructions"), "Don't burn it.'); --");
    EXPECT_EQ(Shown("aaRecipeName"), "Grandma's 'best'");
    EXPECT_EQ(List()->List(), QStringList("Grandma's 'best'"));
}

TEST_F(frmRecipeManagerTest, NamesOfTenThousandCharactersAreKeptAndCutOnTheCard) {
    const qint32 id = Recipe("Soup");
    const QString name = QString("Long soup ").repeated(1000);
    Open();
    Press("cmdEdit");
    Paste(Entry("txtName"), name);
    Paste(Entry("txtServing"), name);
    Press("cmdEdit");
    EXPECT_EQ(Stored(id, "RecipeName"), name);
    EXPECT_EQ(Stored(id, "ServingName"), name);
    const QWidget* card = Find(screen.get(), "picRecCard");
    for (const char* label : {"aaRecipeName", "lblServingDesc"})
        EXPECT_TRUE(card->rect().contains(Find(screen.get(), label)->geometry())) << label;
    Press("cmdEdit");
    EXPECT_EQ(Entry("txtName")->text(), name);
}

TEST_F(frmRecipeManagerTest, NumbersOfHundredsOfDigitsKeepTheUnitsVisible) {
    Recipe("Soup");
    Open();
    Press("cmdEdit");
    FillIn("Soup", "1e300", "1 bowl", "1e300", "");
    Press("cmdEdit");
    const QWidget* card = Find(screen.get(), "picRecCard");
    for (const char* label : {"Label2", "Label6"})
        EXPECT_TRUE(card->rect().contains(Find(screen.get(), label)->geometry())) << label;
    EXPECT_LT(Find(screen.get(), "Label2")->geometry().right(),
              Find(screen.get(), "Label5")->geometry().left());
}

TEST_F(frmRecipeManagerTest, FieldsThatCannotBeReadKeepTheirText) {
    const qint32 id = Recipe("Soup", "1 bowl", 4, 45, "Stir.");
    Open();
    UserDB().Raw().exec("ALTER TABLE Recipes RENAME COLUMN ServingName TO Gone");
    Entry("txtServing")->setText("as it was");
    screen->EditRecipe(id);
    EXPECT_EQ(Entry("txtServing")->text(), "as it was");
    EXPECT_EQ(Entry("txtName")->text(), "Soup");
    EXPECT_EQ(Entry("txtTime")->text(), "45");
    EXPECT_TRUE(Visible("txtServing"));
    UserDB().Raw().exec("ALTER TABLE Recipes RENAME COLUMN Gone TO ServingName");
}

TEST_F(frmRecipeManagerTest, SaveChangesIsTheMainActionOfTheScreen) {
    Recipe("Soup");
    Open();
    EXPECT_FALSE(Button("cmdEdit")->MainAction());
    Press("cmdEdit");
    EXPECT_TRUE(Button("cmdEdit")->MainAction());
    Press("cmdEdit");
    EXPECT_FALSE(Button("cmdEdit")->MainAction());
}

// A new recipe

TEST_F(frmRecipeManagerTest, NewWritesARowAtOnceAndOpensItForEditing) {
    Open();
    Press("cmdNew");
    ExpectEditing();
    const qint32 id = screen->CurrentRecipe();
    EXPECT_EQ(Stored(id, "RecipeName"), "My Recipe");
    EXPECT_EQ(Stored(id, "RecipeYield"), "1");
    EXPECT_EQ(Stored(id, "PrepTime"), "30");
    EXPECT_EQ(Stored(id, "Instructions"), Placeholder);
    EXPECT_EQ(Entry("txtName")->text(), "My Recipe");
    EXPECT_EQ(Entry("txtYield")->text(), "1");
    EXPECT_EQ(Entry("txtTime")->text(), "30");
    EXPECT_EQ(Instructions()->toPlainText(), Placeholder);
    EXPECT_EQ(IngredientNames(), QStringList());
    EXPECT_EQ(Find<ucIngredients>(screen.get(), "ucING")->RecipeID(), id);
}

TEST_F(frmRecipeManagerTest, NewRecipeHasAnEmptyServingAndAsksForItOnSaving) {
    Open();
    Press("cmdNew");
    EXPECT_EQ(Stored(screen->CurrentRecipe(), "ServingName"), "");
    EXPECT_EQ(Entry("txtServing")->text(), "");
    ExpectRefused("Please give your new recipe a serving size.");
}

TEST_F(frmRecipeManagerTest, ASavedNewRecipeIsListedAndTheCardShowsTheRecipeChosenBefore) {
    Recipe("Apple");
    Recipe("Bread");
    Open();
    List()->SetListIndex(1);
    Press("cmdNew");
    Type("txtName", "Almonds");
    Type("txtServing", "1 slice");
    Press("cmdEdit");
    ExpectViewing();
    EXPECT_EQ(List()->List(), QStringList({"Almonds", "Apple", "Bread"}));
    EXPECT_EQ(List()->ListIndex(), 2);
    EXPECT_EQ(Shown("aaRecipeName"), "Bread");
}

TEST_F(frmRecipeManagerTest, TheOnlyRecipeIsShownAfterSaving) {
    Open();
    Press("cmdNew");
    Type("txtServing", "1 slice");
    Press("cmdEdit");
    ExpectViewing();
    EXPECT_EQ(Shown("aaRecipeName"), "My Recipe");
    EXPECT_EQ(Shown("lblServingDesc"), "1 slice");
}

TEST_F(frmRecipeManagerTest, NewRecipeThatIsLeftStaysWithItsDefaults) {
    Open();
    Press("cmdNew");
    Type("txtName", "Never saved");
    Press("cmdDone");
    EXPECT_EQ(shownScreens, QStringList("frmMain"));
    EXPECT_EQ(Users("SELECT RecipeName FROM Recipes"), "My Recipe");
}

TEST_F(frmRecipeManagerTest, DoneDuringAnEditSavesNothing) {
    const qint32 id = Recipe("Soup");
    Open();
    Press("cmdEdit");
    Type("txtName", "Changed");
    Press("cmdDone");
    EXPECT_EQ(Stored(id, "RecipeName"), "Soup");
}

TEST_F(frmRecipeManagerTest, AHiddenScreenContinuesItsEdit) {
    Recipe("Soup");
    Open();
    Press("cmdNew");
    Type("txtName", "In the making");
    const qint32 id = screen->CurrentRecipe();
    screen->hide();
    Forward();
    ExpectEditing();
    EXPECT_EQ(screen->CurrentRecipe(), id);
    EXPECT_EQ(Entry("txtName")->text(), "In the making");
    Type("txtServing", "1 cup");
    Press("cmdEdit");
    EXPECT_EQ(Stored(id, "RecipeName"), "In the making");
    EXPECT_EQ(Users("SELECT RecipeName FROM Recipes ORDER BY RecipeID"), "Soup");
}

TEST_F(frmRecipeManagerTest, AHiddenScreenListsTheRecipesAnewWhenItComesForward) {
    Recipe("Soup");
    Open();
    screen->hide();
    Recipe("Salad");
    Forward();
    EXPECT_EQ(List()->List(), QStringList({"Salad", "Soup"}));
}

// Deleting

TEST_F(frmRecipeManagerTest, DeleteAsksFirst) {
    Recipe("Soup");
    Open();
    ExpectAlert(askDelete, false);
    Press("cmdDelete");
    EXPECT_EQ(Count("Recipes"), 1);
    EXPECT_EQ(Shown("aaRecipeName"), "Soup");
}

TEST_F(frmRecipeManagerTest, TheNextRecipeTakesThePlaceOfADeletedOne) {
    Recipe("Apple");
    Recipe("Bread");
    Recipe("Cake");
    Open();
    List()->SetListIndex(1);
    ExpectAlert(askDelete);
    Press("cmdDelete");
    EXPECT_EQ(List()->List(), QStringList({"Apple", "Cake"}));
    EXPECT_EQ(List()->ListIndex(), 1);
    EXPECT_EQ(Shown("aaRecipeName"), "Cake");
}

TEST_F(frmRecipeManagerTest, DeletingTheLastLineSelectsTheNewLastLine) {
    Recipe("Apple");
    Recipe("Bread");
    Open();
    List()->SetListIndex(1);
    ExpectAlert(askDelete);
    Press("cmdDelete");
    ExpectViewing();
    EXPECT_EQ(List()->ListIndex(), 0);
    EXPECT_EQ(Shown("aaRecipeName"), "Apple");
}

TEST_F(frmRecipeManagerTest, DeletingTheOnlyRecipeLeavesTheScreenEmpty) {
    const qint32 id = Recipe("Soup");
    AddIngredients(id, 3);
    Open();
    ExpectAlert(askDelete);
    Press("cmdDelete");
    ExpectEmptyState();
    EXPECT_EQ(Count("Ingredients", "RecipeID = " + QString::number(id)), 2);
}

TEST_F(frmRecipeManagerTest, DeletedRecipeStaysLoggedOnTenDays) {
    const qint32 id = Recipe("Soup");
    for (int day = 1; day <= 10; ++day)
        UserDB().Raw().exec("INSERT INTO USER_FOODS (UID, FoodName, ID, Calories, UDate) VALUES "
                            "(1, 'Soup', " +
                            std::to_string(id) + ", 300, '2002-03-" +
                            QString("%1").arg(day, 2, 10, QChar('0')).toStdString() + "')");
    Open();
    ExpectAlert(askDelete);
    Press("cmdDelete");
    EXPECT_EQ(Count("Recipes"), 0);
    EXPECT_EQ(Count("USER_FOODS", "FoodName = 'Soup' AND Calories = 300"), 10);
}

TEST_F(frmRecipeManagerTest, DeleteWithoutACurrentRecipeAsksNothing) {
    Open();
    Button("cmdDelete")->Activate();
    ExpectEmptyState();
}

// Ingredients

TEST_F(frmRecipeManagerTest, AddFoodAppendsToTheCurrentRecipeAndLeavesTheListAsItIs) {
    const qint32 id = Recipe("Soup");
    Open();
    screen->AddFood(Counting("Flour", 2));
    EXPECT_EQ(Count("Ingredients", "RecipeID = " + QString::number(id)), 1);
    EXPECT_EQ(IngredientNames(), QStringList());
}

TEST_F(frmRecipeManagerTest, IngredientsOpensTheSearchAtTheScreensCornerAndRefreshesAfterwards) {
    const qint32 id = Recipe("Soup");
    AddFood({.id = 1, .name = "Lentils", .nutrients = {{"Calories", 350}}});
    Open();
    Press("cmdEdit");
    WithModal(
        [&](QWidget* dialog) {
            EXPECT_EQ(dialog->objectName(), "frmRecSearch");
            EXPECT_EQ(dialog->pos(), screen->mapToGlobal(QPoint(0, 0)));
            Find<QLineEdit>(dialog, "txtSearchString")->setText("lentils");
            Click(Find(dialog, "cmdGo"));
            Click(Find(dialog, "cmdEAT_a"));
            Click(Find(dialog, "cmdEAT_a"));
            EXPECT_EQ(Count("Ingredients", "RecipeID = " + QString::number(id)), 2);
            EXPECT_EQ(IngredientNames(), QStringList());
            Click(Find(dialog, "cmdDone"));
        },
        [&] { Press("cmdIngreds"); });
    EXPECT_EQ(IngredientNames(), QStringList({"Lentils", "Lentils"}));
    ExpectEditing();
}

TEST_F(frmRecipeManagerTest, RemovingAnIngredientKeepsTheCaloriesUntilTheRecipeIsShownAnew) {
    const qint32 id = Recipe("Soup", "1 bowl", 1);
    AddIngredients(id, 2, 100);
    Open();
    Click(Find(Find<ucAte>(screen.get(), "ucAte1"), "imgTrash"));
    EXPECT_EQ(IngredientNames(), QStringList("Food 2"));
    EXPECT_EQ(Shown("aaCals"), "Calories: 200 per serving");
    screen->ShowRecipe(id);
    EXPECT_EQ(Shown("aaCals"), "Calories: 100 per serving");
}

TEST_F(frmRecipeManagerTest, IngredientsAreRemovedWhileEditingAsWell) {
    const qint32 id = Recipe("Soup");
    AddIngredients(id, 2);
    Open();
    Press("cmdEdit");
    Click(Find(Find<ucAte>(screen.get(), "ucAte2"), "imgTrash"));
    EXPECT_EQ(IngredientNames(), QStringList("Food 1"));
    ExpectEditing();
}

// Import and send

TEST_F(frmRecipeManagerTest, ImportOpensItsDialogAndListsTheRecipesAnewAfterwards) {
    Open();
    WithModal(
        [this](QWidget* dialog) {
            EXPECT_EQ(dialog->objectName(), "frmImport");
            Recipe("From the web");
            EXPECT_EQ(List()->ListCount(), 0);
        },
        [this] { Press("cmdImport"); });
    EXPECT_EQ(List()->List(), QStringList("From the web"));
    EXPECT_EQ(Shown("aaRecipeName"), "From the web");
}

TEST_F(frmRecipeManagerTest, SendOpensItsDialogOverTheCurrentRecipe) {
    Recipe("Apple");
    const qint32 two = Recipe("Bread");
    Open();
    List()->SetListIndex(1);
    WithModal([](QWidget* dialog) { EXPECT_EQ(dialog->objectName(), "frmSend"); },
              [this] { Press("cmdSend"); });
    EXPECT_EQ(screen->CurrentRecipe(), two);
}

TEST_F(frmRecipeManagerTest, SendWithoutACurrentRecipeSaysSo) {
    Open();
    ExpectAlert("You must first search for a recipe to send.");
    Button("cmdSend")->Activate();
}

// Rollovers

TEST_F(frmRecipeManagerTest, HoveringOneButtonResetsTheOthers) {
    Recipe("Soup");
    Open();
    Hover(Button("cmdEdit"));
    EXPECT_EQ(Button("cmdEdit")->State(), 2);
    for (const char* next : {"cmdDelete", "cmdSend", "cmdImport", "cmdEdit"}) {
        Hover(Button(next));
        for (const char* button : {"cmdEdit", "cmdDelete", "cmdSend", "cmdImport"})
            EXPECT_EQ(Button(button)->State(), button == next ? 2 : 1) << button << " " << next;
    }
}

TEST_F(frmRecipeManagerTest, HoveringNewOrDoneDoesNotResetTheOthers) {
    Recipe("Soup");
    Open();
    for (const char* quiet : {"cmdNew", "cmdDone"}) {
        Hover(Button("cmdDelete"));
        Hover(Button(quiet));
        EXPECT_EQ(Button("cmdDelete")->State(), 2);
        EXPECT_EQ(Button(quiet)->State(), 2);
    }
}

TEST_F(frmRecipeManagerTest, AllOffComparesNamesWithoutRegardToCase) {
    Recipe("Soup");
    Open();
    for (const char* button : {"cmdEdit", "cmdNew", "cmdDelete", "cmdDone"}) {
        Hover(Button(button));
        screen->AllOff(QString(button).toUpper());
        EXPECT_EQ(Button(button)->State(), 2) << button;
        screen->AllOff("cmdother");
        EXPECT_EQ(Button(button)->State(), 1) << button;
    }
}

TEST_F(frmRecipeManagerTest, MovesOverTheRestOfTheScreenResetAllButtons) {
    Recipe("Soup");
    Open();
    QWidget* const rest[] = {List()->viewport(), Find(screen.get(), "picRecCard"),
                             Instructions()->viewport(), Find(screen.get(), "ucBox1"),
                             screen.get()};
    for (QWidget* place : rest) {
        Hover(Button("cmdEdit"));
        Hover(place, QPoint(5, 5));
        EXPECT_EQ(Button("cmdEdit")->State(), 1) << place->objectName().toStdString();
    }
}

TEST_F(frmRecipeManagerTest, CleanUpResetsAllWhenThePointerHasLeft) {
    Recipe("Soup");
    Open();
    window.move(200, 200);
    QCursor::setPos(10, 10);
    Hover(Button("cmdEdit"));
    auto* cleanUp = Find<QTimer>(screen.get(), "cleanUp");
    EXPECT_EQ(cleanUp->interval(), 250);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Button("cmdEdit")->State() == 1; }));
}

// By keyboard and in numbers

TEST_F(frmRecipeManagerTest, TabLeadsThroughTheCardInReadingOrder) {
    const qint32 id = Recipe("Soup");
    AddIngredients(id, 1);
    Open();
    Press("cmdEdit");
    QStringList visited;
    for (int i = 0; i < 9; ++i) {
        visited << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(visited,
              QStringList({"txtName", "txtYield", "txtTime", "txtServing", "txtInstructions",
                           "cmdIngreds", "imgTrash", "cmdEdit", "cmdDone"}));
}

TEST_F(frmRecipeManagerTest, FiveThousandRecipesAreListedAndTheLastCanBeDeleted) {
    FoodsTest::AddRecipes(5000, "Recipe");
    Open();
    EXPECT_EQ(List()->ListCount(), 5000);
    List()->SetListIndex(4999);
    ExpectAlert(askDelete);
    Press("cmdDelete");
    EXPECT_EQ(List()->ListCount(), 4999);
    EXPECT_EQ(List()->ListIndex(), 4998);
}
