#include "foods/ui/ElidedLabel.h"

#include "drawing/SmoothedPrint.h"
#include "drawing/Style.h"
#include "toolkit/PlainTip.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

ElidedLabel::ElidedLabel(QWidget* parent, const QString& name)
    : QLabel(parent)
    , fonts_{TheStyle().text}
    , ink_(TheStyle().ink) {
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setMouseTracking(true);
}

void ElidedLabel::SetCaption(const QString& caption) {
    setText(caption);
    setAccessibleName(caption);
}

void ElidedLabel::SetLook(const QList<QFont>& fonts, const QColor& ink) {
    fonts_ = fonts;
    ink_ = ink;
    update();
}

void ElidedLabel::Print(QPainter& painter, const QRect& place, const QString& text,
                        const QFont& font, const QColor& ink) {
    const QFontMetrics metrics(SmoothedFont(font));
    const int top = place.y() + (place.height() - metrics.height()) / 2;
    painter.setPen(ink);
    SmoothedPrint(painter, QPointF(place.x(), top), FittingText(text, font, place.width()), font);
}

bool ElidedLabel::Fits(const QFont& font) const {
    return QFontMetrics(SmoothedFont(font)).horizontalAdvance(text()) <= width();
}

QFont ElidedLabel::FittingFont() const {
    const auto others = fonts_.first(fonts_.size() - 1);
    const auto fitting =
        std::ranges::find_if(others, [this](const QFont& font) { return Fits(font); });
    return fitting == others.end() ? fonts_.last() : *fitting;
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    const QString cut = Fits(fonts_.last()) ? QString() : text();
    ShowPlainTip(static_cast<QHelpEvent*>(event)->globalPos(),
                 toolTip().isEmpty() ? cut : toolTip(), this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Print(painter, rect(), text(), FittingFont(), isEnabled() ? ink_ : TheStyle().disabledInk);
}

void ElidedLabel::mousePressEvent(QMouseEvent* event) {
    click_.Begin(event);
    event->setAccepted(isSignalConnected(QMetaMethod::fromSignal(&ElidedLabel::Click)));
}

void ElidedLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (click_.Ends(event, this))
        Q_EMIT Click();
}
