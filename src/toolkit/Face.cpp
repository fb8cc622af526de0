#include "toolkit/Face.h"

#include "drawing/DevicePixels.h"

#include <QCoreApplication>
#include <QPainter>
#include <QtMath>

#include <array>
#include <map>

namespace {

/// What a face looks like in pixels of the device.
struct Form {
    Style::ButtonFace face;
    int cap;
    int height;
    int line; ///< width of the edge, 0 without one
    double radius;
};

struct Slices {
    QPixmap left;
    QPixmap middle;
    QPixmap right;
};

using FormKey = std::array<qint64, 7>;

/// Cleared when the application ends: no pixmap may outlive it.
std::map<FormKey, Slices>& Kept() {
    static std::map<FormKey, Slices> slices;
    static const bool cleared = [] {
        qAddPostRoutine([] { Kept().clear(); });
        return true;
    }();
    Q_UNUSED(cleared)
    return slices;
}

FormKey KeyOf(const Form& form) {
    return {form.face.ground.from.rgba(),
            form.face.ground.to.rgba(),
            form.face.edge.rgba(),
            form.cap,
            form.height,
            form.line,
            qRound64(form.radius * 100)};
}

QPixmap Draw(const Form& form) {
    const QSize size(2 * form.cap + 1, form.height);
    QPixmap drawn(size);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient ground(0, 0, 0, size.height());
    ground.setColorAt(0, form.face.ground.from);
    ground.setColorAt(1, form.face.ground.to);
    painter.setBrush(ground);
    QPen edge(form.face.edge, form.line);
    edge.setJoinStyle(Qt::MiterJoin);
    painter.setPen(form.line > 0 ? edge : QPen(Qt::NoPen));
    const double inset = form.line / 2.0;
    painter.drawRoundedRect(QRectF(QPointF(), size).adjusted(inset, inset, -inset, -inset),
                            form.radius, form.radius);
    return drawn;
}

const Slices& SlicesOf(const Form& form) {
    Slices& slices = Kept()[KeyOf(form)];
    if (slices.middle.isNull()) {
        const QPixmap whole = Draw(form);
        slices = {whole.copy(0, 0, form.cap, form.height), whole.copy(form.cap, 0, 1, form.height),
                  whole.copy(form.cap + 1, 0, form.cap, form.height)};
    }
    return slices;
}

} // namespace

void PaintFace(QPainter& painter, const QRect& place, const Style::ButtonFace& face, double radius,
               int edgeWidth) {
    const DevicePixels device(painter);
    const QRect on = device.Of(place);
    if (on.isEmpty())
        return;
    const int line = face.edge.alpha() > 0 ? device.Line(edgeWidth) : 0;
    const double rounding = radius * device.Ratio();
    const int cap = qMin(qCeil(rounding) + line, (on.width() - 1) / 2);
    const Slices& slices = SlicesOf({face, cap, on.height(), line, rounding});
    painter.drawPixmap(on.topLeft(), slices.left);
    painter.drawPixmap(on.adjusted(cap, 0, -cap, 0), slices.middle);
    painter.drawPixmap(QPoint(on.right() + 1 - cap, on.top()), slices.right);
}

void PaintGround(QPainter& painter, const QRect& place, const Style::Gradient& ground) {
    PaintFace(painter, place, {ground, Qt::transparent, QColor()});
}
