#include "drawing/Style.h"
#include "drawing/Contrast.h"
#include "drawing/StyleOnPaper.h"
#include "drawing/Twips.h"
#include "support/HalvaneTest.h"
#include "toolkit/ApplyStyle.h"
#include "toolkit/Labels.h"
#include "toolkit/ucHeader.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QStyle>

namespace {

class StyleTest : public HalvaneTest {
protected:
    void TearDown() override {
        UseStyle(StyleKind::Light);
        ApplyStyle(*qApp);
        HalvaneTest::TearDown();
    }
    static void Use(StyleKind kind) {
        UseStyle(kind);
        ApplyStyle(*qApp);
    }
};

constexpr StyleKind EveryKind[] = {StyleKind::Light, StyleKind::Dark, StyleKind::HighContrast};

QColor InsideOf(QCheckBox& box) {
    constexpr QPoint besideTheMark(4, 4);
    return Grab(&box).pixelColor(QPoint(0, (box.height() - 16) / 2) + besideTheMark);
}

int PixelsOf(const QImage& image, const QRect& place, const QColor& colour) {
    int found = 0;
    for (int y = place.top(); y <= place.bottom(); ++y)
        for (int x = place.left(); x <= place.right(); ++x)
            found += image.pixelColor(x, y) == colour;
    return found;
}

/// The strongest contrast to the ground at the right end of the first item, where its arrow is.
double ContrastOfArrow(QMenu& menu) {
    constexpr int arrowRoom = 18;
    const QImage drawn = Grab(&menu);
    const QRect item = menu.actionGeometry(menu.actions().first());
    const QColor ground = drawn.pixelColor(item.right() - arrowRoom, item.top() + 2);
    double strongest = 1;
    for (int y = item.top(); y <= item.bottom(); ++y)
        for (int x = item.right() - arrowRoom; x < item.right(); ++x)
            strongest = qMax(strongest, Contrast(drawn.pixelColor(x, y), ground));
    return strongest;
}

} // namespace

TEST_F(StyleTest, TheFixedColoursStandUnderTheirNames) {
    const Style& style = TheStyle();
    EXPECT_EQ(style.frame, QColor(180, 105, 12));
    EXPECT_EQ(style.mealText, QColor(180, 105, 12));
    EXPECT_EQ(style.raisedShadow, QColor(10, 75, 175));
    EXPECT_EQ(style.raisedText, QColor(255, 255, 255));
    EXPECT_EQ(style.pieFat, QColor(255, 30, 30));
    EXPECT_EQ(style.pieProtein, QColor(255, 133, 0));
    EXPECT_EQ(style.pieCarbs, QColor(56, 250, 59));
    EXPECT_EQ(style.gridDark, QColor(111, 111, 111));
    EXPECT_EQ(style.gridLight, QColor(222, 222, 222));
    EXPECT_EQ(style.barRowHover, QColor(181, 128, 88));
}

TEST_F(StyleTest, TheBarPicturesHaveTheirEightRows) {
    static const QColor normal[] = {{120, 124, 133}, {167, 180, 223}, {156, 171, 234},
                                    {135, 155, 235}, {91, 112, 192},  {86, 105, 181},
                                    {69, 86, 150},   {94, 96, 104}};
    static const QColor lit[] = {{124, 128, 137}, {230, 195, 175}, {241, 197, 164}, {239, 185, 141},
                                 {192, 130, 91},  {180, 125, 85},  {149, 103, 67},  {93, 96, 103}};
    for (int row = 0; row < 8; ++row) {
        EXPECT_EQ(TheStyle().barNormal[row], normal[row]);
        EXPECT_EQ(TheStyle().barHover[row], lit[row]);
    }
}

TEST_F(StyleTest, FontsHaveTheirSizes) {
    const Style& style = TheStyle();
    EXPECT_EQ(style.text.pointSizeF(), 9);
    EXPECT_EQ(style.small.pointSizeF(), 8);
    EXPECT_EQ(style.screenTitle.pointSizeF(), 13);
    EXPECT_EQ(style.cardTitle.pointSizeF(), 15);
    EXPECT_EQ(style.control.pointSizeF(), 10);
    EXPECT_EQ(style.raised.pointSizeF(), 14);
    EXPECT_GT(style.strong.weight(), style.text.weight());
}

TEST_F(StyleTest, LabelsTakeFontAndInkFromTheirRole) {
    QWidget parent;
    const QLabel* label =
        MakeLabel(&parent, QStringLiteral("lblServ"), QStringLiteral("<b>1</b>"), TextRole::Quiet);
    EXPECT_EQ(label->objectName(), "lblServ");
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
    EXPECT_EQ(label->palette().color(QPalette::WindowText), TheStyle().quietInk);
    EXPECT_EQ(FontOf(TextRole::ScreenTitle), TheStyle().screenTitle);
    EXPECT_EQ(InkOf(TextRole::CardTitle), TheStyle().heading);
    EXPECT_TRUE(label->hasMouseTracking());
}

TEST_F(StyleTest, ApplyingItGivesTheStockFieldsTheirHeightAndGround) {
    ApplyStyle(*qApp);
    EXPECT_EQ(QApplication::font().pointSizeF(), 9);
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), TheStyle().canvas);
    EXPECT_FALSE(qApp->styleSheet().contains(u'%'));
    QLineEdit field;
    field.resize(100, TheStyle().fieldHeight);
    EXPECT_EQ(field.sizeHint().height(), 24);
    EXPECT_EQ(Grab(&field).pixelColor(50, 12), TheStyle().paper);
    EXPECT_EQ(Grab(&field).pixelColor(50, 0), TheStyle().fieldEdge);
}

TEST_F(StyleTest, StockFieldsHaveTheColoursOfEveryStyle) {
    for (const StyleKind kind : EveryKind) {
        Use(kind);
        QLineEdit field;
        field.resize(100, TheStyle().fieldHeight);
        EXPECT_EQ(Grab(&field).pixelColor(50, 12), TheStyle().paper);
        EXPECT_EQ(Grab(&field).pixelColor(50, 0), TheStyle().fieldEdge);
        EXPECT_EQ(QApplication::palette().color(QPalette::PlaceholderText), TheStyle().quietInk);
    }
}

TEST_F(StyleTest, CheckBoxesHaveTheColoursOfEveryStyle) {
    for (const StyleKind kind : EveryKind) {
        Use(kind);
        QCheckBox box;
        EXPECT_EQ(InsideOf(box), TheStyle().paper);
        box.setChecked(true);
        EXPECT_EQ(InsideOf(box), TheStyle().checkOn);
        box.setEnabled(false);
        EXPECT_EQ(InsideOf(box), TheStyle().checkDisabledOn);
        box.setChecked(false);
        EXPECT_EQ(InsideOf(box), TheStyle().canvas);
    }
}

TEST_F(StyleTest, TheArrowOfASubmenuIsSeenAtRestAndUnderThePointer) {
    for (const StyleKind kind : EveryKind) {
        Use(kind);
        QMenu menu;
        QAction* item = menu.addMenu(QStringLiteral("Move"))->menuAction();
        menu.resize(menu.sizeHint());
        EXPECT_GE(ContrastOfArrow(menu), 4.5) << int(kind);
        menu.setActiveAction(item);
        EXPECT_GE(ContrastOfArrow(menu), 4.5) << int(kind);
    }
}

TEST_F(StyleTest, MessageBoxesHavePicturesInTheInkOfHeadings) {
    for (const StyleKind kind : EveryKind) {
        Use(kind);
        for (const QStyle::StandardPixmap picture :
             {QStyle::SP_MessageBoxInformation, QStyle::SP_MessageBoxQuestion,
              QStyle::SP_MessageBoxWarning, QStyle::SP_MessageBoxCritical}) {
            const QImage drawn =
                QApplication::style()->standardIcon(picture).pixmap(QSize(128, 128)).toImage();
            EXPECT_GT(PixelsOf(drawn, drawn.rect(), TheStyle().heading), 100) << picture;
        }
    }
}

TEST_F(StyleTest, PagesAreLightWhateverTheScreenIs) {
    const QColor lightInk = TheStyle().ink;
    Use(StyleKind::Dark);
    {
        const StyleOnPaper pages;
        EXPECT_EQ(TheStyle().kind, StyleKind::Light);
        EXPECT_EQ(TheStyle().ink, lightInk);
        EXPECT_EQ(TheStyle().paper, QColor(Qt::white));
    }
    EXPECT_EQ(TheStyle().kind, StyleKind::Dark);
    EXPECT_NE(TheStyle().ink, lightInk);
}

TEST_F(StyleTest, FifteenTwipsMakeAPixelAtTheStandardDensity) {
    EXPECT_EQ(Twips::PerPixel(), 15);
    EXPECT_EQ(Twips::ToPixels(150), 10);
    EXPECT_EQ(Twips::ToPixels(22), 1);
    EXPECT_EQ(Twips::ToPixels(-100), -7);
    EXPECT_EQ(Twips::FromPixels(24), 360);
}

TEST_F(StyleTest, OnlyWidgetsThatTheSheetCanNameAreMatchedWithIt) {
    Use(StyleKind::Dark);
    QWidget window;
    QLabel plain(&window);
    ucHeader drawn(&window);
    window.show();
    EXPECT_TRUE(plain.testAttribute(Qt::WA_StyleSheet));
    EXPECT_FALSE(drawn.testAttribute(Qt::WA_StyleSheet));
}
