#include "IntakeTest.h"

#include "drawing/SmoothedPrint.h"
#include "drawing/Style.h"
#include "drawing/Twips.h"
#include "runtime/RuntimeError.h"
#include "toolkit/ContextMenu.h"
#include "toolkit/ucButtonA.h"

#include <QAccessible>
#include <QFontMetricsF>
#include <QSignalSpy>
#include <QTest>

class ucAteTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        line.setProperty("FoodName", "Oats, regular");
        line.setProperty("Serv", "1 cup");
        line.setProperty("QTY", "(x 1.5)");
        line.setProperty("ID", "42");
        line.resize(360, line.sizeHint().height());
        line.show();
    }

    ucAte line;
};

TEST_F(ucAteTest, QuantityStandsRightBehindTheServing) {
    const ucAte::Layout at = line.layoutRects();
    EXPECT_EQ(at.lblQTY.left(), at.lblServ.left() + at.lblServ.width() + Twips::ToPixels(120));
    EXPECT_GT(at.lblServ.width(), 0);
    EXPECT_EQ(at.lblServ.left(), at.lblFood.left());
}

TEST_F(ucAteTest, ServingAndQuantityThatFitAreShownWhole) {
    for (const char* serving : {"1 cup", "3 oz", "1/2 cup, sliced", "1 medium (2-3/4\" dia)", ""}) {
        line.SetServ(QLatin1String(serving));
        const QFontMetricsF metrics(SmoothedFont(TheStyle().small));
        const ucAte::Layout at = line.layoutRects();
        EXPECT_EQ(metrics.elidedText(serving, Qt::ElideRight, at.lblServ.width()), serving);
        EXPECT_EQ(metrics.elidedText("(x 1.5)", Qt::ElideRight, at.lblQTY.width()), "(x 1.5)");
    }
}

TEST_F(ucAteTest, LongServingIsCutBeforeTheQuantity) {
    line.SetServ(QString(400, u'W'));
    const ucAte::Layout at = line.layoutRects();
    EXPECT_LT(at.lblQTY.right(), at.imgTrash.left());
    EXPECT_EQ(at.lblQTY.left(), at.lblServ.left() + at.lblServ.width() + Twips::ToPixels(120));
}

TEST_F(ucAteTest, NameIsTheTip) {
    EXPECT_EQ(line.toolTip(), "Oats, regular");
}

TEST_F(ucAteTest, IsReadAsOneSentenceByAssistiveTools) {
    EXPECT_EQ(line.property("Caption"), "Oats, regular, 1 cup, (x 1.5)");
    EXPECT_EQ(line.imgTrash()->accessibleName(), "Remove Oats, regular");
    line.SetServ(QString());
    EXPECT_EQ(line.property("Caption"), "Oats, regular, (x 1.5)") << "nothing for what is missing";
}

TEST_F(ucAteTest, APressOfAnAssistiveToolAsksForTheMenuOfTheFood) {
    QWidget owner;
    auto* food = new ucAte(&owner);
    QWidget* asked = nullptr;
    const ContextMenu menu(&owner, [&asked](QMenu&, QWidget* target) { asked = target; });
    owner.resize(400, 60);
    food->resize(380, food->sizeHint().height());
    owner.show();
    QAccessible::queryAccessibleInterface(food)->actionInterface()->doAction(
        QAccessibleActionInterface::pressAction());
    QCoreApplication::sendPostedEvents(food);
    EXPECT_EQ(asked, food);
}

TEST_F(ucAteTest, ClickOnTheTrashCanAsksForRemovalWithTheKeyAsANumber) {
    QSignalSpy removed(&line, &ucAte::RemoveFood);
    Click(Find<ucButtonA>(&line, "imgTrash"));
    ASSERT_EQ(removed.size(), 1);
    EXPECT_EQ(removed[0][0].toInt(), 42);
}

TEST_F(ucAteTest, ClickBesideTheTrashCanDoesNothing) {
    QSignalSpy removed(&line, &ucAte::RemoveFood);
    Click(&line, QPoint(20, 10));
    EXPECT_EQ(removed.size(), 0);
}

TEST_F(ucAteTest, TrashCanWorksFromTheKeyboard) {
    QSignalSpy removed(&line, &ucAte::RemoveFood);
    ucButtonA* trash = line.imgTrash();
    EXPECT_TRUE(trash->focusPolicy() & Qt::TabFocus);
    for (const int key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Delete})
        QTest::keyClick(trash, static_cast<Qt::Key>(key));
    EXPECT_EQ(removed.size(), 3);
}

TEST_F(ucAteTest, MoveOverLineOrTrashCanRaisesMouseMove) {
    QSignalSpy moved(&line, &ucAte::MouseMove);
    Hover(&line, QPoint(20, 10));
    EXPECT_EQ(moved.size(), 1);
    Hover(line.imgTrash());
    EXPECT_EQ(moved.size(), 2);
}

TEST_F(ucAteTest, KeyThatIsNoNumberIsRefused) {
    line.SetID(QStringLiteral("no number"));
    EXPECT_THROW(line.Remove(), RuntimeError);
}

TEST_F(ucAteTest, OtherPropertiesAreKept) {
    line.setProperty("BackColor", QColor(Qt::blue));
    line.setProperty("ForeColor", QColor(Qt::white));
    line.setProperty("BackStyle", 0);
    line.setProperty("BorderStyle", 0);
    line.setProperty("FoodIcon", "recipe");
    line.setProperty("Enabled", false);
    EXPECT_EQ(line.property("BackColor").value<QColor>(), QColor(Qt::blue));
    EXPECT_EQ(line.property("ForeColor").value<QColor>(), QColor(Qt::white));
    EXPECT_EQ(line.property("BackStyle"), 0);
    EXPECT_EQ(line.property("BorderStyle"), 0);
    EXPECT_EQ(line.property("FoodIcon"), "recipe");
    EXPECT_FALSE(line.isEnabled());
}

TEST_F(ucAteTest, GroundIsPaintedInTheBackColour) {
    line.SetBackColor(Qt::blue);
    EXPECT_EQ(Grab(&line).pixelColor(2, 2), QColor(Qt::blue));
    EXPECT_EQ(Grab(&line).pixelColor(2, line.height() - 1), TheStyle().rule);
}

TEST_F(ucAteTest, IconPushesTheTextsAside) {
    const int before = line.layoutRects().lblFood.left();
    line.SetFoodIcon(QStringLiteral("recipe"));
    EXPECT_GT(line.layoutRects().lblFood.left(), before);
    EXPECT_GE(line.layoutRects().lblFood.left(), line.layoutRects().imgFoodIcon.right());
}

TEST_F(ucAteTest, EqualTextsRepaintNothing) {
    struct Watch : QObject {
        bool eventFilter(QObject*, QEvent* event) override {
            paints += event->type() == QEvent::UpdateRequest || event->type() == QEvent::Paint;
            return false;
        }
        int paints = 0;
    } watch;
    Grab(&line);
    QCoreApplication::processEvents();
    line.installEventFilter(&watch);
    line.SetFoodName(QStringLiteral("Oats, regular"));
    line.SetServ(QStringLiteral("1 cup"));
    line.SetQTY(QStringLiteral("(x 1.5)"));
    QCoreApplication::processEvents();
    EXPECT_EQ(watch.paints, 0);
    line.SetServ(QStringLiteral("2 cups"));
    QCoreApplication::processEvents();
    EXPECT_GT(watch.paints, 0);
}

TEST_F(ucAteTest, VeryLongNameAndMarkupArePaintedAsOnePlainLine) {
    line.SetFoodName(QString(10000, u'W'));
    EXPECT_EQ(Grab(&line).size(), line.size());
    line.SetFoodName(QStringLiteral("<b>Bread</b>\nand butter \U0001F35E"));
    EXPECT_EQ(Grab(&line).size(), line.size());
    EXPECT_EQ(line.FoodName(), "<b>Bread</b>\nand butter \U0001F35E");
}
