#include "drawing/SmoothedPrint.h"

#include "runtime/AppState.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QtMath>

namespace {

constexpr qint32 FirstSmoothingFamily = 2;
constexpr double LeastPoints = 5; ///< the smallest that can still be read
constexpr double PointStep = 0.25;

bool Smooths() {
    return App().AppInfo.OSVERSION >= FirstSmoothingFamily;
}

} // namespace

QFont SmoothedFont(QFont font) {
    font.setStyleStrategy(Smooths() ? QFont::PreferAntialias : QFont::NoAntialias);
    return font;
}

void SmoothedPrint(QPainter& painter, QPointF place, const QString& text, const QFont& font) {
    const QFont previous = painter.font();
    painter.setFont(SmoothedFont(font));
    const double ascent = QFontMetricsF(painter.font(), painter.device()).ascent();
    painter.drawText(place + QPointF(0, ascent), text);
    painter.setFont(previous);
}

QFont FittingFont(QFont font, const QString& text, double width) {
    while (font.pointSizeF() > LeastPoints &&
           QFontMetricsF(SmoothedFont(font)).horizontalAdvance(text) > width)
        font.setPointSizeF(font.pointSizeF() - PointStep);
    return font;
}

// Measures first: the ellipsis uses unhinted widths and would cut a text that fits to the pixel. A
// text with more characters than pixels never fits and is not measured whole.
QString FittingText(const QString& text, const QFont& font, double width) {
    const QFontMetricsF metrics(SmoothedFont(font));
    const qsizetype most = qMax(qCeil(width), 1);
    const bool fits = text.size() <= most && metrics.horizontalAdvance(text) <= width;
    return fits ? text : metrics.elidedText(text.left(most + 1), Qt::ElideRight, width);
}
