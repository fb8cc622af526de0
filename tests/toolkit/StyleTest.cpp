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

void ExpectContrast(const QList<Pair>& pairs, double least) {
    for (const Pair& pair : pairs)
        EXPECT_GE(Contrast(pair.over, pair.ground), least) << pair.what;
}

/// `over` at both ends of a gradient.
QList<Pair> On(const Style::Gradient& ground, const char* what, const QColor& over) {
    return {{what, over, ground.from}, {what, over, ground.to}};
}

/// On the two grounds that most things stand on.
QList<Pair> OnPaperAndCanvas(const char* what, const QColor& over) {
    return {{what, over, TheStyle().paper}, {what, over, TheStyle().canvas}};
}

/// The texts of labels, fields, lists and menus, in every state.
QList<Pair> PlainTexts() {
    const Style& style = TheStyle();
    QList<Pair> pairs{{"'Today' on the chosen day", style.ink, style.chosenDay.to},
                      {"chosen view", style.heading, style.chosenDay.to},
                      {"chosen row", style.chosenRowText, style.chosenRow},
                      {"item of a list", style.listItemText, style.listItem},
                      {"meal under the pointer", style.chosenRowText, style.mealStripLit},
                      {"name in a chart", style.barRowText, style.paper},
                      {"menu title and note", style.ink, style.header.from},
                      {"raised text", style.raisedText, style.raisedShadow}};
    pairs += OnPaperAndCanvas("text", style.ink);
    pairs += OnPaperAndCanvas("quiet text", style.quietInk);
    pairs += OnPaperAndCanvas("disabled text", style.disabledInk);
    pairs += OnPaperAndCanvas("heading", style.heading);
    pairs += OnPaperAndCanvas("refusal", style.error);
    pairs += On(style.header, "caption of a box", style.headerInk);
    return pairs;
}

/// Title bars and the navigation column, in every state.
QList<Pair> WindowTexts() {
    const Style& style = TheStyle();
    QList<Pair> pairs{{"navigation", style.navigationInk, style.navigation},
                      {"navigation under the pointer", style.windowInk, style.navigationLit},
                      {"navigation pressed", style.windowInk, style.navigationPressed},
                      {"navigation disabled", style.navigationDisabledInk, style.navigation},
                      {"navigation chosen", style.heading, style.canvas},
                      {"weekday", style.windowInk, style.navigation}};
    pairs += On(style.window, "title", style.windowInk);
    pairs += On(style.window, "button of the title", style.navigationInk);
    pairs += On(style.window, "button of the title, pressed", style.rule);
    return pairs;
}

QList<Pair> ButtonTexts() {
    QList<Pair> pairs;
    for (const Style::ButtonFace& face : TheStyle().button)
        pairs += On(face.ground, "button", face.text);
    for (const Style::ButtonFace& face : TheStyle().mainAction)
        pairs += On(face.ground, "main action", face.text);
    for (const Style::ButtonFace& face : TheStyle().dayButton)
        pairs += On(face.ground, "button of the chosen day", face.text);
    return pairs;
}

/// What charts need to be read without their colours.
QList<Pair> ChartLines() {
    const Style& style = TheStyle();
    return {{"100 percent, and the outline of a sector", style.gridDark, style.paper},
            {"upper edge of a bar", style.barNormal[0], style.paper},
            {"lower edge of a bar", style.barNormal[7], style.paper},
            {"upper edge of a lit bar", style.barHover[0], style.paper},
            {"lower edge of a lit bar", style.barHover[7], style.paper},
            {"weight line", style.ln[3].colour, style.paper},
            {"mean of the weights", style.lineMean.colour, style.paper},
            {"axis of the weights", style.lineAxis, style.paper}};
}

/// Pictures by their tint, and edges without which a control would not be seen.
QList<Pair> PicturesAndEdges() {
    const Style& style = TheStyle();
    QList<Pair> pairs{{"arrow of a scroll bar", style.quietInk, style.scrollSlot},
                      {"its arrow under the pointer", style.heading, style.header.from},
                      {"frame of the chosen day", style.frame, style.chosenDay.from},
                      {"plus of a meal", style.mealText, style.mealStrip},
                      {"arrow of a list", style.frame, style.paper},
                      {"its arrow held", style.heading, style.button[2].ground.from}};
    pairs += OnPaperAndCanvas("field edge", style.fieldEdge);
    pairs += OnPaperAndCanvas("edge of a button", style.button[0].edge);
    pairs += OnPaperAndCanvas("focus ring", style.frame);
    const QColor tints[] = {style.quietInk, style.frame, style.heading};
    for (int state = 0; state < 3; ++state) {
        pairs += OnPaperAndCanvas("picture", tints[state]);
        pairs += On(style.button[state].ground, "picture on a button", tints[state]);
        pairs << Pair{"thumb", style.button[state].edge, style.scrollSlot};
    }
    return pairs;
}

} // namespace

TEST_F(StyleTest, ContrastIsMeasuredAsItShouldBe) {
    EXPECT_NEAR(Contrast(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(Contrast(QColor(119, 119, 119), Qt::white), 4.48, 0.01);
}

TEST_F(StyleTest, TextHasAContrastOfFourAndAHalfToOneInEveryState) {
    ExpectContrast(PlainTexts(), 4.5);
    ExpectContrast(WindowTexts(), 4.5);
    ExpectContrast(ButtonTexts(), 4.5);
}

/// The brown of the meal headings is fixed and reaches 4.2 to 1 on pure white at best; bold on the
/// lightest strip that still shows as one it comes near that.
TEST_F(StyleTest, MealHeadingsComeNearTheBestTheirBrownAllows) {
    const Style& style = TheStyle();
    EXPECT_EQ(style.mealText, QColor(180, 105, 12));
    EXPECT_GE(Contrast(style.mealText, style.mealStrip), 3.9);
    EXPECT_NE(style.mealStrip, style.paper);
}

TEST_F(StyleTest, EdgesAndPicturesThatCarryMeaningHaveThreeToOneInEveryState) {
    ExpectContrast(PicturesAndEdges(), 3);
    ExpectContrast(ChartLines(), 3);
}

/// On dark grounds the inner line of the ring is the one that is seen.
TEST_F(StyleTest, OneOfTheTwoLinesOfTheFocusRingIsSeenOnEveryGround) {
    const Style& style = TheStyle();
    QList<QColor> grounds{style.paper,     style.canvas,       style.navigation,
                          style.mealStrip, style.mealStripLit, style.chosenDay.to};
    for (int state = 0; state < 3; ++state)
        grounds << style.button[state].ground.to << style.mainAction[state].ground.from
                << style.mainAction[state].ground.to;
    for (const QColor& ground : grounds)
        EXPECT_GE(qMax(Contrast(style.frame, ground), Contrast(style.paper, ground)), 3)
            << ground.name().toStdString();
}

/// The first two show only while the pointer is there; before and after, the same text is black.
TEST_F(StyleTest, TheFixedColoursOfTextsHaveThreeToOne) {
    const Style& style = TheStyle();
    ExpectContrast({{"item of a list under the pointer", style.listItemLitText, style.listItemLit},
                    {"name in a chart under the pointer", style.barRowHover, style.paper},
                    {"notice on a chart", style.chartNoticeInk, style.paper}},
                   3);
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
