#include "drawing/Contrast.h"

#include "drawing/Style.h"
#include "support/HalvaneTest.h"

namespace {

/// In each style.
class ContrastTest : public HalvaneTest, public ::testing::WithParamInterface<StyleKind> {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        UseStyle(GetParam());
    }
    void TearDown() override {
        UseStyle(StyleKind::Light);
        HalvaneTest::TearDown();
    }
    static bool IsHigh() { return GetParam() == StyleKind::HighContrast; }
    static double ForText() { return IsHigh() ? 7 : 4.5; }
    static double ForPictures() { return IsHigh() ? 4.5 : 3; }
    /// A text whose colour is fixed in the light style.
    static double ForFixedText(double inTheLight) {
        return GetParam() == StyleKind::Light ? inTheLight : ForText();
    }
};

std::string NameOf(const ::testing::TestParamInfo<StyleKind>& style) {
    static constexpr const char* names[] = {"Light", "Dark", "HighContrast"};
    return names[static_cast<size_t>(style.param)];
}

INSTANTIATE_TEST_SUITE_P(Styles, ContrastTest,
                         ::testing::Values(StyleKind::Light, StyleKind::Dark,
                                           StyleKind::HighContrast),
                         NameOf);

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
                      {"button of a message", style.ink, style.button[0].ground.to},
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
    pairs += On(style.window, "button of the title, pressed", style.windowPressedInk);
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
            {"mean of the weights", style.lineMean, style.paper},
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
    pairs += OnPaperAndCanvas("edge of a day with food", style.foodMarkEdge);
    pairs += OnPaperAndCanvas("mark of a weight", style.scaleMark);
    pairs += OnPaperAndCanvas("ticked box", style.checkOn);
    pairs << Pair{"tick", style.checkMark, style.checkOn}
          << Pair{"tick of a disabled box", style.disabledInk, style.checkDisabledOn}
          << Pair{"dial of a scale", style.scaleMarkDial, style.scaleMark};
    const QColor tints[] = {style.quietInk, style.frame, style.heading};
    for (int state = 0; state < 3; ++state) {
        pairs += OnPaperAndCanvas("picture", tints[state]);
        pairs += On(style.button[state].ground, "picture on a button", tints[state]);
        pairs << Pair{"thumb", style.button[state].edge, style.scrollSlot};
    }
    return pairs;
}

} // namespace

TEST(Contrast, OfBlackAndOfAGreyOnWhite) {
    EXPECT_NEAR(Contrast(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(Contrast(QColor(119, 119, 119), Qt::white), 4.48, 0.01);
}

TEST_P(ContrastTest, TextCanBeReadInEveryState) {
    ExpectContrast(PlainTexts(), ForText());
    ExpectContrast(WindowTexts(), ForText());
    ExpectContrast(ButtonTexts(), ForText());
}

/// The brown of the light style is fixed and reaches 4.2 to 1 on pure white at best; bold on the
/// lightest strip that still shows as one it comes near that.
TEST_P(ContrastTest, MealHeadingsCanBeReadAsWellAsTheirFixedBrownAllows) {
    const Style& style = TheStyle();
    EXPECT_GE(Contrast(style.mealText, style.mealStrip), ForFixedText(3.9));
    EXPECT_NE(style.mealStrip, style.paper);
}

TEST_P(ContrastTest, EdgesAndPicturesThatCarryMeaningAreSeenInEveryState) {
    ExpectContrast(PicturesAndEdges(), ForPictures());
    ExpectContrast(ChartLines(), ForPictures());
}

/// On dark grounds of the light style the inner line of the ring is the one that is seen.
TEST_P(ContrastTest, OneOfTheTwoLinesOfTheFocusRingIsSeenOnEveryGround) {
    const Style& style = TheStyle();
    QList<QColor> grounds{style.paper,     style.canvas,       style.navigation,
                          style.mealStrip, style.mealStripLit, style.chosenDay.to};
    for (int state = 0; state < 3; ++state)
        grounds << style.button[state].ground.to << style.mainAction[state].ground.from
                << style.mainAction[state].ground.to;
    for (const QColor& ground : grounds)
        EXPECT_GE(qMax(Contrast(style.frame, ground), Contrast(style.paper, ground)), ForPictures())
            << ground.name().toStdString();
}

namespace {

/// Colours as a person sees them who sees only lightness.
void ExpectSteps(const char* what, const QList<QColor>& states) {
    constexpr double leastStep = 1.4;
    for (qsizetype i = 0; i < states.size(); ++i)
        for (qsizetype j = 0; j < i; ++j)
            EXPECT_GE(Contrast(states[i], states[j]), leastStep)
                << what << ", states " << j << " and " << i;
}

/// A disabled face differs by its text.
template <size_t States> QList<QColor> GroundsOf(const Style::ButtonFace (&faces)[States]) {
    QList<QColor> grounds;
    for (size_t state = 0; state < 3; ++state)
        grounds << faces[state].ground.to;
    return grounds;
}

} // namespace

TEST(HighContrastTest, RestHoverAndPressedDifferInLightness) {
    UseStyle(StyleKind::HighContrast);
    const Style& style = TheStyle();
    ExpectSteps("button", GroundsOf(style.button));
    ExpectSteps("main action", GroundsOf(style.mainAction));
    ExpectSteps("chosen day", GroundsOf(style.dayButton));
    ExpectSteps("navigation", {style.navigation, style.navigationLit, style.navigationPressed});
    UseStyle(StyleKind::Light);
}

TEST(HighContrastTest, AChosenViewDiffersInLightnessFromOneAtRestAndOneUnderThePointer) {
    UseStyle(StyleKind::HighContrast);
    const Style& style = TheStyle();
    ExpectSteps("view button",
                {style.button[0].ground.to, style.button[1].ground.to, style.chosenDay.to});
    UseStyle(StyleKind::Light);
}

TEST(HighContrastTest, ALitBarHasAnotherPatternThanABarAtRest) {
    UseStyle(StyleKind::HighContrast);
    const Style& style = TheStyle();
    int unlike = 0;
    for (size_t row = 0; row < std::size(style.barNormal); ++row)
        unlike += Contrast(style.barNormal[row], style.barHover[row]) >= 3;
    EXPECT_GE(unlike, 2);
    UseStyle(StyleKind::Light);
}

/// The first two show only while the pointer is there; before and after, the same text is black.
TEST_P(ContrastTest, TextsWhoseColoursAreFixedInTheLightStyleHaveThreeToOneThere) {
    const Style& style = TheStyle();
    ExpectContrast({{"item of a list under the pointer", style.listItemLitText, style.listItemLit},
                    {"name in a chart under the pointer", style.barRowHover, style.paper},
                    {"notice on a chart", style.chartNoticeInk, style.paper}},
                   ForFixedText(3));
}
