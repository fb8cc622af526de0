#include "foods/FoodsTest.h"

#include "foods/ui/ucFood.h"

#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

class UcFoodTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        row_.resize(500, row_.height());
        row_.SetFoodName("Oats, rolled");
        row_.SetServA("1 cup");
        row_.SetServB("1 oz");
        row_.SetID("4711");
        row_.Materialise();
        row_.show();
    }

    QLineEdit* Field(const char* name) { return Find<QLineEdit>(&row_, name); }

    ucFood row_;
};

TEST(UcFoodDefaultsTest, AFreshRowHoldsItsDesignDefaults) {
    const ucFood row;
    EXPECT_EQ(row.property("FoodName").toString(), "FoodName");
    EXPECT_EQ(row.property("ServA").toString(), "ServA");
    EXPECT_EQ(row.property("ServB").toString(), "ServB");
    EXPECT_EQ(row.property("ID").toString(), "1");
    EXPECT_FALSE(row.property("isRecipe").toBool());
    EXPECT_FALSE(row.property("RecipeMode").toBool());
    EXPECT_TRUE(row.property("Enabled").toBool());
    EXPECT_EQ(row.property("BackColor").value<QColor>(), QColor(255, 255, 255));
    EXPECT_TRUE(row.property("ForeColor").value<QColor>().isValid());
    EXPECT_EQ(row.property("BackStyle").toInt(), 1);
    EXPECT_EQ(row.property("BorderStyle").toInt(), 0);
}

TEST(UcFoodDefaultsTest, ARowHasNoControlsBeforeItIsSeen) {
    ucFood row;
    EXPECT_FALSE(row.Materialised());
    EXPECT_TRUE(row.children().isEmpty());
}

TEST(UcFoodDefaultsTest, PropertiesAreSetByName) {
    ucFood row;
    EXPECT_TRUE(row.setProperty("FoodName", "Rye"));
    EXPECT_TRUE(row.setProperty("isRecipe", true));
    EXPECT_TRUE(row.setProperty("RecipeMode", true));
    EXPECT_TRUE(row.setProperty("ID", "12"));
    EXPECT_EQ(row.FoodName(), "Rye");
    EXPECT_TRUE(row.isRecipe());
    EXPECT_TRUE(row.RecipeMode());
    EXPECT_EQ(row.ID(), "12");
}

TEST(UcFoodDefaultsTest, StockFoodsCustomFoodsAndRecipesHaveDifferentIcons) {
    ucFood row;
    row.SetID("23508");
    EXPECT_EQ(row.FoodIcon(), "food");
    row.SetID("23509");
    EXPECT_EQ(row.FoodIcon(), "custom-food");
    row.SetIsRecipe(true);
    EXPECT_EQ(row.FoodIcon(), "recipe");
    row.SetIsRecipe(false);
    EXPECT_EQ(row.FoodIcon(), "custom-food");
}

TEST(UcFoodDefaultsTest, ThePaintedRowLooksTheSameBeforeAndAfterItHasItsLabels) {
    ucFood row;
    row.resize(500, row.height());
    row.SetFoodName("Oats, rolled");
    const QRect name = row.layoutRects().aaFood;
    const QImage painted = Grab(&row).copy(name);
    row.Materialise();
    EXPECT_EQ(Grab(&row).copy(name), painted);
}

TEST_F(UcFoodTest, TheControlsAreThereUnderTheirNames) {
    for (const char* name :
         {"aaFood", "imgFoodIcon", "lblServA", "txtQTY_A", "cmdEAT_a", "imgInfo_W_A", "lblServB",
          "txtQTY_B", "cmdEAT_B", "imgInfo_W_B", "lblQTY"})
        EXPECT_TRUE(Find(&row_, name)->isVisible()) << name;
    EXPECT_FALSE(Find(&row_, "lblID")->isVisible());
    EXPECT_EQ(Find<QLabel>(&row_, "lblID")->text(), "4711");
}

TEST_F(UcFoodTest, TextsStandInTheLabelsAndTheirTips) {
    EXPECT_EQ(Find<QLabel>(&row_, "aaFood")->text(), "Oats, rolled");
    EXPECT_EQ(Find(&row_, "aaFood")->toolTip(), "Oats, rolled");
    EXPECT_EQ(Find(&row_, "lblServA")->toolTip(), "1 cup");
    EXPECT_EQ(Find<QLabel>(&row_, "lblServB")->text(), "1 oz");
    row_.SetFoodName("Rye");
    EXPECT_EQ(Find<QLabel>(&row_, "aaFood")->text(), "Rye");
    EXPECT_EQ(Find(&row_, "aaFood")->toolTip(), "Rye");
}

TEST_F(UcFoodTest, UnusualNamesAreShownWholeAndNotAsMarkup) {
    QString nul = QStringLiteral("half");
    nul += QChar(QChar::Null);
    for (const QString& name :
         {QStringLiteral("O'Brien's 100 % of_[all] \U0001F96A"), QString(10000, u'x'), nul,
          QStringLiteral("'; DROP TABLE FOODS; --"), QStringLiteral("<b>bold</b>")}) {
        row_.SetFoodName(name);
        row_.SetServA(name);
        auto* label = Find<QLabel>(&row_, "aaFood");
        EXPECT_EQ(label->text(), name);
        EXPECT_EQ(label->textFormat(), Qt::PlainText);
        EXPECT_FALSE(Grab(&row_).isNull());
    }
    QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), row_.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(Find(&row_, "aaFood"), &help);
    EXPECT_TRUE(QToolTip::text().contains("&lt;b&gt;bold")) << QToolTip::text().toStdString();
    QToolTip::hideText();
}

TEST_F(UcFoodTest, QuantitiesStartAsOneAndTheTipsSayWhatToDo) {
    EXPECT_EQ(Field("txtQTY_A")->text(), "1");
    EXPECT_EQ(Field("txtQTY_B")->text(), "1");
    EXPECT_EQ(Field("txtQTY_A")->toolTip(), "Enter a quantity");
    EXPECT_EQ(Find(&row_, "cmdEAT_a")->toolTip(), "Click to add this food");
    EXPECT_EQ(Find(&row_, "imgInfo_W_B")->toolTip(), "Examine Food");
}

TEST_F(UcFoodTest, AssistiveToolsReadARowThatWasNeverSeenAndGoIntoIt) {
    QWidget window;
    auto* row = new ucFood(&window);
    row->SetFoodName("Rye");
    row->SetServA("1 slice");
    row->SetServB(QString());
    row->SetID("23509");
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(row);
    EXPECT_EQ(spoken->role(), QAccessible::ListItem);
    EXPECT_EQ(spoken->text(QAccessible::Name), "Rye, custom food, 1 slice");
    EXPECT_FALSE(row->Materialised());
    window.show();
    QApplication::setActiveWindow(&window);
    spoken->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCoreApplication::sendPostedEvents(row);
    EXPECT_EQ(QApplication::focusWidget()->accessibleName(), "Quantity of Rye, 1 slice");
}

TEST_F(UcFoodTest, EveryControlSaysWhatItIsFor) {
    for (const char* name :
         {"txtQTY_A", "cmdEAT_a", "imgInfo_W_A", "txtQTY_B", "cmdEAT_B", "imgInfo_W_B"})
        EXPECT_TRUE(Find(&row_, name)->accessibleName().contains("Oats, rolled")) << name;
}

TEST_F(UcFoodTest, AnEmptyServBCutsTheRowAtTheTopOfItsQuantity) {
    const int whole = row_.height();
    row_.SetServB("");
    EXPECT_EQ(row_.height(), row_.layoutRects().lines[1].txtQTY.top());
    EXPECT_FALSE(Find(&row_, "txtQTY_B")->isVisible());
    row_.SetServB("1 slice");
    EXPECT_EQ(row_.height(), whole);
    EXPECT_TRUE(Find(&row_, "txtQTY_B")->isVisible());
}

TEST_F(UcFoodTest, TheAddButtonsAndTheServingTextsRaiseEatFood) {
    QSignalSpy eaten(&row_, &ucFood::EatFood);
    Field("txtQTY_A")->setText("2.5");
    Field("txtQTY_B")->setText("3");
    for (const char* name : {"cmdEAT_a", "lblServA", "cmdEAT_B", "lblServB"})
        Click(Find(&row_, name));
    ASSERT_EQ(eaten.size(), 4);
    EXPECT_EQ(eaten[0], QVariantList({4711, "A", 2.5, false}));
    EXPECT_EQ(eaten[1], eaten[0]);
    EXPECT_EQ(eaten[2], QVariantList({4711, "B", 3.0, false}));
    EXPECT_EQ(eaten[3], eaten[2]);
}

TEST_F(UcFoodTest, TheExamineButtonsRaiseExamineFood) {
    QSignalSpy examined(&row_, &ucFood::ExamineFood);
    row_.SetIsRecipe(true);
    Click(Find(&row_, "imgInfo_W_A"));
    Click(Find(&row_, "imgInfo_W_B"));
    ASSERT_EQ(examined.size(), 2);
    EXPECT_EQ(examined[0], QVariantList({4711, "A", 1.0, true}));
    EXPECT_EQ(examined[1], QVariantList({4711, "B", 1.0, true}));
}

TEST_F(UcFoodTest, EnterInAQuantityAddsThatServing) {
    QSignalSpy eaten(&row_, &ucFood::EatFood);
    Field("txtQTY_B")->setText("4");
    QTest::keyClick(Field("txtQTY_B"), Qt::Key_Return);
    ASSERT_EQ(eaten.size(), 1);
    EXPECT_EQ(eaten[0], QVariantList({4711, "B", 4.0, false}));
}

TEST_F(UcFoodTest, AHeldEnterInAQuantityAddsThatServingOnce) {
    QSignalSpy eaten(&row_, &ucFood::EatFood);
    QLineEdit* quantity = Field("txtQTY_A");
    QTest::keyPress(quantity, Qt::Key_Return);
    for (int repeat = 0; repeat < 20; ++repeat) {
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"),
                       true);
        QApplication::sendEvent(quantity, &held);
    }
    QTest::keyRelease(quantity, Qt::Key_Return);
    EXPECT_EQ(eaten.size(), 1);
    QTest::keyClick(quantity, Qt::Key_Enter);
    EXPECT_EQ(eaten.size(), 2);
}

TEST_F(UcFoodTest, AQuantityThatIsNoNumberCountsAsZero) {
    QSignalSpy eaten(&row_, &ucFood::EatFood);
    for (const char* text : {"", "abc", "1,5", "1e400", "2 cups", "--1", "nan", "inf"}) {
        Field("txtQTY_A")->setText(text);
        Click(Find(&row_, "cmdEAT_a"));
        ASSERT_FALSE(eaten.isEmpty());
        EXPECT_EQ(eaten.takeLast()[2].toDouble(), 0) << text;
    }
}

TEST_F(UcFoodTest, MovingOverTheRowResetsItsButtons) {
    QSignalSpy moved(&row_, &ucFood::MouseMove);
    QWidget* add = Find(&row_, "cmdEAT_a");
    Hover(add);
    EXPECT_EQ(add->property("Shown").toString(), "img_ROLL");
    Hover(&row_, {1, 1});
    EXPECT_EQ(add->property("Shown").toString(), "img_NORM");
    EXPECT_EQ(moved.size(), 2);
}

TEST_F(UcFoodTest, ADoubleClickIsRaised) {
    QSignalSpy doubled(&row_, &ucFood::DblClick);
    QTest::mouseDClick(&row_, Qt::LeftButton, Qt::NoModifier, {2, 2});
    EXPECT_EQ(doubled.size(), 1);
}

TEST_F(UcFoodTest, ABorderAndATransparentGroundShow) {
    row_.SetBorderStyle(1);
    const QImage framed = Grab(&row_);
    EXPECT_EQ(framed.pixel(0, 0), framed.pixel(499, 0));
    EXPECT_NE(framed.pixel(0, 0), framed.pixel(1, 1));
    row_.SetBackColor(QColor(1, 2, 3));
    EXPECT_EQ(Grab(&row_).pixel(1, 1), qRgb(1, 2, 3));
    row_.SetBackStyle(0);
    EXPECT_NE(Grab(&row_).pixel(1, 1), qRgb(1, 2, 3));
}

TEST_F(UcFoodTest, ColumnsAreAlignedInAllRows) {
    ucFood other;
    other.resize(500, other.height());
    other.SetFoodName("A very long name that does not fit in the room that the row has for it");
    other.SetServB("");
    other.Materialise();
    for (const char* name : {"txtQTY_A", "cmdEAT_a", "imgInfo_W_A"})
        EXPECT_EQ(Find(&other, name)->x(), Find(&row_, name)->x()) << name;
    EXPECT_EQ(Field("txtQTY_A")->x(), Field("txtQTY_B")->x());
}
