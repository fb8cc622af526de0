#include "drawing/Style.h"

#include "drawing/Fonts.h"
#include "drawing/StyleOnPaper.h"
#include "drawing/StyleTable.h"

namespace {

QFont FontAt(const QString& family, double points, QFont::Weight weight) {
    QFont font(family);
    font.setPointSizeF(points);
    font.setWeight(weight);
    font.setStyleStrategy(QFont::PreferAntialias); // as printed text has it: both share one face
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

Style MakeStyle() {
    Style style;
    SetFonts(style, Fonts::Family());
    StyleTable::Colour(style, StyleKind::Light);
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

void UseStyle(StyleKind kind) {
    StyleTable::Colour(OneStyle(), kind);
}

void SetFontFamily(const QString& family) {
    SetFonts(OneStyle(), family);
}

void UseStyleOnPaper() {
    Style& style = OneStyle();
    StyleTable::Colour(style, StyleKind::Light);
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
