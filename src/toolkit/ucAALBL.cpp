#include "toolkit/ucAALBL.h"

#include "drawing/SmoothedPrint.h"
#include "drawing/Style.h"
#include "drawing/Twips.h"
#include "toolkit/Accessible.h"

#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <QtMath>

ucAALBL::ucAALBL(QWidget* parent)
    : DrawnControl(parent)
    , caption_(QStringLiteral("AntiAlias"))
    , backColor_(TheStyle().listItem) {
    Fit();
}

void ucAALBL::SetCaption(const QString& caption) {
    caption_ = caption;
    Fit();
    TellNameChanged(this);
}

/// The change of the font fits the label.
void ucAALBL::SetFont(const QFont& font) {
    setFont(font);
}

void ucAALBL::SetBackColor(const QColor& color) {
    backColor_ = color;
    update();
}

QColor ucAALBL::ForeColor() const {
    return foreColor_.isValid() ? foreColor_ : palette().color(QPalette::ButtonText);
}

void ucAALBL::SetForeColor(const QColor& color) {
    foreColor_ = color;
    update();
}

QSize ucAALBL::sizeHint() const {
    return textSize_;
}

void ucAALBL::Fit() {
    const QFontMetricsF metrics(SmoothedFont(font()));
    textSize_ = {qCeil(metrics.horizontalAdvance(caption_)), qCeil(metrics.height())};
    updateGeometry();
    resize(textSize_);
    update();
}

/// The label keeps the size of its text, whatever size a screen sets.
void ucAALBL::resizeEvent(QResizeEvent*) {
    resize(textSize_);
}

void ucAALBL::changeEvent(QEvent* event) {
    DrawnControl::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        Fit();
}

void ucAALBL::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (backColor_.isValid())
        painter.fillRect(rect(), backColor_);
    const double textHeight = QFontMetricsF(SmoothedFont(font())).height();
    painter.setPen(isEnabled() ? ForeColor() : TheStyle().disabledInk);
    SmoothedPrint(painter, QPointF(0, height() / 2.0 - textHeight / 2), caption_, font());
}

void ucAALBL::mousePressEvent(QMouseEvent* event) {
    BeginClick(event);
    const QPointF place = event->position() * Twips::PerPixel();
    Q_EMIT MouseDown(static_cast<int>(event->button()), ShiftOf(event), place.x(), place.y());
}

void ucAALBL::mouseMoveEvent(QMouseEvent* event) {
    RaiseMouseMove(event);
    event->ignore();
}

void ucAALBL::mouseReleaseEvent(QMouseEvent* event) {
    const QPointF place = event->position() * Twips::PerPixel();
    const bool clicked = EndsClick(event);
    Q_EMIT MouseUp(static_cast<int>(event->button()), ShiftOf(event), place.x(), place.y());
    if (clicked)
        Q_EMIT Click();
}
