#include "foods/FoodsTest.h"

#include "foods/ui/ucFood.h"
#include "foods/ui/ucSearchResults.h"
#include "runtime/AppState.h"
#include "runtime/Settings.h"
#include "store/Connection.h"
#include "toolkit/MousePointer.h"
#include "toolkit/ucRadio.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <SQLiteCpp/SQLiteCpp.h>

#include <memory>

namespace {
/// Counts the paints of a control, and those under the busy pointer.
class BusyPaints : public QObject {
public:
    int count = 0;
    int busy = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            ++count;
            busy += MousePointer::IsBusy();
        }
        return false;
    }
};
} // namespace

class SearchTest : public FoodsTest {
protected:
    void SetUp() override {
        FoodsTest::SetUp();
        Open();
    }
    void TearDown() override {
        panel_.reset();
        MousePointer::SetNormal();
        FoodsTest::TearDown();
    }

    void Open() {
        panel_.reset();
        panel_ = std::make_unique<ucSearchResults>();
        panel_->resize(612, 440);
        panel_->show();
    }
    QLineEdit* Term() { return Find<QLineEdit>(panel_.get(), "txtSearchString"); }
    void SearchFor(const QString& term) { Search(*panel_, term); }
    QStringList Names() { return NamesShown(*panel_); }
    void Tick(const char* box, bool ticked) {
        Find<QCheckBox>(panel_.get(), box)->setChecked(ticked);
    }
    bool Ticked(const char* box) { return Find<QCheckBox>(panel_.get(), box)->isChecked(); }
    int Meal() {
        for (int i = 0; i < 4; ++i)
            if (Find<ucRadio>(panel_.get(), u"opMeal" + QString::number(i))->Value())
                return i;
        return -1;
    }

    std::unique_ptr<ucSearchResults> panel_;
};

TEST_F(SearchTest, TheFieldsCarryTheirCaptions) {
    EXPECT_EQ(Find<QCheckBox>(panel_.get(), "ckStock")->text(), "Standard foods");
    EXPECT_EQ(Find<QCheckBox>(panel_.get(), "ckCustom")->text(), "Custom foods");
    EXPECT_EQ(Find<QCheckBox>(panel_.get(), "ckRecipes")->text(), "Recipes");
    EXPECT_EQ(Find(panel_.get(), "cmdGo")->property("Caption").toString(), "Search");
    QStringList texts;
    for (const QLabel* label : panel_->findChildren<QLabel*>())
        texts << label->text();
    for (const char* text :
         {"Food name:", "Add foods to meal:", "Search locations:", "Search Progress"})
        EXPECT_TRUE(texts.contains(text)) << text;
    const char* meals[] = {"Breakfast", "Lunch", "Dinner", "Snacks"};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(Find<ucRadio>(panel_.get(), u"opMeal" + QString::number(i))->Caption(), meals[i]);
}

TEST_F(SearchTest, AnEmptyTermGivesAMessageAndTheListStays) {
    AddFood({.id = 1, .name = "Milk"});
    SearchFor("milk");
    ExpectAlert("Please enter a search term.");
    SearchFor("");
    EXPECT_EQ(Names(), QStringList{"Milk"});
    panel_->ShowResults();
    EXPECT_TRUE(Names().isEmpty());
}

TEST_F(SearchTest, RecipesThenCustomThenStockEachByName) {
    AddFood({.id = 2, .name = "Milk, whole"});
    AddFood({.id = 1, .name = "Milk, skim"});
    AddFood({.id = 23510, .name = "Milk of mine"});
    AddFood({.id = 23509, .name = "Almond milk"});
    AddRecipe("Rice in milk", "1 bowl");
    AddRecipe("Cocoa milk", "1 cup");
    SearchFor("milk");
    EXPECT_EQ(Names(), QStringList({"Cocoa milk", "Rice in milk", "Almond milk", "Milk of mine",
                                    "Milk, skim", "Milk, whole"}));
}

TEST_F(SearchTest, TheLastStockFoodIsNoCustomFood) {
    AddFood({.id = 23508, .name = "last stock"});
    AddFood({.id = 23509, .name = "first custom"});
    Tick("ckCustom", false);
    SearchFor("st");
    EXPECT_EQ(Names(), QStringList{"last stock"});
    Tick("ckCustom", true);
    Tick("ckStock", false);
    SearchFor("st");
    EXPECT_EQ(Names(), QStringList{"first custom"});
}

TEST_F(SearchTest, OnlyTickedSourcesAreSearched) {
    AddFood({.id = 1, .name = "Soup stock"});
    AddFood({.id = 23509, .name = "Soup custom"});
    AddRecipe("Soup recipe", "");
    Tick("ckRecipes", false);
    SearchFor("soup");
    EXPECT_EQ(Names(), QStringList({"Soup custom", "Soup stock"}));
    Tick("ckRecipes", true);
    Tick("ckCustom", false);
    Tick("ckStock", false);
    SearchFor("soup");
    EXPECT_EQ(Names(), QStringList{"Soup recipe"});
}

TEST_F(SearchTest, NoSourceTickedSaysThatNothingMatched) {
    AddFood({.id = 1, .name = "Milk"});
    for (const char* box : {"ckStock", "ckCustom", "ckRecipes"})
        Tick(box, false);
    SearchFor("milk");
    EXPECT_TRUE(Names().isEmpty());
    EXPECT_TRUE(Find(panel_.get(), "lblNoMatch")->isVisible());
}

TEST_F(SearchTest, EveryWordMustOccurInAnyOrderAndCase) {
    AddFood({.id = 1, .name = "Milk, whole, dry"});
    AddFood({.id = 2, .name = "Milk, skim, dry"});
    AddFood({.id = 3, .name = "CRÈME BRÛLÉE"});
    SearchFor("DRY whole");
    EXPECT_EQ(Names(), QStringList{"Milk, whole, dry"});
    SearchFor("crème brûlée");
    EXPECT_EQ(Names(), QStringList{"CRÈME BRÛLÉE"});
}

TEST_F(SearchTest, OneBlankListsEveryFoodUpTo201OfEachSource) {
    AddFoods(203, 1, "stock");
    AddFoods(202, 23509, "custom");
    AddRecipes(3, "recipe");
    SearchFor(" ");
    const QStringList names = Names();
    ASSERT_EQ(names.size(), 3 + 201 + 201);
    EXPECT_EQ(names[3], "custom 001");
    EXPECT_EQ(names[203], "custom 201");
    EXPECT_EQ(names[204], "stock 001");
    EXPECT_EQ(names.last(), "stock 201");
}

TEST_F(SearchTest, ThreeFullSourcesGive603Entries) {
    AddFoods(201, 1, "a stock");
    AddFoods(201, 23509, "a custom");
    AddRecipes(201, "a recipe");
    SearchFor("a");
    EXPECT_EQ(Names().size(), 603);
}

TEST_F(SearchTest, AWordBetweenTwoBlanksMatchesAnyName) {
    AddFood({.id = 1, .name = "Milk whole"});
    AddFood({.id = 2, .name = "Whole wheat"});
    SearchFor("milk  whole");
    EXPECT_EQ(Names(), QStringList{"Milk whole"});
}

TEST_F(SearchTest, APercentSignAndAnUnderscoreAreWildcards) {
    AddFood({.id = 1, .name = "Milk, 2% fat"});
    AddFood({.id = 2, .name = "Milk, whole fat"});
    AddFood({.id = 3, .name = "Mulk"});
    SearchFor("milk,%fat");
    EXPECT_EQ(Names(), QStringList({"Milk, 2% fat", "Milk, whole fat"}));
    SearchFor("m_lk");
    EXPECT_EQ(Names().size(), 3);
}

TEST_F(SearchTest, ANullNameMatchesNoEmptyWord) {
    FoodDB().Raw().exec("INSERT INTO FOODS (ID) VALUES (5)");
    AddFood({.id = 6, .name = "x"});
    SearchFor(" ");
    EXPECT_EQ(Names(), QStringList{"x"});
}

TEST_F(SearchTest, RowsCarryWhatTheSourceHolds) {
    AddFood({.id = 12, .name = "Milk", .servA = "1 cup", .servB = "1 quart"});
    const qint32 soup = AddRecipe("Milk soup", "1 bowl");
    SearchFor("milk");
    const auto rows = Rows(*panel_);
    EXPECT_TRUE(rows[0]->isRecipe());
    EXPECT_EQ(rows[0]->ID(), QString::number(soup));
    EXPECT_EQ(rows[0]->ServA(), "1 bowl");
    EXPECT_EQ(rows[0]->ServB(), "");
    EXPECT_FALSE(rows[1]->isRecipe());
    EXPECT_EQ(rows[1]->ID(), "12");
    EXPECT_EQ(rows[1]->ServA(), "1 cup");
    EXPECT_EQ(rows[1]->ServB(), "1 quart");
}

TEST_F(SearchTest, NullServingsAreEmptyTexts) {
    AddFood({.id = 1, .name = "Milk", .servA = QVariant(), .servB = QVariant()});
    SearchFor("milk");
    EXPECT_EQ(Rows(*panel_)[0]->ServA(), "");
    EXPECT_EQ(Rows(*panel_)[0]->ServB(), "");
}

TEST_F(SearchTest, ARecipeRowHasOneServingLine) {
    AddRecipe("Milk soup", "1 bowl");
    SearchFor("milk");
    const QRect row = Rows(*panel_)[0]->rect();
    EXPECT_TRUE(row.contains(Find(Rows(*panel_)[0], "txtQTY_A")->geometry()));
    EXPECT_FALSE(row.intersects(Find(Rows(*panel_)[0], "txtQTY_B")->geometry()));
}

TEST_F(SearchTest, AFoodWithoutASecondServingHasTheRowOfARecipe) {
    AddRecipe("Milk soup", "1 bowl");
    AddFood({.id = 1, .name = "Milk", .servB = ""});
    AddFood({.id = 2, .name = "Milk, dry", .servB = QVariant()});
    SearchFor("milk");
    for (const ucFood* row : Rows(*panel_)) {
        EXPECT_EQ(row->height(), Rows(*panel_)[0]->height());
        EXPECT_TRUE(Find(row, "cmdEAT_B")->isHidden());
    }
}

TEST_F(SearchTest, ASearchShowsItsProgressUnderABusyPointer) {
    AddFood({.id = 1, .name = "Milk"});
    BusyPaints paints;
    ASSERT_TRUE(QTest::qWaitForWindowExposed(panel_.get()));
    Find(panel_.get(), "picHome")->installEventFilter(&paints);
    SearchFor("milk");
    EXPECT_GE(paints.count, 1);
    EXPECT_EQ(paints.busy, paints.count);
}

TEST_F(SearchTest, ThePointerIsNormalAgainAfterASearch) {
    MousePointer::SetBusy();
    AddFood({.id = 1, .name = "Milk"});
    SearchFor("milk");
    EXPECT_FALSE(MousePointer::IsBusy());
    EXPECT_FALSE(Find(panel_.get(), "picStatus")->isVisible());
}

TEST_F(SearchTest, AnEmptyTermPutsThePointerBack) {
    MousePointer::SetBusy();
    ExpectAlert("Please enter a search term.");
    SearchFor("");
    EXPECT_FALSE(MousePointer::IsBusy());
}

// The filter of typed characters

TEST_F(SearchTest, TypedQuotesAndAsterisksAreIgnored) {
    QTest::keyClicks(Term(), "mi\"l*k's");
    EXPECT_EQ(Term()->text(), "milks");
}

TEST_F(SearchTest, EnterStartsTheSearch) {
    AddFood({.id = 1, .name = "Milk"});
    QTest::keyClicks(Term(), "milk");
    QTest::keyClick(Term(), Qt::Key_Return);
    EXPECT_EQ(Names(), QStringList{"Milk"});
    EXPECT_EQ(Term()->text(), "milk");
    Tick("ckStock", false);
    QTest::keyClick(Term(), Qt::Key_Enter);
    EXPECT_TRUE(Names().isEmpty());
}

TEST_F(SearchTest, EnterGoesOnToTheQuantityOfTheFirstFood) {
    AddFood({.id = 1, .name = "Milk"});
    AddFood({.id = 2, .name = "Milk shake"});
    ASSERT_TRUE(QTest::qWaitForWindowActive(panel_.get()));
    Term()->setText("milk");
    QTest::keyClick(Term(), Qt::Key_Return);
    auto* quantity = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(quantity, nullptr);
    EXPECT_EQ(quantity->accessibleName(), "Quantity of Milk, 1 cup");
    EXPECT_EQ(quantity->selectedText(), "1");
}

TEST_F(SearchTest, EnterStaysInTheTermWhereNothingIsFound) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(panel_.get()));
    Term()->setText("milk");
    QTest::keyClick(Term(), Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), Term());
    Term()->clear();
    ExpectAlert("Please enter a search term.");
    QTest::keyClick(Term(), Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), Term());
}

TEST_F(SearchTest, EnterDoesNotReachTheDialog) {
    AddFood({.id = 1, .name = "Milk"});
    Term()->setText("milk");
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r");
    QCoreApplication::sendEvent(Term(), &enter);
    EXPECT_TRUE(enter.isAccepted());
}

TEST_F(SearchTest, ComposedQuotesAreIgnoredToo) {
    QInputMethodEvent composed(QString(), {});
    composed.setCommitString("cr\"è*m'e");
    QCoreApplication::sendEvent(Term(), &composed);
    EXPECT_EQ(Term()->text(), "crème");
}

TEST_F(SearchTest, APastedQuoteFailsInTheStoreAndLeavesNoTrace) {
    AddFood({.id = 1, .name = "Milk"});
    QGuiApplication::clipboard()->setText("baker's");
    Term()->paste();
    ASSERT_EQ(Term()->text(), "baker's");
    EXPECT_LT(FailureOf([&] { panel_->SearchFoodsDB(); }), 0);
    EXPECT_FALSE(MousePointer::IsBusy());
    ExpectNothingWritten();
    EXPECT_EQ(Foods("SELECT COUNT(*) FROM FOODS").toInt(), 1);
}

TEST_F(SearchTest, StatementsInTheTermRunNothing) {
    AddFood({.id = 1, .name = "Milk"});
    for (const char* term : {"x';DELETE FROM FOODS;--", "x'; DROP TABLE FOODS; --",
                             "x' OR 1=1); DELETE FROM FOODS --"}) {
        Term()->setText(term);
        EXPECT_LT(FailureOf([&] { panel_->SearchFoodsDB(); }), 0) << term;
    }
    EXPECT_EQ(Foods("SELECT COUNT(*) FROM FOODS").toInt(), 1);
    ExpectNothingWritten();
}

TEST_F(SearchTest, UnusualTermsFindTheirFoods) {
    AddFood({.id = 1, .name = "Milk [2% fat] 🥛"});
    for (const char* term : {"[2%", "fat]", "🥛", "[2% 🥛"}) {
        SearchFor(QString::fromUtf8(term));
        EXPECT_EQ(Names().size(), 1) << term;
    }
    for (const char* term : {"[a-z]", "🍞", ";--", "\\", "?", "#1/1/2002#", "SELECT"}) {
        SearchFor(QString::fromUtf8(term));
        EXPECT_TRUE(Names().isEmpty()) << term;
    }
}

TEST_F(SearchTest, ATermOfTenThousandCharactersIsCutAtTheLengthThatTheSettingsKeep) {
    AddFood({.id = 1, .name = "Milk"});
    SearchFor(QString(10000, QLatin1Char('m')));
    EXPECT_EQ(Term()->text().size(), 255);
    EXPECT_TRUE(Names().isEmpty());
    SearchFor(QString(5000, QChar(0xe9)) + QString(5000, QLatin1Char('%')));
    EXPECT_TRUE(Names().isEmpty());
}

TEST_F(SearchTest, ATermOfThousandsOfWordsSearchesForThoseThatFitTheField) {
    AddFood({.id = 1, .name = "Milk"});
    AddFood({.id = 2, .name = "Tea"});
    SearchFor(QString("m ").repeated(5000));
    EXPECT_EQ(Names(), QStringList{"Milk"});
    EXPECT_FALSE(MousePointer::IsBusy());
}

TEST_F(SearchTest, AnEmbeddedNulIsRefusedByTheStoreAndWritesNothing) {
    AddFood({.id = 1, .name = "Milk"});
    Term()->setText(QStringLiteral("mi") + QChar(0) + QStringLiteral("lk"));
    EXPECT_LT(FailureOf([&] { panel_->SearchFoodsDB(); }), 0);
    EXPECT_FALSE(MousePointer::IsBusy());
    EXPECT_TRUE(Names().isEmpty());
    EXPECT_EQ(Foods("SELECT COUNT(*) FROM FOODS").toInt(), 1);
}

// The state that the settings keep

TEST_F(SearchTest, AFreshPanelTicksEverySourceAndBreakfast) {
    EXPECT_TRUE(Ticked("ckStock"));
    EXPECT_TRUE(Ticked("ckCustom"));
    EXPECT_TRUE(Ticked("ckRecipes"));
    EXPECT_EQ(Meal(), 0);
    EXPECT_EQ(Term()->text(), "");
}

TEST_F(SearchTest, StateIsWrittenOnDestructionAndReadAtCreation) {
    Tick("ckCustom", false);
    Click(Find(panel_.get(), "opMeal2"));
    Term()->setText("milk  'x");
    EXPECT_EQ(GetRegValue("OPMEAL"), "");
    panel_.reset();
    EXPECT_EQ(GetRegValue("SEARCH_CUSTOM"), "0");
    EXPECT_EQ(GetRegValue("SEARCH_RECIPES"), "1");
    EXPECT_EQ(GetRegValue("SEARCH_STOCK"), "1");
    EXPECT_EQ(GetRegValue("SEARCH_STRING"), "milk  'x");
    EXPECT_EQ(GetRegValue("OPMEAL"), "2");
    Open();
    EXPECT_FALSE(Ticked("ckCustom"));
    EXPECT_TRUE(Ticked("ckRecipes"));
    EXPECT_EQ(Meal(), 2);
    EXPECT_EQ(Term()->text(), "milk  'x");
    EXPECT_TRUE(Names().isEmpty());
    EXPECT_FALSE(Find(panel_.get(), "lblNoMatch")->isVisible());
}

TEST_F(SearchTest, EachSourceIsKeptUnderItsOwnName) {
    const std::pair<const char*, const char*> sources[] = {{"ckStock", "SEARCH_STOCK"},
                                                           {"ckCustom", "SEARCH_CUSTOM"},
                                                           {"ckRecipes", "SEARCH_RECIPES"}};
    for (const auto& [cleared, own] : sources) {
        for (const auto& [box, key] : sources)
            Tick(box, box != cleared);
        panel_.reset();
        for (const auto& [box, key] : sources)
            EXPECT_EQ(GetRegValue(key), key == own ? "0" : "1") << cleared << ' ' << key;
        Open();
        for (const auto& [box, key] : sources)
            EXPECT_EQ(Ticked(box), box != cleared) << cleared << ' ' << box;
    }
}

TEST_F(SearchTest, OnlyExactlyZeroClearsABox) {
    for (const char* value : {"1", "", "abc", "00", "0.0", " 0"}) {
        panel_.reset();
        for (const char* key : {"SEARCH_STOCK", "SEARCH_CUSTOM", "SEARCH_RECIPES"})
            SetRegValue(key, value);
        Open();
        EXPECT_TRUE(Ticked("ckStock") && Ticked("ckCustom") && Ticked("ckRecipes")) << value;
    }
    panel_.reset();
    SetRegValue("SEARCH_STOCK", "0");
    Open();
    EXPECT_FALSE(Ticked("ckStock"));
    EXPECT_TRUE(Ticked("ckCustom"));
}

TEST_F(SearchTest, AMealOutOfRangeTicksBreakfast) {
    for (const char* value : {"", "-1", "4", "99999999999", "abc", "3.5", "1e400"}) {
        panel_.reset();
        SetRegValue("OPMEAL", value);
        Open();
        EXPECT_EQ(Meal(), 0) << value;
    }
    panel_.reset();
    SetRegValue("OPMEAL", "3");
    Open();
    EXPECT_EQ(Meal(), 3);
}

TEST_F(SearchTest, SettingsThatCannotBeReadOrWrittenAreIgnored) {
    panel_.reset();
    QFile::remove(Folder() + "/Brindlewick/HALVANE.ini");
    ASSERT_TRUE(QDir(Folder()).mkpath("Brindlewick/HALVANE.ini"));
    Open();
    EXPECT_TRUE(Ticked("ckStock") && Ticked("ckCustom") && Ticked("ckRecipes"));
    EXPECT_EQ(Meal(), 0);
    EXPECT_EQ(Term()->text(), "");
    panel_.reset();
    EXPECT_TRUE(QFileInfo(Folder() + "/Brindlewick/HALVANE.ini").isDir());
}

TEST_F(SearchTest, NoMealTickedIsWrittenAsBreakfast) {
    Find<ucRadio>(panel_.get(), "opMeal0")->SetValue(false);
    panel_.reset();
    EXPECT_EQ(GetRegValue("OPMEAL"), "0");
}

TEST_F(SearchTest, SettingTheMealTicksItsOptionAndOverridesTheSettings) {
    panel_.reset();
    SetRegValue("OPMEAL", "1");
    Open();
    EXPECT_EQ(Meal(), 1);
    EXPECT_TRUE(panel_->setProperty("meal", 3));
    EXPECT_EQ(panel_->property("meal").toInt(), 3);
    EXPECT_EQ(Meal(), 3);
}

TEST_F(SearchTest, AnUnknownMealIsStoredAndTicksNothing) {
    panel_->SetMeal(2);
    panel_->SetMeal(7);
    EXPECT_EQ(panel_->meal(), 7);
    EXPECT_EQ(Meal(), 2);
}

TEST_F(SearchTest, AClickOnAMealClearsTheOthers) {
    Click(Find(panel_.get(), "opMeal3"));
    EXPECT_EQ(Meal(), 3);
    Click(Find(panel_.get(), "opMeal1"));
    EXPECT_EQ(Meal(), 1);
    EXPECT_FALSE(Find<ucRadio>(panel_.get(), "opMeal3")->Value());
    EXPECT_EQ(panel_->meal(), 0); // as the host has set it
}

TEST_F(SearchTest, TheArrowsWalkThroughTheMeals) {
    QWidget* first = Find(panel_.get(), "opMeal0");
    QTest::keyClick(first, Qt::Key_Right);
    EXPECT_EQ(Meal(), 1);
    QTest::keyClick(first, Qt::Key_Left);
    EXPECT_EQ(Meal(), 3);
    panel_->SetRecipeMode(true);
    QTest::keyClick(first, Qt::Key_Right);
    EXPECT_EQ(Meal(), 3);
}

TEST_F(SearchTest, RecipeModeHidesAllMealsButTheFirst) {
    EXPECT_TRUE(panel_->setProperty("RecipeMode", true));
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(Find(panel_.get(), u"opMeal" + QString::number(i))->isVisible(), i == 0);
    AddFood({.id = 1, .name = "Milk"});
    SearchFor("milk");
    EXPECT_TRUE(Rows(*panel_)[0]->RecipeMode());
    panel_->SetRecipeMode(false);
    EXPECT_TRUE(Find(panel_.get(), "opMeal3")->isVisible());
}

TEST_F(SearchTest, TheMouseAnywhereOnThePanelResetsTheSearchButtonAndIsRaised) {
    QSignalSpy moved(panel_.get(), &ucSearchResults::MouseMove);
    QWidget* go = Find(panel_.get(), "cmdGo");
    for (const char* name : {"lblFoodName", "txtSearchString", "ckStock", "opMeal1",
                             "picResultsPane", "lblLocations"}) {
        Hover(go);
        EXPECT_EQ(go->property("State").toInt(), 2);
        moved.clear();
        Hover(Find(panel_.get(), name), {2, 2});
        EXPECT_EQ(go->property("State").toInt(), 1) << name;
        EXPECT_GE(moved.size(), 1) << name;
    }
    Hover(go);
    Hover(panel_.get(), {300, 2});
    EXPECT_EQ(go->property("State").toInt(), 1);
}

TEST_F(SearchTest, MovingOverARowResetsTheSearchButton) {
    AddFood({.id = 1, .name = "Milk"});
    SearchFor("milk");
    QWidget* go = Find(panel_.get(), "cmdGo");
    Hover(go);
    Hover(Rows(*panel_)[0], {2, 2});
    EXPECT_EQ(go->property("State").toInt(), 1);
}
