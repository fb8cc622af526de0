#include "drawing/Style.h"
#include "drawing/Twips.h"
#include "support/HalvaneTest.h"
#include "toolkit/ApplyStyle.h"
#include "toolkit/Labels.h"

#include <QApplication>
#include <QLineEdit>

#include <cmath>

using StyleTest = HalvaneTest;

static double Linear(double share) {
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

static double Luminance(const QColor& colour) {
    return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) +
           0.0722 * Linear(colour.blueF());
}

static double Contrast(const QColor& one, const QColor& other) {
    const double a = Luminance(one) + 0.05;
    const double b = Luminance(other) + 0.05;
    return qMax(a, b) / qMin(a, b);
}

namespace {

struct Pair {
    const char* what;
    QColor over;
    QColor ground;
};

QList<Pair> TextPairs() {
    const Style& style = TheStyle();
    QList<Pair> pairs{{"text on paper", style.ink, style.paper},
                      {"text on canvas", style.ink, style.canvas},
                      {"quiet text on paper", style.quietInk, style.paper},
                      {"quiet text on canvas", style.quietInk, style.canvas},
                      {"disabled text on paper", style.disabledInk, style.paper},
                      {"disabled text on canvas", style.disabledInk, style.canvas},
                      {"heading on paper", style.heading, style.paper},
                      {"heading on canvas", style.heading, style.canvas},
                      {"error on paper", style.error, style.paper},
                      {"error on canvas", style.error, style.canvas},
                      {"box caption, top", style.headerInk, style.header.from},
                      {"box caption, bottom", style.headerInk, style.header.to},
                      {"lit meal", Qt::white, style.mealStripLit},
                      {"window title, top", style.windowInk, style.window.from},
                      {"window title, bottom", style.windowInk, style.window.to},
                      {"navigation", style.navigationInk, style.navigation},
                      {"lit navigation", style.windowInk, style.navigationLit},
                      {"pressed navigation", style.windowInk, style.navigationPressed},
                      {"disabled navigation", style.navigationDisabledInk, style.navigation},
                      {"chosen row", style.chosenRowText, style.chosenRow},
                      {"chosen day, top", style.ink, style.chosenDay.from},
                      {"chosen day, bottom", style.ink, style.chosenDay.to},
                      {"chosen view", style.heading, style.chosenDay.to},
                      {"bar row", style.barRowText, style.paper},
                      {"raised text", style.raisedText, style.raisedShadow}};
    for (int state = 0; state < 4; ++state)
        for (const Style::ButtonFace& face : {style.button[state], style.mainAction[state]}) {
            pairs << Pair{"button, top", face.text, face.ground.from}
                  << Pair{"button, bottom", face.text, face.ground.to};
        }
    return pairs;
}

} // namespace

TEST_F(StyleTest, ContrastIsMeasuredAsItShouldBe) {
    EXPECT_NEAR(Contrast(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(Contrast(QColor(119, 119, 119), Qt::white), 4.48, 0.01);
}

TEST_F(StyleTest, TextHasAContrastOfFourAndAHalfToOne) {
    for (const Pair& pair : TextPairs())
        EXPECT_GE(Contrast(pair.over, pair.ground), 4.5) << pair.what;
}

/// The brown of the meal headings is fixed and reaches 4.2 to 1 on pure white at best; bold on the
/// lightest strip that still shows as one it comes near that.
TEST_F(StyleTest, MealHeadingsComeNearTheBestTheirBrownAllows) {
    const Style& style = TheStyle();
    EXPECT_EQ(style.mealText, QColor(180, 105, 12));
    EXPECT_GE(Contrast(style.mealText, style.mealStrip), 3.9);
    EXPECT_NE(style.mealStrip, style.paper);
}

TEST_F(StyleTest, EdgesAndPicturesThatCarryMeaningHaveThreeToOne) {
    const Style& style = TheStyle();
    const QList<Pair> pairs{{"field edge on paper", style.fieldEdge, style.paper},
                            {"field edge on canvas", style.fieldEdge, style.canvas},
                            {"focus ring on paper", style.frame, style.paper},
                            {"focus ring on canvas", style.frame, style.canvas},
                            {"picture at rest", style.quietInk, style.paper},
                            {"picture under the pointer", style.frame, style.paper},
                            {"dark grid", style.gridDark, style.paper}};
    for (const Pair& pair : pairs)
        EXPECT_GE(Contrast(pair.over, pair.ground), 3) << pair.what;
}

TEST_F(StyleTest, TheFixedColoursStandUnderTheirNames) {
    const Style& style = TheStyle();
    EXPECT_EQ(style.frame, QColor(180, 105, 12));
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

TEST_F(StyleTest, FifteenTwipsMakeAPixelAtTheStandardDensity) {
    EXPECT_EQ(Twips::PerPixel(), 15);
    EXPECT_EQ(Twips::ToPixels(150), 10);
    EXPECT_EQ(Twips::ToPixels(22), 1);
    EXPECT_EQ(Twips::ToPixels(-100), -7);
    EXPECT_EQ(Twips::FromPixels(24), 360);
}
