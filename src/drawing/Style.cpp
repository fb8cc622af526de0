#include "drawing/Style.h"

#include "drawing/Fonts.h"
#include "drawing/StyleOnPaper.h"

namespace {

QFont FontAt(const QString& family, double points, QFont::Weight weight) {
    QFont font(family);
    font.setPointSizeF(points);
    font.setWeight(weight);
#if QT_VERSION >= QT_VERSION_CHECK(6, 7, 0)
    font.setFeature("tnum", 1);
#endif
    return font;
}

void SetFonts(Style& style, const QString& family) {
    style.text = FontAt(family, 9, QFont::Normal);
    style.small = FontAt(family, 8, QFont::Normal);
    style.smallStrong = FontAt(family, 8, QFont::DemiBold);
    style.strong = FontAt(family, 9, QFont::DemiBold);
    style.screenTitle = FontAt(family, 13, QFont::DemiBold);
    style.cardTitle = FontAt(family, 15, QFont::DemiBold);
    style.control = FontAt(family, 10, QFont::Medium);
    style.title = FontAt(family, 10, QFont::DemiBold);
    style.reading = FontAt(family, 10, QFont::Normal);
    style.chartNotice = FontAt(family, 12, QFont::Bold);
    style.raised = FontAt(family, 14, QFont::DemiBold);
}

void SetGrounds(Style& style) {
    style.canvas = QColor(247, 242, 233);
    style.paper = QColor(255, 253, 249);
    style.frame = QColor(180, 105, 12);
    style.rule = QColor(233, 217, 186);
    style.header = {QColor(243, 228, 201), QColor(230, 207, 163)};
    style.headerEdge = QColor(196, 153, 88);
    style.mealStrip = QColor(253, 247, 236);
    style.mealStripLit = QColor(163, 92, 6);
    style.window = {QColor(65, 86, 107), QColor(51, 69, 90)};
    style.navigation = QColor(51, 69, 90);
    style.navigationLit = QColor(69, 91, 115);
    style.navigationPressed = QColor(38, 53, 71);
    style.chosenRow = QColor(51, 69, 90);
    style.chosenDay = {QColor(255, 241, 214), QColor(251, 220, 166)};
    style.listItem = QColor(255, 255, 255);
    style.listItemLit = QColor(131, 146, 151);
    style.scrollSlot = QColor(244, 237, 224);
    style.fieldEdge = QColor(168, 126, 66);
    style.cardLine = QColor(214, 98, 88);
    style.cardRuling = QColor(247, 239, 222);
    style.factsRule = QColor(200, 200, 200);
}

void SetInks(Style& style) {
    style.heading = QColor(125, 72, 8);
    style.headerInk = QColor(92, 54, 8);
    style.ink = QColor(43, 38, 32);
    style.quietInk = QColor(106, 97, 85);
    style.disabledInk = QColor(112, 106, 98);
    style.mealText = QColor(180, 105, 12);
    style.windowInk = QColor(255, 255, 255);
    style.navigationInk = QColor(208, 217, 227);
    style.navigationDisabledInk = QColor(168, 179, 192);
    style.disabledPicture = QColor(190, 182, 170);
    style.chosenRowText = QColor(255, 255, 255);
    style.listItemText = QColor(0, 0, 0);
    style.listItemLitText = QColor(255, 255, 255);
    style.error = QColor(165, 32, 20);
    style.raisedShadow = QColor(10, 75, 175);
    style.raisedText = QColor(255, 255, 255);
}

void SetButtons(Style& style) {
    const QColor text(61, 43, 18);
    const QColor white(255, 255, 255);
    const Style::ButtonFace disabled{
        {QColor(248, 244, 237), QColor(243, 238, 230)}, QColor(206, 198, 186), style.disabledInk};
    style.button[0] = {{QColor(255, 250, 240), QColor(240, 223, 192)}, style.fieldEdge, text};
    style.button[1] = {{QColor(255, 254, 250), QColor(248, 235, 210)}, style.frame, text};
    style.button[2] = {{QColor(229, 208, 170), QColor(238, 221, 189)}, QColor(150, 86, 8), text};
    style.button[3] = disabled;
    style.mainAction[0] = {{QColor(173, 98, 10), QColor(150, 83, 4)}, QColor(126, 70, 4), white};
    style.mainAction[1] = {{QColor(168, 96, 12), QColor(134, 74, 4)}, QColor(98, 54, 2), white};
    style.mainAction[2] = {{QColor(117, 64, 3), QColor(134, 75, 5)}, QColor(94, 51, 2), white};
    style.mainAction[3] = disabled;
}

void SetDayButtons(Style& style) {
    style.dayButton[0] = {style.chosenDay, style.frame, style.ink};
    style.dayButton[1] = {
        {QColor(255, 249, 236), QColor(254, 234, 196)}, style.frame, style.heading};
    style.dayButton[2] = {{QColor(243, 214, 160), QColor(248, 224, 180)}, style.frame, style.ink};
}

void SetChartColours(Style& style) {
    static constexpr QRgb normal[8] = {0xff787c85, 0xffa7b4df, 0xff9cabea, 0xff879beb,
                                       0xff5b70c0, 0xff5669b5, 0xff455696, 0xff5e6068};
    static constexpr QRgb lit[8] = {0xff7c8089, 0xffe6c3af, 0xfff1c5a4, 0xffefb98d,
                                    0xffc0825b, 0xffb47d55, 0xff956743, 0xff5d6067};
    for (int row = 0; row < 8; ++row) {
        style.barNormal[row] = QColor(normal[row]);
        style.barHover[row] = QColor(lit[row]);
    }
    style.gridLight = QColor(222, 222, 222);
    style.gridDark = QColor(111, 111, 111);
    style.barRowText = QColor(0, 0, 0);
    style.barRowHover = QColor(181, 128, 88);
    style.pieFat = QColor(255, 30, 30);
    style.pieProtein = QColor(255, 133, 0);
    style.pieCarbs = QColor(56, 250, 59);
}

void SetLineColours(Style& style) {
    style.ln[0] = {QColor(237, 205, 205), 10};
    style.ln[1] = {QColor(208, 158, 159), 8};
    style.ln[2] = {QColor(128, 0, 0), 6};
    style.ln[3] = {QColor(192, 0, 0), 4};
    style.ln[4] = {QColor(255, 128, 128), 2};
    style.lineMean = {QColor(51, 69, 90), 3};
    style.lineAxis = QColor(0, 0, 0);
    style.lineDotEdge = QColor(255, 170, 170);
    style.lineDotCore = QColor(255, 200, 200);
    style.chartNoticeInk = QColor(255, 0, 0);
}

Style MakeStyle() {
    Style style;
    SetFonts(style, Fonts::Family());
    SetGrounds(style);
    SetInks(style);
    SetButtons(style);
    SetDayButtons(style);
    SetChartColours(style);
    SetLineColours(style);
    return style;
}

Style& OneStyle() {
    static Style style = MakeStyle();
    return style;
}

} // namespace

const Style& TheStyle() {
    return OneStyle();
}

void SetFontFamily(const QString& family) {
    SetFonts(OneStyle(), family);
}

void UseStyleOnPaper() {
    Style& style = OneStyle();
    style.paper = Qt::white;
    style.pieFat = QColor(200, 20, 20);
    style.pieProtein = QColor(255, 150, 60);
    style.pieCarbs = QColor(190, 245, 190);
    for (QFont* font :
         {&style.text, &style.small, &style.smallStrong, &style.strong, &style.screenTitle,
          &style.cardTitle, &style.control, &style.title, &style.reading, &style.chartNotice})
        font->setHintingPreference(QFont::PreferNoHinting);
}

StyleOnPaper::StyleOnPaper()
    : onScreen_(TheStyle()) {
    UseStyleOnPaper();
}

StyleOnPaper::~StyleOnPaper() {
    OneStyle() = onScreen_;
}
