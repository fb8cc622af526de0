#include "foods/FoodsTest.h"
#include "support/KillPoints.h"

#include "foods/ScaledFood.h"
#include "foods/ui/frmFoodList.h"
#include "foods/ui/frmNutInfo.h"
#include "foods/ui/ucFood.h"
#include "foods/ui/ucSearchResults.h"
#include "model/Nutrients.h"
#include "store/Connection.h"
#include "toolkit/ListBox.h"
#include "toolkit/MousePointer.h"
#include "toolkit/ucButton.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <SQLiteCpp/SQLiteCpp.h>

#include <memory>

namespace {

struct FieldRow {
    const char* field;
    const char* caption;
    const char* column;
};

constexpr FieldRow NameRows[] = {
    {"txtFoodName", "Food Name", "FoodName"},
    {"txtServing", "Serving", "Serv_Desc_A"},
};

constexpr FieldRow AmountRows[] = {
    {"txtCals", "Calories", "Calories"},
    {"txtTotalFat", "Total Fat (g)", "TotalFat"},
    {"txtSatFat", "Saturated Fat (g)", "SatFat"},
    {"txtMonoFat", "Monounsaturated Fat (g)", "MonoFat"},
    {"txtPolyFat", "Polyunsaturated Fat (g)", "PolyFat"},
    {"txtCholesterol", "Cholesterol (mg)", "Cholesterol"},
    {"txtSodium", "Sodium (mg)", "sodium"},
    {"txtCarbs", "Carbohydrates (g)", "carbs"},
    {"txtFiber", "Fiber (g)", "fiber"},
    {"txtProtein", "Protein (g)", "protein"},
    {"txtAsh", "Ash (g)", "ASH"},
    {"txtCalcium", "Calcium (mg)", "Calcium"},
    {"txtCopper", "Copper (mg)", "Copper"},
    {"txtFolate", "Folate (mcg)", "Folate"},
    {"txtIron", "Iron (mg)", "Iron"},
    {"txtMagnesium", "Magnesium (mg)", "Magnesium"},
    {"txtManganese", "Manganese (mg)", "Manganese"},
    {"txtNiacin", "Niacin (mg)", "Niacin"},
    {"txtPantoAcid", "Panto. Adic (mg)", "Panto"},
    {"txtPhosphorus", "Phosphorus (mg)", "Phosphorus"},
    {"txtPotassium", "Potassium (mg)", "Potassium"},
    {"txtRiboflavin", "Riboflavin (mg)", "Riboflavin"},
    {"txtSelenium", "Selenium (mg)", "Selenium"},
    {"txtThiamin", "Thiamin (mg)", "Thiamin"},
    {"txtVitA", "Via. A (iu)", "VitaminA"},
    {"txtVitB12", "Vit. B12 (mcg)", "VitaminB12"},
    {"txtVitB6", "Vit. B6 (mg)", "VitaminB6"},
    {"txtVitC", "Vit. C (mg)", "VitaminC"},
    {"txtVitE", "Vit. E (mg)", "VitaminE"},
    {"txtWater", "Water (g)", "water"},
    {"txtZinc", "Zinc (mg)", "Zinc"},
};
static_assert(std::size(AmountRows) == NutrientCount);

const QString FoodRefused =
    QStringLiteral("Food names cannot contain the special characters '~', '^' or \".");
const QString ServingRefused =
    QStringLiteral("Serving names cannot contain the special characters '~', '^' or \".");
const QString NoName = QStringLiteral("Please give your custom food a name.");
const QString NoServing = QStringLiteral("Please give your custom food a serving size.");
const QString SureToDelete = QStringLiteral("Are you sure you want to delete this custom food?");

/// Texts that would break a statement put together from them.
const QString Sql[] = {QStringLiteral("x'; DROP TABLE FOODS; --"), QStringLiteral("' OR '1'='1"),
                       QStringLiteral("#3/4/2002# % _ [a] TOP 1"), QStringLiteral("O'Brien's")};

} // namespace

class frmFoodListTest : public FoodsTest {
protected:
    void SetUp() override {
        FoodsTest::SetUp();
        AddFood({.id = 23508, .name = "Last stock food"});
    }

    frmFoodList& Open() {
        screen_ = std::make_unique<frmFoodList>();
        screen_->resize(766, 562);
        screen_->show();
        QApplication::setActiveWindow(screen_.get());
        screen_->BeforeShow();
        screen_->DoWinInit();
        return *screen_;
    }

    ListBox& List() { return *Find<ListBox>(screen_.get(), "FoodList"); }
    QLineEdit& Field(const char* name) { return *Find<QLineEdit>(screen_.get(), name); }
    ucButton& Button(const char* name) { return *Find<ucButton>(screen_.get(), name); }
    void Press(const char* name) { Click(&Button(name)); }
    bool On(const char* name) { return Button(name).Enabled() && Button(name).State() != 4; }
    void Choose(int line) {
        ListBox& list = List();
        list.scrollTo(list.model()->index(line, 0));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                          list.visualRect(list.model()->index(line, 0)).center());
    }
    void Type(const char* name, const QString& text) {
        QLineEdit& field = Field(name);
        field.setFocus();
        field.selectAll();
        QTest::keyClick(&field, Qt::Key_Delete);
        QTest::keyClicks(&field, text);
    }
    void Paste(const char* name, const QString& text) {
        QGuiApplication::clipboard()->setText(text);
        Field(name).setFocus();
        Field(name).selectAll();
        Field(name).paste();
    }
    void SaveNew(const QString& name, const QString& serving = QStringLiteral("1 bowl")) {
        Press("cmdNewBut");
        Field("txtFoodName").setText(name);
        Field("txtServing").setText(serving);
        Press("cmdSave");
    }
    void Delete(bool answer = true) {
        ExpectAlert(SureToDelete, answer);
        Press("cmdDelete");
    }

    QVariant Stored(const QString& column, qint32 id = 23509) {
        return Foods(u"SELECT " + column + u" FROM FOODS WHERE ID=" + QString::number(id));
    }
    int CustomCount() { return Foods("SELECT COUNT(*) FROM FOODS WHERE ID > 23508").toInt(); }

    void ExpectMode(int mode) {
        EXPECT_EQ(screen_->Mode(), mode);
        EXPECT_EQ(On("cmdSave"), mode == 2);
        EXPECT_EQ(On("cmdCancel"), mode == 2);
        EXPECT_EQ(On("cmdDelete"), mode == 1);
        EXPECT_TRUE(On("cmdNewBut"));
        EXPECT_TRUE(On("cmdDone"));
        EXPECT_EQ(List().isEnabled(), mode != 2);
        for (const QLineEdit* field : screen_->findChildren<QLineEdit*>())
            EXPECT_EQ(field->isEnabled(), mode != 0) << field->objectName().toStdString();
    }
    void ExpectCleared() {
        for (const QLineEdit* field : screen_->findChildren<QLineEdit*>())
            EXPECT_EQ(field->text(), "") << field->objectName().toStdString();
    }

    std::unique_ptr<frmFoodList> screen_;
};

// What is on the screen

TEST_F(frmFoodListTest, TheScreenHasItsTitlePanelsAndButtons) {
    EXPECT_EQ(Open().Title(), "Custom Foods");
    EXPECT_EQ(screen_->objectName(), "frmFoodList");
    EXPECT_EQ(Find(screen_.get(), "ucBox1")->property("Caption"), "My Custom Foods");
    EXPECT_EQ(Find(screen_.get(), "ucBox2")->property("Caption"), "Food Information");
    const QList<QPair<const char*, const char*>> buttons{{"cmdNewBut", "New"},
                                                         {"cmdSave", "Save"},
                                                         {"cmdCancel", "Cancel"},
                                                         {"cmdDelete", "Delete"},
                                                         {"cmdDone", "Done"}};
    for (const auto& [name, caption] : buttons)
        EXPECT_EQ(Button(name).Caption(), caption);
}

TEST_F(frmFoodListTest, EveryFieldIsBesideItsCaption) {
    Open();
    const auto expect = [this](const FieldRow& row) {
        const QLineEdit& field = Field(row.field);
        EXPECT_EQ(field.accessibleName(), row.caption);
        const auto* caption =
            Find<QLabel>(screen_.get(), u"lbl" + QString::fromLatin1(row.field).mid(3));
        EXPECT_EQ(caption->text(), row.caption);
        EXPECT_EQ(caption->buddy(), &field);
        EXPECT_LT(caption->geometry().right(), field.x());
        EXPECT_GE(caption->width(), caption->sizeHint().width()) << row.caption;
        EXPECT_NEAR(caption->geometry().center().y(), field.geometry().center().y(), 1);
    };
    std::for_each(std::begin(NameRows), std::end(NameRows), expect);
    std::for_each(std::begin(AmountRows), std::end(AmountRows), expect);
    EXPECT_EQ(screen_->findChildren<QLineEdit*>().size(), NutrientCount + 2);
}

TEST_F(frmFoodListTest, AnAmountHasRoomForSixFigures) {
    AddFood({.id = 23509, .name = "a", .nutrients = {{"Calories", 1}}});
    Open();
    for (const FieldRow& row : AmountRows) {
        const QLineEdit& field = Field(row.field);
        EXPECT_GE(field.width() - 14, field.fontMetrics().horizontalAdvance("1234.5")) << row.field;
        EXPECT_LE(field.geometry().bottom(), field.parentWidget()->height());
        EXPECT_LE(field.geometry().right(), field.parentWidget()->width());
    }
}

TEST_F(frmFoodListTest, TabLeadsThroughListButtonsAndFieldsInReadingOrder) {
    AddFood({.id = 23509, .name = "a"});
    Open();
    Type("txtFoodName", "b"); // turns all buttons on
    QStringList expected{"cmdNewBut", "cmdDelete"};
    for (const FieldRow& row : NameRows)
        expected << row.field;
    for (const FieldRow& row : AmountRows)
        expected << row.field;
    expected << "cmdSave"
             << "cmdCancel"
             << "cmdDone"
             << "FoodList";
    List().setFocus();
    for (const QString& name : expected) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), name);
    }
}

TEST_F(frmFoodListTest, AssistiveToolsFindANameOnEveryControl) {
    Open();
    for (const QWidget* control : screen_->findChildren<QWidget*>()) {
        const bool named = !control->accessibleName().isEmpty() ||
                           !control->property("Caption").toString().isEmpty();
        EXPECT_TRUE(named || !(control->focusPolicy() & Qt::TabFocus))
            << control->objectName().toStdString();
    }
}

// Loading and listing

TEST_F(frmFoodListTest, WithoutCustomFoodsNothingIsSelectedAndAllFieldsAreDisabled) {
    Open();
    EXPECT_EQ(List().ListCount(), 0);
    ExpectCleared();
    ExpectMode(0);
}

TEST_F(frmFoodListTest, OnlyFoodsAboveTheLastStockFoodAreListedByName) {
    AddFood({.id = 1, .name = "Stock"});
    AddFood({.id = 23510, .name = "apple cake"});
    AddFood({.id = 23511, .name = "Zucchini soup"});
    AddFood({.id = 23509, .name = "Bread, my own"});
    Open();
    EXPECT_EQ(List().List(), QStringList({"apple cake", "Bread, my own", "Zucchini soup"}));
    EXPECT_EQ(List().ItemData(0), 23510);
    EXPECT_EQ(List().ItemData(1), 23509);
    EXPECT_EQ(List().ItemData(2), 23511);
}

TEST_F(frmFoodListTest, TheScreenOpensWithTheLastLineChosenAndLoaded) {
    AddFood({.id = 23509, .name = "a"});
    AddFood({.id = 23510, .name = "b", .nutrients = {{"Calories", 12.5}}});
    Open();
    EXPECT_EQ(List().ListIndex(), 1);
    EXPECT_EQ(Field("txtFoodName").text(), "b");
    EXPECT_EQ(Field("txtCals").text(), "12.5");
    EXPECT_TRUE(screen_->Editing());
    EXPECT_EQ(screen_->CurrentID(), 23510);
    ExpectMode(1);
}

TEST_F(frmFoodListTest, ComingForwardAgainChangesNothing) {
    AddFood({.id = 23509, .name = "a"});
    Open();
    Type("txtFoodName", "half typed");
    AddFood({.id = 23510, .name = "b"});
    screen_->DoWinInit();
    EXPECT_EQ(List().ListCount(), 1);
    EXPECT_EQ(Field("txtFoodName").text(), "half typed");
    EXPECT_TRUE(On("cmdSave"));
}

TEST_F(frmFoodListTest, AClickOnALineLoadsAllOfItsFields) {
    FoodRow food{.id = 23510, .name = "b", .servA = "2 slices"};
    double amount = 0.5;
    for (const FieldRow& row : AmountRows)
        food.nutrients[row.column] = amount++;
    AddFood(food);
    AddFood({.id = 23511, .name = "c"});
    Open();
    Choose(0);
    EXPECT_EQ(Field("txtFoodName").text(), "b");
    EXPECT_EQ(Field("txtServing").text(), "2 slices");
    amount = 0.5;
    for (const FieldRow& row : AmountRows) {
        EXPECT_EQ(Field(row.field).text(), QString::number(amount)) << row.field;
        amount += 1;
    }
    EXPECT_EQ(screen_->CurrentID(), 23510);
    ExpectMode(1);
}

TEST_F(frmFoodListTest, ArrowKeysInTheListLoadTheFood) {
    AddFoods(3, 23509, "food");
    Open();
    List().setFocus();
    QTest::keyClick(&List(), Qt::Key_Up);
    EXPECT_EQ(Field("txtFoodName").text(), "food 002");
    QTest::keyClick(&List(), Qt::Key_Home);
    EXPECT_EQ(Field("txtFoodName").text(), "food 001");
}

TEST_F(frmFoodListTest, NullsLoadAsEmptyFields) {
    AddFood({.id = 23509, .name = "a", .servA = QVariant()});
    Foods("UPDATE FOODS SET FoodName = NULL WHERE ID = 23509");
    Open();
    EXPECT_EQ(List().Text(0), "");
    ExpectCleared();
    ExpectMode(1);
}

TEST_F(frmFoodListTest, LongNumbersShowTheirBeginning) {
    AddFood({.id = 23509, .name = "a", .nutrients = {{"Calories", 1234567890.125}}});
    Open();
    EXPECT_EQ(Field("txtCals").text(), "1234567890.125");
    EXPECT_EQ(Field("txtCals").cursorPosition(), 0);
}

// Modes

TEST_F(frmFoodListTest, TypingIntoAnyFieldOfAStoredFoodTurnsSaveAndCancelOn) {
    AddFood({.id = 23509, .name = "a"});
    Open();
    for (const QLineEdit* field : screen_->findChildren<QLineEdit*>()) {
        Choose(0);
        ExpectMode(1);
        QTest::keyClicks(const_cast<QLineEdit*>(field), "7");
        EXPECT_TRUE(On("cmdSave") && On("cmdCancel")) << field->objectName().toStdString();
        EXPECT_TRUE(On("cmdDelete"));
        EXPECT_TRUE(List().isEnabled());
        EXPECT_EQ(screen_->Mode(), 1);
    }
}

TEST_F(frmFoodListTest, LoadingAFoodLeavesSaveAndCancelOff) {
    AddFoods(2, 23509, "food");
    Open();
    Type("txtCals", "5");
    Choose(0);
    ExpectMode(1);
    EXPECT_EQ(Field("txtCals").text(), "");
}

TEST_F(frmFoodListTest, NewShowsThePlaceholdersAndEmptyAmounts) {
    AddFood({.id = 23509, .name = "a", .nutrients = {{"Calories", 5}}});
    Open();
    Press("cmdNewBut");
    EXPECT_EQ(Field("txtFoodName").text(), "New Food Name");
    EXPECT_EQ(Field("txtServing").text(), "Serving Size");
    for (const FieldRow& row : AmountRows)
        EXPECT_EQ(Field(row.field).text(), "");
    EXPECT_FALSE(screen_->Editing());
    ExpectMode(2);
    EXPECT_EQ(CustomCount(), 1);
}

TEST_F(frmFoodListTest, NewSelectsTheNameForTyping) {
    Open();
    Press("cmdNewBut");
    QTest::keyClicks(QApplication::focusWidget(), "Muesli");
    EXPECT_EQ(Field("txtFoodName").text(), "Muesli");
}

TEST_F(frmFoodListTest, NewTwiceStartsOver) {
    Open();
    Press("cmdNewBut");
    Type("txtFoodName", "Muesli");
    Type("txtCals", "5");
    Press("cmdNewBut");
    EXPECT_EQ(Field("txtFoodName").text(), "New Food Name");
    EXPECT_EQ(Field("txtCals").text(), "");
    ExpectMode(2);
}

TEST_F(frmFoodListTest, CancelOfANewFoodGoesBackToTheOneChosenBefore) {
    AddFoods(3, 23509, "food");
    Open();
    Choose(1);
    Press("cmdNewBut");
    Type("txtFoodName", "Muesli");
    Press("cmdCancel");
    EXPECT_EQ(List().ListIndex(), 1);
    EXPECT_EQ(Field("txtFoodName").text(), "food 002");
    ExpectMode(1);
    EXPECT_EQ(CustomCount(), 3);
}

TEST_F(frmFoodListTest, CancelOfTheFirstNewFoodEmptiesTheFields) {
    Open();
    Press("cmdNewBut");
    Press("cmdCancel");
    ExpectCleared();
    ExpectMode(0);
    EXPECT_EQ(CustomCount(), 0);
}

TEST_F(frmFoodListTest, CancelOfAnEditLoadsTheFoodAgain) {
    AddFood({.id = 23509, .name = "a", .nutrients = {{"Calories", 5}}});
    Open();
    Type("txtFoodName", "b");
    Type("txtCals", "6");
    Press("cmdCancel");
    EXPECT_EQ(Field("txtFoodName").text(), "a");
    EXPECT_EQ(Field("txtCals").text(), "5");
    ExpectMode(1);
    EXPECT_EQ(Stored("FoodName"), "a");
}

TEST_F(frmFoodListTest, ChoosingAnotherLineDropsWhatWasTyped) {
    AddFoods(2, 23509, "food");
    Open();
    Type("txtFoodName", "half typed");
    Choose(0);
    Choose(1);
    EXPECT_EQ(Field("txtFoodName").text(), "food 002");
    EXPECT_EQ(Stored("FoodName", 23510), "food 002");
}

TEST_F(frmFoodListTest, DoneGoesHomeAndSavesNothing) {
    AddFood({.id = 23509, .name = "a"});
    Open();
    Type("txtFoodName", "b");
    Press("cmdDone");
    EXPECT_EQ(shownScreens, QStringList{"frmMain"});
    EXPECT_EQ(Stored("FoodName"), "a");
}

// Saving

TEST_F(frmFoodListTest, TheFirstCustomFoodGetsTheKeyAfterTheLastStockFood) {
    Open();
    SaveNew("Muesli");
    EXPECT_EQ(Stored("FoodName"), "Muesli");
    EXPECT_EQ(CustomCount(), 1);
    EXPECT_EQ(screen_->CurrentID(), 23509);
    EXPECT_EQ(List().ListIndex(), 0);
    ExpectMode(1);
    EXPECT_TRUE(screen_->Editing());
}

TEST_F(frmFoodListTest, ThePlaceholdersPassTheChecks) {
    Open();
    Press("cmdNewBut");
    Press("cmdSave");
    EXPECT_EQ(Stored("FoodName"), "New Food Name");
    EXPECT_EQ(Stored("Serv_Desc_A"), "Serving Size");
    EXPECT_EQ(List().List(), QStringList{"New Food Name"});
}

TEST_F(frmFoodListTest, AmountsAreStoredAsTypedForAServingOfAHundredGrams) {
    Open();
    Press("cmdNewBut");
    Type("txtFoodName", "Muesli");
    Type("txtServing", "1 bowl");
    double amount = 0.25;
    for (const FieldRow& row : AmountRows) {
        Type(row.field, QString::number(amount));
        amount += 1;
    }
    Press("cmdSave");
    amount = 0.25;
    for (const FieldRow& row : AmountRows) {
        EXPECT_EQ(Stored(row.column).toDouble(), amount) << row.column;
        amount += 1;
    }
    EXPECT_EQ(Stored("Serv_Desc_A"), "1 bowl");
    EXPECT_EQ(Stored("Serv_GM_WT_A").toDouble(), 100);
    EXPECT_TRUE(Stored("Serv_Desc_B").isNull());
    EXPECT_TRUE(Stored("Serv_GM_WT_B").isNull());
}

TEST_F(frmFoodListTest, WhatIsNoNumberCountsAsZeroAndAMinusSignIsDropped) {
    const QList<QPair<const char*, double>> texts{
        {"", 0},      {"abc", 0},    {"-5", 5},  {"12abc", 12},         {"-.5", .5},
        {" 1 2", 12}, {"1e3", 1000}, {"1,5", 1}, {"1e400", 0},          {"NaN", 0},
        {"0x10", 0},  {"-0", 0},     {"+7", 7},  {"999999.5", 999999.5}};
    Open();
    SaveNew("Muesli");
    for (const auto& [text, number] : texts)
        for (const char* field : {"txtCals", "txtZinc"}) {
            Type("txtServing", "1 bowl"); // turns cmdSave on whatever the number
            Field(field).setText(text);
            Press("cmdSave");
            EXPECT_EQ(Stored(QLatin1String(field) == u"txtCals" ? "Calories" : "Zinc").toDouble(),
                      number)
                << text;
        }
}

TEST_F(frmFoodListTest, SavingAnotherNameKeepsEveryAmountToTheLastDigit) {
    AddFood({.id = 23509,
             .name = "a",
             .nutrients = {{"Calories", 1.0 / 3},
                           {"Zinc", 1e-7},
                           {"VitaminA", 123456.12345678},
                           {"Copper", 0.1 + 0.2},
                           {"water", 999999.5}}});
    const auto amounts = [this] {
        return HalvaneTest::Rows(FoodDB(), "SELECT Calories, Zinc, VitaminA, Copper, water FROM "
                                           "FOODS WHERE ID = 23509");
    };
    const auto before = amounts();
    Open();
    Type("txtFoodName", "b");
    Press("cmdSave");
    EXPECT_EQ(Stored("FoodName"), "b");
    EXPECT_EQ(amounts(), before);
}

TEST_F(frmFoodListTest, AnEmptyAmountComesBackAsZero) {
    Open();
    SaveNew("Muesli");
    for (const FieldRow& row : AmountRows)
        EXPECT_EQ(Field(row.field).text(), "0") << row.field;
}

TEST_F(frmFoodListTest, OwnFoodsAreListedInTheOrderThatAPersonExpects) {
    const char* names[] = {"Zebra", "éclair", "Äpfel", "apple", "Apple", "œuf", "Ñame", "nut"};
    for (int i = 0; i < int(std::size(names)); ++i)
        AddFood({.id = 23509 + i, .name = QString::fromUtf8(names[i])});
    frmFoodList form;
    EXPECT_EQ(Find<ListBox>(&form, "FoodList")->List(),
              QStringList({"apple", "Apple", "Äpfel", "éclair", "nut", "Ñame", "œuf", "Zebra"}));
    EXPECT_EQ(Find<ListBox>(&form, "FoodList")->ItemData(7), 23509);
}

TEST_F(frmFoodListTest, TheNextKeyFollowsTheHighestOne) {
    AddFood({.id = 23600, .name = "a"});
    AddFood({.id = 23550, .name = "z"});
    Open();
    SaveNew("m");
    EXPECT_EQ(Stored("FoodName", 23601), "m");
    EXPECT_EQ(List().ListIndex(), 1);
}

TEST_F(frmFoodListTest, TheHighestKeyIsReusedAfterDeleting) {
    Open();
    SaveNew("a");
    SaveNew("b");
    Delete();
    SaveNew("c");
    EXPECT_EQ(Stored("FoodName", 23510), "c");
    EXPECT_EQ(CustomCount(), 2);
}

TEST_F(frmFoodListTest, ALowerKeyIsNotReusedAfterDeleting) {
    Open();
    SaveNew("a");
    SaveNew("b");
    Choose(0);
    Delete();
    SaveNew("c");
    EXPECT_EQ(Stored("FoodName", 23511), "c");
    EXPECT_TRUE(Stored("FoodName", 23509).isNull());
}

TEST_F(frmFoodListTest, ANewFoodIsSelectedAtThePlaceOfItsName) {
    AddFood({.id = 23509, .name = "a"});
    AddFood({.id = 23510, .name = "z"});
    Open();
    SaveNew("m");
    EXPECT_EQ(List().List(), QStringList({"a", "m", "z"}));
    EXPECT_EQ(List().ListIndex(), 1);
    EXPECT_EQ(Field("txtFoodName").text(), "m");
}

TEST_F(frmFoodListTest, ANewNameKeepsTheKeyAndTheChoice) {
    AddFoods(3, 23509, "food");
    Open();
    Choose(0);
    Type("txtFoodName", "zwieback");
    Press("cmdSave");
    EXPECT_EQ(Stored("FoodName", 23509), "zwieback");
    EXPECT_EQ(CustomCount(), 3);
    EXPECT_EQ(List().List(), QStringList({"food 002", "food 003", "zwieback"}));
    EXPECT_EQ(List().ListIndex(), 2);
    EXPECT_EQ(screen_->CurrentID(), 23509);
    ExpectMode(1);
}

TEST_F(frmFoodListTest, TwoFoodsMayHaveTheSameName) {
    Open();
    SaveNew("Muesli");
    SaveNew("Muesli");
    EXPECT_EQ(List().List(), QStringList({"Muesli", "Muesli"}));
    EXPECT_EQ(List().ItemData(List().ListIndex()), 23510);
    EXPECT_EQ(CustomCount(), 2);
}

TEST_F(frmFoodListTest, SavingLeavesTheStockFoodsAlone) {
    AddFood({.id = 7, .name = "Bread", .nutrients = {{"Calories", 250}}});
    const auto before = HalvaneTest::Rows(FoodDB(), "SELECT * FROM FOODS WHERE ID <= 23508");
    Open();
    SaveNew("Muesli");
    Type("txtCals", "5");
    Press("cmdSave");
    Delete();
    EXPECT_EQ(HalvaneTest::Rows(FoodDB(), "SELECT * FROM FOODS WHERE ID <= 23508"), before);
    EXPECT_EQ(before.size(), 2);
}

TEST_F(frmFoodListTest, AFailedSaveLeavesARowThatCanBeFilledInLater) {
    Open();
    FoodDB().Raw().exec("CREATE TRIGGER broken BEFORE UPDATE ON FOODS BEGIN SELECT "
                        "RAISE(ABORT, 'disk gone'); END");
    Press("cmdNewBut");
    Field("txtFoodName").setText("Muesli");
    EXPECT_THROW(screen_->findChild<ucButton*>("cmdSave")->Click(), RuntimeError);
    EXPECT_EQ(CustomCount(), 1);
    EXPECT_TRUE(Stored("FoodName").isNull());
    EXPECT_TRUE(Stored("Serv_GM_WT_A").isNull());
    FoodDB().Raw().exec("DROP TRIGGER broken");
    Open();
    EXPECT_EQ(List().List(), QStringList{""});
    ExpectCleared();
    Type("txtFoodName", "Muesli");
    Type("txtServing", "1 bowl");
    Press("cmdSave");
    EXPECT_EQ(Stored("FoodName"), "Muesli");
    EXPECT_EQ(CustomCount(), 1);
}

// Refusals

TEST_F(frmFoodListTest, EachRefusedCharacterIsRefusedInTheNameTypedAndPasted) {
    Open();
    for (const char* text : {"a^b", "~", "a \"quoted\" name"}) {
        Press("cmdNewBut");
        Type("txtFoodName", text);
        EXPECT_EQ(Field("txtFoodName").text(), text);
        ExpectAlert(FoodRefused);
        Press("cmdSave");
        Paste("txtFoodName", text);
        ExpectAlert(FoodRefused);
        Press("cmdSave");
        ExpectMode(2);
        EXPECT_EQ(Field("txtFoodName").text(), text);
    }
    EXPECT_EQ(CustomCount(), 0);
}

TEST_F(frmFoodListTest, EachRefusedCharacterIsRefusedInTheServingTypedAndPasted) {
    Open();
    for (const char* text : {"1^2", "~1 cup", "8\""}) {
        Press("cmdNewBut");
        Type("txtServing", text);
        ExpectAlert(ServingRefused);
        Press("cmdSave");
        Paste("txtServing", text);
        ExpectAlert(ServingRefused);
        Press("cmdSave");
    }
    EXPECT_EQ(CustomCount(), 0);
}

TEST_F(frmFoodListTest, RefusedCharactersInAnAmountMakeItZero) {
    Open();
    SaveNew("Muesli");
    for (const char* text : {"^5", "~5", "\"5\""})
        for (const FieldRow& row : AmountRows) {
            Type(row.field, text);
            Press("cmdSave");
            EXPECT_EQ(Stored(row.column).toDouble(), 0) << row.field << text;
        }
}

TEST_F(frmFoodListTest, AnAmountBeyondAMillionIsRefusedInEachField) {
    Open();
    SaveNew("Muesli");
    for (const FieldRow& row : AmountRows)
        for (const char* text : {"1000000.5", "-3000000000", "1e300"}) {
            Type(row.field, text);
            ExpectAlert("The amount of " + QString(row.caption) +
                        " is too large. Please enter a number up to 1,000,000.");
            Press("cmdSave");
            EXPECT_TRUE(Field(row.field).hasFocus());
            EXPECT_EQ(Stored(row.column).toDouble(), 0);
            Type(row.field, "0");
        }
    Type("txtCals", "1000000");
    Press("cmdSave");
    EXPECT_EQ(Stored("Calories"), 1000000);
}

TEST_F(frmFoodListTest, AnEmptyNameOrServingIsRefused) {
    Open();
    Press("cmdNewBut");
    Type("txtFoodName", "");
    ExpectAlert(NoName);
    Press("cmdSave");
    EXPECT_TRUE(Field("txtFoodName").hasFocus());
    Type("txtFoodName", "Muesli");
    Type("txtServing", "");
    ExpectAlert(NoServing);
    Press("cmdSave");
    EXPECT_TRUE(Field("txtServing").hasFocus());
    EXPECT_EQ(CustomCount(), 0);
    ExpectMode(2);
}

TEST_F(frmFoodListTest, BlanksAloneAreANameAndAServing) {
    Open();
    SaveNew(" ", " ");
    EXPECT_EQ(Stored("FoodName"), " ");
    EXPECT_EQ(Stored("Serv_Desc_A"), " ");
}

TEST_F(frmFoodListTest, OnlyTheFirstRefusalIsShown) {
    Open();
    Press("cmdNewBut");
    Field("txtFoodName").setText("~");
    Field("txtServing").setText("^");
    ExpectAlert(FoodRefused);
    Press("cmdSave");
    Field("txtFoodName").clear();
    ExpectAlert(ServingRefused);
    Press("cmdSave");
    Field("txtServing").clear();
    ExpectAlert(NoName);
    Press("cmdSave");
}

TEST_F(frmFoodListTest, ARefusedEditLeavesTheStoredFoodAsItWas) {
    AddFood({.id = 23509, .name = "a", .nutrients = {{"Calories", 5}}});
    Open();
    Type("txtCals", "6");
    Type("txtFoodName", "a~");
    ExpectAlert(FoodRefused);
    Press("cmdSave");
    EXPECT_EQ(Stored("Calories").toDouble(), 5);
    EXPECT_TRUE(On("cmdSave"));
}

// Unusual texts

TEST_F(frmFoodListTest, ApostrophesAndSqlAreOrdinaryText) {
    Open();
    for (const QString& text : Sql) {
        Press("cmdNewBut");
        for (const QLineEdit* field : screen_->findChildren<QLineEdit*>())
            Paste(qPrintable(field->objectName()), text);
        Press("cmdSave");
        const qint32 id = screen_->CurrentID();
        EXPECT_EQ(Stored("FoodName", id), text);
        EXPECT_EQ(Stored("Serv_Desc_A", id), text);
        for (const FieldRow& row : AmountRows)
            EXPECT_EQ(Stored(row.column, id).toDouble(), 0) << row.column;
        EXPECT_EQ(Field("txtFoodName").text(), text);
    }
    EXPECT_EQ(CustomCount(), int(std::size(Sql)));
}

TEST_F(frmFoodListTest, NamesOfTenThousandCharactersAreKeptWhole) {
    Open();
    const QString name = QString(9999, u'ü') + u'z';
    const QString serving(10000, u'W');
    SaveNew(name, serving);
    EXPECT_EQ(Stored("FoodName"), name);
    EXPECT_EQ(Stored("Serv_Desc_A"), serving);
    EXPECT_EQ(List().Text(0), name);
    EXPECT_EQ(Field("txtFoodName").text(), name);
    EXPECT_FALSE(Grab(screen_.get()).isNull());
}

TEST_F(frmFoodListTest, ANulInAFieldIsKeptAndEndsNoStatement) {
    Open();
    const QString name = QStringLiteral("a") + QChar(0) + QStringLiteral("'; --");
    Press("cmdNewBut");
    for (QLineEdit* field : screen_->findChildren<QLineEdit*>())
        field->setText(name);
    Press("cmdSave");
    EXPECT_EQ(CustomCount(), 1);
    EXPECT_EQ(Field("txtFoodName").text(), name);
    EXPECT_EQ(List().Text(0), name);
    EXPECT_EQ(Stored("Zinc").toDouble(), 0);
    Delete();
    EXPECT_EQ(CustomCount(), 0);
}

TEST_F(frmFoodListTest, LettersOfEveryScriptAreKept) {
    Open();
    const QString name = QStringLiteral("Crème brûlée 焼き <b>&amp;</b>");
    SaveNew(name, QStringLiteral("½ чашки"));
    EXPECT_EQ(Stored("FoodName"), name);
    EXPECT_EQ(Stored("Serv_Desc_A"), QStringLiteral("½ чашки"));
    EXPECT_EQ(List().Text(0), name);
}

TEST_F(frmFoodListTest, TenThousandCharactersInEveryFieldAreSavedAndDeleted) {
    Open();
    Press("cmdNewBut");
    const QString text = QStringLiteral("7 ") + QStringLiteral("\U0001F372 x ").repeated(2000);
    for (QLineEdit* field : screen_->findChildren<QLineEdit*>())
        Paste(qPrintable(field->objectName()), text);
    Press("cmdSave");
    EXPECT_EQ(Stored("FoodName"), text);
    EXPECT_EQ(Stored("Serv_Desc_A"), text);
    for (const FieldRow& row : AmountRows)
        EXPECT_EQ(Stored(row.column).toDouble(), 7) << row.column;
    Delete();
    EXPECT_EQ(CustomCount(), 0);
}

// Failures of the store, kills

TEST_F(frmFoodListTest, ASaveIntoALockedStoreLosesNothingAndSucceedsLater) {
    Open();
    FoodDB().Raw().exec("PRAGMA busy_timeout = 0");
    Press("cmdNewBut");
    Type("txtFoodName", "Muesli");
    Type("txtCals", "55");
    SQLite::Database other(FoodDB().Path().toStdString(), SQLite::OPEN_READWRITE);
    other.exec("BEGIN IMMEDIATE");
    EXPECT_EQ(FailureOf([this] { Q_EMIT Button("cmdSave").Click(); }), -5);
    EXPECT_EQ(Field("txtFoodName").text(), "Muesli");
    EXPECT_EQ(Field("txtCals").text(), "55");
    EXPECT_FALSE(MousePointer::IsBusy());
    ExpectMode(2);
    EXPECT_EQ(CustomCount(), 0);
    other.exec("ROLLBACK");
    Press("cmdSave");
    EXPECT_EQ(Stored("Calories").toDouble(), 55);
}

TEST_F(frmFoodListTest, NothingIsChangedOrDeletedInAStoreThatCannotBeWritten) {
    AddFood({.id = 23509, .name = "a"});
    Open();
    Type("txtFoodName", "b");
    FoodDB().Raw().exec("PRAGMA query_only = 1");
    EXPECT_EQ(FailureOf([this] { Q_EMIT Button("cmdSave").Click(); }), -8);
    EXPECT_EQ(Field("txtFoodName").text(), "b");
    EXPECT_TRUE(On("cmdSave") && On("cmdCancel"));
    ExpectAlert(SureToDelete);
    EXPECT_EQ(FailureOf([this] { Q_EMIT Button("cmdDelete").Click(); }), -8);
    EXPECT_EQ(List().ListIndex(), 0);
    EXPECT_FALSE(MousePointer::IsBusy());
    FoodDB().Raw().exec("PRAGMA query_only = 0");
    EXPECT_EQ(Stored("FoodName"), "a");
}

TEST_F(frmFoodListTest, AKillWhileSavingANewFoodLeavesNothingOrItsKeyOrAllOfIt) {
    Open();
    Press("cmdNewBut");
    Type("txtZinc", "3");
    const KillPoints points(FoodDB(), [this] { Press("cmdSave"); });
    ASSERT_EQ(points.Count(), 3);
    const char* const found[] = {"0/0", "1/0", "1/1"};
    points.ForEach([&](int point, SQLite::Database& left) {
        EXPECT_EQ(left.execAndGet("SELECT count(*) || '/' || count(CASE WHEN FoodName = 'New Food "
                                  "Name' AND Zinc = 3 THEN 1 END) FROM FOODS WHERE ID > 23508")
                      .getString(),
                  found[point]);
    });
}

TEST_F(frmFoodListTest, AKillWhileChangingOrDeletingAFoodLeavesTheOldOrTheNewState) {
    AddFood({.id = 23509, .name = "a"});
    Open();
    Type("txtFoodName", "b");
    const auto name = [](SQLite::Database& left) {
        return left.execAndGet("SELECT coalesce(max(FoodName), 'none') FROM FOODS WHERE ID > 23508")
            .getString();
    };
    const KillPoints changing(FoodDB(), [this] { Press("cmdSave"); });
    ASSERT_EQ(changing.Count(), 2);
    changing.ForEach(
        [&](int point, SQLite::Database& left) { EXPECT_EQ(name(left), point == 0 ? "a" : "b"); });
    const KillPoints deleting(FoodDB(), [this] { Delete(); });
    ASSERT_EQ(deleting.Count(), 2);
    deleting.ForEach([&](int point, SQLite::Database& left) {
        EXPECT_EQ(name(left), point == 0 ? "b" : "none");
    });
}

// By keyboard, with many foods

TEST_F(frmFoodListTest, AFoodIsMadeChangedAndDeletedByKeyboardAlone) {
    Open().setFocus(Qt::OtherFocusReason);
    const auto key = [](Qt::Key pressed) { QTest::keyClick(QApplication::focusWidget(), pressed); };
    const auto tabTo = [&](const char* name) {
        for (int i = 0; i < 40 && QApplication::focusWidget()->objectName() != name; ++i)
            key(Qt::Key_Tab);
        ASSERT_EQ(QApplication::focusWidget()->objectName(), name);
    };
    tabTo("cmdNewBut");
    key(Qt::Key_Return);
    QTest::keyClicks(QApplication::focusWidget(), "Muesli");
    tabTo("txtProtein");
    QTest::keyClicks(QApplication::focusWidget(), "7.5");
    tabTo("cmdSave");
    key(Qt::Key_Space);
    EXPECT_EQ(Stored("FoodName"), "Muesli");
    EXPECT_EQ(Stored("protein").toDouble(), 7.5);
    EXPECT_EQ(QApplication::focusWidget(), &List());
    tabTo("txtZinc");
    QTest::keyClicks(QApplication::focusWidget(), "2");
    tabTo("cmdCancel");
    key(Qt::Key_Return);
    EXPECT_EQ(Field("txtZinc").text(), "0");
    tabTo("cmdDelete");
    ExpectAlert(SureToDelete);
    key(Qt::Key_Return);
    EXPECT_EQ(CustomCount(), 0);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "cmdNewBut");
}

TEST_F(frmFoodListTest, FiveThousandFoodsAreListedAndOneIsAddedRenamedAndDeleted) {
    AddFoods(5000, 23509, "food");
    Open();
    EXPECT_EQ(List().ListCount(), 5000);
    EXPECT_EQ(List().ListIndex(), 4999);
    SaveNew("a new one");
    EXPECT_EQ(screen_->CurrentID(), 28509);
    EXPECT_EQ(List().ListIndex(), 0);
    Type("txtFoodName", "zwieback");
    Press("cmdSave");
    EXPECT_EQ(List().ListIndex(), 5000);
    Delete();
    EXPECT_EQ(List().ListCount(), 5000);
    EXPECT_EQ(List().ListIndex(), 4999);
}

// Deleting

TEST_F(frmFoodListTest, DeletingAsksAndANegativeAnswerDeletesNothing) {
    AddFood({.id = 23509, .name = "a"});
    Open();
    Delete(false);
    EXPECT_EQ(CustomCount(), 1);
    EXPECT_EQ(List().ListIndex(), 0);
    ExpectMode(1);
}

TEST_F(frmFoodListTest, DeletingAFoodSelectsTheOneThatFollows) {
    AddFoods(3, 23509, "food");
    Open();
    Choose(1);
    Delete();
    EXPECT_EQ(List().List(), QStringList({"food 001", "food 003"}));
    EXPECT_EQ(List().ListIndex(), 1);
    EXPECT_EQ(Field("txtFoodName").text(), "food 003");
    EXPECT_EQ(screen_->CurrentID(), 23511);
    ExpectMode(1);
}

TEST_F(frmFoodListTest, DeletingTheLastLineSelectsTheNewLastLine) {
    AddFoods(3, 23509, "food");
    Open();
    Delete();
    EXPECT_EQ(List().ListIndex(), 1);
    EXPECT_EQ(Field("txtFoodName").text(), "food 002");
    ExpectMode(1);
}

TEST_F(frmFoodListTest, DeletingTheLastCustomFoodEmptiesTheFields) {
    AddFood({.id = 23509, .name = "a", .nutrients = {{"Calories", 5}}});
    Open();
    Delete();
    EXPECT_EQ(CustomCount(), 0);
    EXPECT_EQ(List().ListCount(), 0);
    ExpectCleared();
    ExpectMode(0);
    EXPECT_FALSE(screen_->Editing());
    EXPECT_EQ(QApplication::focusWidget(), &Button("cmdNewBut"));
}

TEST_F(frmFoodListTest, DeletingWithNoLineChosenSaysSo) {
    AddFood({.id = 23509, .name = "a"});
    Open();
    List().SetListIndex(-1);
    ExpectAlert("Please select a food from the food list before deleting.");
    Press("cmdDelete");
    EXPECT_EQ(CustomCount(), 1);
}

TEST_F(frmFoodListTest, DeletingDropsWhatWasTyped) {
    AddFoods(2, 23509, "food");
    Open();
    Type("txtFoodName", "half typed");
    Delete();
    EXPECT_EQ(Field("txtFoodName").text(), "food 001");
    ExpectMode(1);
}

// Highlighted buttons

TEST_F(frmFoodListTest, OnlyOneButtonIsHighlighted) {
    AddFood({.id = 23509, .name = "a"});
    Open();
    Type("txtCals", "1");
    const char* names[] = {"cmdDelete", "cmdCancel", "cmdSave", "cmdNewBut", "cmdDone"};
    for (const char* lit : names) {
        Hover(&Button(lit));
        for (const char* name : names)
            EXPECT_EQ(Button(name).State(), QLatin1String(name) == QLatin1String(lit) ? 2 : 1)
                << lit << ' ' << name;
    }
}

TEST_F(frmFoodListTest, MovesElsewhereAndAResizeResetTheButtons) {
    AddFood({.id = 23509, .name = "a"});
    Open();
    const auto light = [this] {
        Hover(&Button("cmdDone"));
        EXPECT_EQ(Button("cmdDone").State(), 2);
    };
    for (QWidget* over : {Find(screen_.get(), "ucBox1"), Find(screen_.get(), "ucBox2"),
                          Find(screen_.get(), "picFields"), List().viewport(),
                          static_cast<QWidget*>(screen_.get())}) {
        light();
        Hover(over, QPoint(5, 5));
        EXPECT_EQ(Button("cmdDone").State(), 1) << over->objectName().toStdString();
    }
    light();
    screen_->resize(screen_->size() + QSize(1, 0));
    EXPECT_EQ(Button("cmdDone").State(), 1);
}

TEST_F(frmFoodListTest, AChangeOfModeResetsAllButtonsButDone) {
    AddFood({.id = 23509, .name = "a"});
    Open();
    Hover(&Button("cmdNewBut"));
    screen_->UIMode(1);
    EXPECT_EQ(Button("cmdNewBut").State(), 1);
    Hover(&Button("cmdDone"));
    screen_->UIMode(1);
    EXPECT_EQ(Button("cmdDone").State(), 2);
}

TEST_F(frmFoodListTest, AllOffResetsEveryButtonButTheNamedOne) {
    Open();
    Hover(&Button("cmdDone"));
    screen_->AllOff("CMDDONE");
    EXPECT_EQ(Button("cmdDone").State(), 2);
    screen_->AllOff("");
    EXPECT_EQ(Button("cmdDone").State(), 1);
}
