#include "recipes/RecipeManagerTest.h"
#include "support/KillPoints.h"

#include "recipes/RecipeBook.h"
#include "recipes/ui/ucIngredients.h"
#include "store/Connection.h"
#include "toolkit/ucAte.h"
#include "toolkit/ucScroll.h"

#include <QApplication>
#include <QClipboard>
#include <QScrollBar>
#include <QTest>

#include <SQLiteCpp/SQLiteCpp.h>

namespace {

constexpr int Busy = -5;
constexpr int ReadOnly = -8;

} // namespace

/// The recipe screen by keyboard, with a store that fails, and with texts of every kind.
class RecipeScreenTest : public RecipeManagerTest {
protected:
    void Open() {
        RecipeManagerTest::Open();
        screen->setFocus(Qt::OtherFocusReason);
    }
    /// A screen that shows one recipe with that many ingredients.
    qint32 OpenWith(int ingredients) {
        const qint32 id = FoodsTest::AddRecipe("Soup", "1 bowl");
        AddIngredients(id, ingredients);
        Open();
        return id;
    }

    /// Presses the button and gives the number of the failure.
    int FailureOfPress(const char* name) {
        return FailureOf([&] { Q_EMIT Button(name)->Click(); });
    }
    QString Stored(const QString& column) {
        return Users("SELECT " + column + " FROM Recipes").toString();
    }
    static QString FocusName() {
        const QWidget* focus = QApplication::focusWidget();
        return focus ? focus->objectName() : QString();
    }
    static void Key(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), key, held);
    }
    /// Presses Tab until the control has the focus.
    static void TabTo(const QString& name) {
        for (int i = 0; i < 20 && FocusName() != name; ++i)
            Key(Qt::Key_Tab);
        ASSERT_EQ(FocusName(), name);
    }
    static void WriteOver(const QString& text) {
        Key(Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), text);
    }
    void PasteAll(const QString& text) {
        QApplication::clipboard()->setText(text);
        for (const QString& entry : entries) {
            Entry(entry)->setFocus();
            Key(Qt::Key_A, Qt::ControlModifier);
            Key(Qt::Key_V, Qt::ControlModifier);
        }
        Instructions()->selectAll();
        Instructions()->paste();
    }
    void ExpectStillEditing(const QString& name) {
        EXPECT_EQ(Button("cmdEdit")->Caption(), "Save Changes");
        EXPECT_TRUE(Entry("txtName")->isVisible());
        EXPECT_EQ(Entry("txtName")->text(), name);
        EXPECT_FALSE(List()->isEnabled());
    }
    QList<QVariantList> Everything() {
        return Rows(UserDB(), "SELECT * FROM Recipes") +
               Rows(UserDB(), "SELECT * FROM Ingredients");
    }
};

// By keyboard

TEST_F(RecipeScreenTest, TabLeadsThroughTheScreenInReadingOrderWhileARecipeIsShown) {
    OpenWith(1);
    List()->setFocus();
    QStringList visited;
    for (int i = 0; i < 10; ++i) {
        visited << FocusName();
        Key(Qt::Key_Tab);
    }
    EXPECT_EQ(visited,
              QStringList({"lsRecipes", "cmdNew", "cmdImport", "txtInstructions", "imgTrash",
                           "cmdEdit", "cmdDelete", "cmdSend", "cmdDone", "lsRecipes"}));
}

TEST_F(RecipeScreenTest, SavingMovesTheFocusToTheListAndNotToDone) {
    OpenWith(0);
    TabTo("cmdEdit");
    Key(Qt::Key_Return);
    EXPECT_EQ(FocusName(), "txtName");
    TabTo("cmdEdit");
    Key(Qt::Key_Return);
    EXPECT_EQ(FocusName(), "lsRecipes");
    EXPECT_TRUE(shownScreens.isEmpty());
}

TEST_F(RecipeScreenTest, DeletingMovesTheFocusToTheListAndAfterTheLastRecipeToNew) {
    FoodsTest::AddRecipes(2, "Soup");
    Open();
    for (const char* next : {"lsRecipes", "cmdNew"}) {
        TabTo("cmdDelete");
        ExpectAlert(askDelete);
        Key(Qt::Key_Space);
        EXPECT_EQ(FocusName(), next);
    }
    EXPECT_EQ(Count("Recipes"), 0);
}

TEST_F(RecipeScreenTest, ARecipeIsMadeChangedAndDeletedByKeyboardAlone) {
    Open();
    TabTo("cmdNew");
    Key(Qt::Key_Return);
    WriteOver("Stew");
    TabTo("txtYield");
    WriteOver("4");
    TabTo("txtServing");
    WriteOver("1 plate");
    TabTo("txtInstructions");
    WriteOver("Stir.");
    TabTo("cmdEdit");
    Key(Qt::Key_Space);
    EXPECT_EQ(Stored("RecipeName || '/' || RecipeYield || '/' || ServingName || '/' || "
                     "Instructions"),
              "Stew/4.0/1 plate/Stir.");
    TabTo("cmdDelete");
    ExpectAlert(askDelete);
    Key(Qt::Key_Return);
    EXPECT_EQ(Count("Recipes"), 0);
}

TEST_F(RecipeScreenTest, EveryControlHasANameForAssistiveTools) {
    OpenWith(20);
    const auto expectNames = [this] {
        for (const QWidget* control : screen->findChildren<QWidget*>())
            EXPECT_TRUE(!control->isVisible() || !(control->focusPolicy() & Qt::TabFocus) ||
                        !control->accessibleName().isEmpty() ||
                        !control->property("Caption").toString().isEmpty())
                << control->objectName().toStdString();
    };
    expectNames();
    Press("cmdEdit");
    expectNames();
}

// What is shown

TEST_F(RecipeScreenTest, ChoosingEditingAndSavingShowTheInstructionsFromTheirBeginning) {
    FoodsTest::AddRecipes(2, "Soup");
    UserDB().Raw().exec("UPDATE Recipes SET Instructions = "
                        "replace('1,2,3,4,5,6,7,8,9,10,11,12', ',', char(10))");
    Open();
    auto* bar = Find<ucScroll>(screen.get(), "vsInstructions");
    const auto scroll = [bar] {
        for (int value = 1; value <= 5; ++value)
            bar->SetValue(value);
        EXPECT_EQ(bar->Value(), 5);
    };
    scroll();
    List()->SetListIndex(1);
    EXPECT_EQ(bar->Value(), 0);
    EXPECT_EQ(Instructions()->verticalScrollBar()->value(), 0);
    Press("cmdEdit");
    scroll();
    Press("cmdEdit");
    EXPECT_EQ(bar->Value(), 0);
    EXPECT_EQ(Instructions()->verticalScrollBar()->value(), 0);
}

TEST_F(RecipeScreenTest, ChoosingEditingAndAddingShowTheIngredientsFromTheirTop) {
    AddIngredients(FoodsTest::AddRecipe("Soup", "1 bowl"), 20);
    AddIngredients(FoodsTest::AddRecipe("Stew", "1 bowl"), 20);
    Open();
    auto* bar = Find<ucScroll>(Find(screen.get(), "ucING"), "vsResultsPane");
    const auto expectTopAfter = [&](const std::function<void()>& step) {
        bar->SetValue(60);
        EXPECT_EQ(bar->Value(), 60);
        step();
        EXPECT_EQ(bar->Value(), 0);
    };
    expectTopAfter([this] { List()->SetListIndex(1); });
    expectTopAfter([this] { Press("cmdEdit"); });
    expectTopAfter([this] {
        WithModal([](QWidget* search) { Click(Find(search, "cmdDone")); },
                  [this] { Press("cmdIngreds"); });
    });
    expectTopAfter([this] { Press("cmdEdit"); });
}

TEST_F(RecipeScreenTest, WithoutAYieldARecipeIsDividedByTheYieldLeftOnTheCard) {
    FoodsTest::AddRecipe("Soup", "1 bowl"); // makes 4
    const qint32 stew = FoodsTest::AddRecipe("Stew", "1 bowl");
    AddIngredients(stew, 1, 400);
    UserDB().Raw().exec("UPDATE Recipes SET RecipeYield = NULL WHERE RecipeName = 'Stew'");
    Open();
    List()->SetListIndex(1);
    EXPECT_EQ(Find(screen.get(), "aaCals")->property("Caption"), "Calories: 100 per serving");
    FoodsTest::AddRecipe("Tea", "1 cup");
    screen->ListRecipes(); // empties the card first
    EXPECT_EQ(Find(screen.get(), "aaCals")->property("Caption"), "Calories: 400 per serving");
}

// Texts

TEST_F(RecipeScreenTest, NulCharactersEmojiAndHardBlanksAreKeptInEveryField) {
    OpenWith(0);
    const QString text =
        QStringLiteral("4\u00A0cups") + QChar(0) + QStringLiteral("'; \U0001F372 <b>& 焼き</b>");
    Press("cmdEdit");
    for (const QString& entry : entries)
        Entry(entry)->setText(text);
    Instructions()->setPlainText(text + u'\n' + text);
    Press("cmdEdit");
    EXPECT_EQ(Button("cmdEdit")->Caption(), "Edit Recipe");
    EXPECT_EQ(List()->Text(0), text);
    EXPECT_EQ(Count("Recipes", "RecipeYield = 4 AND PrepTime = 4"), 1);
    Press("cmdEdit");
    EXPECT_EQ(Entry("txtName")->text(), text);
    EXPECT_EQ(Entry("txtServing")->text(), text);
    Press("cmdEdit");
    const qint32 id = screen->CurrentRecipe();
    screen.reset();
    Open();
    EXPECT_EQ(screen->CurrentRecipe(), id);
    EXPECT_EQ(Count("Recipes", "Instructions = ServingName || char(10) || ServingName"), 1);
}

TEST_F(RecipeScreenTest, LineBreaksOfTheInstructionsAreStoredAsOneCharacter) {
    OpenWith(0);
    Press("cmdEdit");
    Instructions()->setFocus();
    Instructions()->selectAll();
    QTest::keyClicks(Instructions(), "one");
    Key(Qt::Key_Return);
    QTest::keyClicks(Instructions(), "two");
    Key(Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClicks(Instructions(), "three");
    Press("cmdEdit");
    EXPECT_EQ(Stored("Instructions"), "one\ntwo\nthree");
}

TEST_F(RecipeScreenTest, TenThousandCharactersAreKeptInEveryField) {
    OpenWith(0);
    Press("cmdEdit");
    const QString text = "7 " + QString("long ").repeated(2000);
    PasteAll(text);
    Press("cmdEdit");
    for (const char* column : {"RecipeName", "ServingName", "Instructions"})
        EXPECT_EQ(Stored(column), text) << column;
    EXPECT_EQ(Count("Recipes", "RecipeYield = 7 AND PrepTime = 7"), 1);
    EXPECT_FALSE(Grab(screen.get()).isNull());
}

TEST_F(RecipeScreenTest, FiveThousandLinesOfInstructionsAreSavedWholeAndShownAgain) {
    OpenWith(0);
    QString text;
    for (int line = 1; line <= 5000; ++line)
        text += "line " + QString::number(line) + (line < 5000 ? "\n" : "");
    Press("cmdEdit");
    Instructions()->setPlainText(text);
    Press("cmdEdit");
    EXPECT_EQ(Stored("Instructions"), text);
    EXPECT_EQ(Instructions()->toPlainText(), text);
    EXPECT_EQ(Find<ucScroll>(screen.get(), "vsInstructions")->Max(), 4995);
    EXPECT_EQ(Find<ucScroll>(screen.get(), "vsInstructions")->Value(), 0);
}

// A store that fails

TEST_F(RecipeScreenTest, ASaveIntoALockedStoreLosesNothingAndSucceedsLater) {
    OpenWith(1);
    UserDB().Raw().exec("PRAGMA busy_timeout = 0");
    Press("cmdEdit");
    Entry("txtName")->setText("Better soup");
    const auto before = Everything();
    SQLite::Database other(UserDB().Path().toStdString(), SQLite::OPEN_READWRITE);
    other.exec("BEGIN IMMEDIATE");
    EXPECT_EQ(FailureOfPress("cmdEdit"), Busy);
    ExpectStillEditing("Better soup");
    EXPECT_EQ(Everything(), before);
    other.exec("ROLLBACK");
    Press("cmdEdit");
    EXPECT_EQ(Stored("RecipeName"), "Better soup");
}

TEST_F(RecipeScreenTest, AReadOnlyStoreIsNotChanged) {
    const qint32 id = OpenWith(2);
    const auto before = Everything();
    UserDB().Raw().exec("PRAGMA query_only = 1");
    EXPECT_EQ(FailureOfPress("cmdNew"), ReadOnly);
    EXPECT_EQ(screen->CurrentRecipe(), id);
    EXPECT_TRUE(List()->isEnabled());
    ExpectAlert(askDelete);
    EXPECT_EQ(FailureOfPress("cmdDelete"), ReadOnly);
    EXPECT_EQ(List()->ListCount(), 1);
    Click(Find(Find<ucAte>(screen.get(), "ucAte1"), "imgTrash"));
    EXPECT_TRUE(Find<ucAte>(screen.get(), "ucAte2")->isVisible());
    EXPECT_EQ(FailureOf([&] { screen->AddFood(Counting()); }), ReadOnly);
    Press("cmdEdit");
    EXPECT_EQ(FailureOfPress("cmdEdit"), ReadOnly);
    ExpectStillEditing("Soup");
    UserDB().Raw().exec("PRAGMA query_only = 0");
    EXPECT_EQ(Everything(), before);
}

TEST_F(RecipeScreenTest, ADeleteThatFailsAtTheRecipeHasRemovedOnlyItsFirstIngredient) {
    OpenWith(3);
    UserDB().Raw().exec("CREATE TRIGGER held BEFORE DELETE ON Recipes "
                        "BEGIN SELECT RAISE(ABORT, 'held'); END");
    ExpectAlert(askDelete);
    EXPECT_LT(FailureOfPress("cmdDelete"), 0);
    EXPECT_EQ(Count("Recipes"), 1);
    EXPECT_EQ(Count("Ingredients"), 2);
    EXPECT_EQ(Users("SELECT FoodName FROM Ingredients"), "Food 2");
}

// A kill

TEST_F(RecipeScreenTest, AKillWhileSavingLeavesTheOldRecipeOrTheNewOne) {
    OpenWith(1);
    Press("cmdEdit");
    Entry("txtName")->setText("Stew");
    Entry("txtServing")->setText("1 plate");
    const KillPoints points(UserDB(), [this] { Press("cmdEdit"); });
    ASSERT_EQ(points.Count(), 2);
    points.ForEach([&](int point, SQLite::Database& left) {
        EXPECT_EQ(
            left.execAndGet("SELECT RecipeName || '/' || ServingName FROM Recipes").getString(),
            point < 1 ? "Soup/1 bowl" : "Stew/1 plate");
    });
}

TEST_F(RecipeScreenTest, AKillWhileDeletingLeavesTheRecipeWithoutItsFirstIngredientAtMost) {
    OpenWith(3);
    ExpectAlert(askDelete);
    const KillPoints points(UserDB(), [this] { Press("cmdDelete"); });
    ASSERT_EQ(points.Count(), 3);
    const char* const found[] = {"1/3", "1/2", "0/2"};
    points.ForEach([&](int point, SQLite::Database& left) {
        EXPECT_EQ(left.execAndGet("SELECT (SELECT count(*) FROM Recipes) || '/' || "
                                  "(SELECT count(*) FROM Ingredients)")
                      .getString(),
                  found[point]);
    });
}

TEST_F(RecipeScreenTest, AKillWhileMakingARecipeLeavesNoneOrOneWithAllItsDefaults) {
    Open();
    const KillPoints points(UserDB(), [this] { Press("cmdNew"); });
    ASSERT_EQ(points.Count(), 2);
    points.ForEach([&](int point, SQLite::Database& left) {
        EXPECT_EQ(left.execAndGet("SELECT count(*) FROM Recipes").getInt(), point);
        EXPECT_EQ(left.execAndGet("SELECT count(*) FROM Recipes WHERE RecipeYield = 1 AND PrepTime "
                                  "= 30 AND ServingName = ''")
                      .getInt(),
                  point);
    });
}

TEST_F(RecipeScreenTest, AKillWhileAddingOrRemovingAnIngredientLeavesNoHalfOfOne) {
    OpenWith(0);
    const KillPoints adding(UserDB(), [this] { screen->AddFood(Counting("Flour", 2)); });
    ASSERT_EQ(adding.Count(), 2);
    const char* whole = "SELECT count(*) FROM Ingredients WHERE FoodName = 'Flour' AND QTY = 2 AND "
                        "VitaminC = 1 AND Cholesterol = 31 AND RecipeID = 1";
    adding.ForEach([&](int point, SQLite::Database& left) {
        EXPECT_EQ(left.execAndGet("SELECT count(*) FROM Ingredients").getInt(), point);
        EXPECT_EQ(left.execAndGet(whole).getInt(), point);
    });
    const KillPoints removing(UserDB(), [] { RecipeBook::RemoveIngredient(1); });
    removing.ForEach([&](int point, SQLite::Database& left) {
        EXPECT_EQ(left.execAndGet(whole).getInt(), 1 - point);
    });
}

TEST_F(RecipeScreenTest, ManyIngredientsAreShownScrolledAndRemoved) {
    OpenWith(500);
    auto* list = Find<ucIngredients>(screen.get(), "ucING");
    EXPECT_NE(list->findChild<ucAte*>("ucAte500"), nullptr);
    auto* bar = Find<ucScroll>(list, "vsResultsPane");
    bar->SetValue(bar->Max());
    Click(Find(Find<ucAte>(list, "ucAte500"), "imgTrash"));
    EXPECT_EQ(Count("Ingredients"), 499);
    EXPECT_EQ(list->findChild<ucAte*>("ucAte500"), nullptr);
}
