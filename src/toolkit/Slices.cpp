#include "toolkit/Slices.h"

#include <QCoreApplication>
#include <QPainter>

#include <array>
#include <map>

namespace {

using FaceKey = std::array<qint64, 7>;

/// Cleared when the application ends: no pixmap may outlive it.
std::map<FaceKey, Slices>& Faces() {
    static std::map<FaceKey, Slices> faces;
    static const bool cleared = [] {
        qAddPostRoutine([] { Faces().clear(); });
        return true;
    }();
    Q_UNUSED(cleared)
    return faces;
}

FaceKey KeyOf(const Style::ButtonFace& face, int cap, double radius, int height, qreal ratio) {
    return {face.ground.from.rgba(), face.ground.to.rgba(),
            face.edge.rgba(),        cap,
            qRound64(radius * 100),  height,
            qRound64(ratio * 100)};
}

QPixmap DrawFace(const Style::ButtonFace& face, QSize size, double radius, qreal ratio) {
    QPixmap drawn((QSizeF(size) * ratio).toSize());
    drawn.setDevicePixelRatio(ratio);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient ground(0, 0, 0, size.height());
    ground.setColorAt(0, face.ground.from);
    ground.setColorAt(1, face.ground.to);
    painter.setBrush(ground);
    const bool edged = face.edge.alpha() > 0;
    const double inset = edged ? .5 : 0;
    painter.setPen(edged ? QPen(face.edge, 1) : QPen(Qt::NoPen));
    painter.drawRoundedRect(
        QRectF(inset, inset, size.width() - 2 * inset, size.height() - 2 * inset), radius, radius);
    return drawn;
}

QPixmap Cut(const QPixmap& face, double x, double width) {
    const qreal ratio = face.devicePixelRatio();
    return face.copy(QRect(qRound(x * ratio), 0, qRound(width * ratio), face.height()));
}

} // namespace

const Slices& Slices::OfFace(const Style::ButtonFace& face, int cap, double radius, int height,
                             qreal ratio) {
    Slices& slices = Faces()[KeyOf(face, cap, radius, height, ratio)];
    if (slices.middle.isNull() && height > 0) {
        const QPixmap whole = DrawFace(face, QSize(2 * cap + 1, height), radius, ratio);
        slices = {Cut(whole, 0, cap), Cut(whole, cap, 1), Cut(whole, cap + 1, cap)};
    }
    return slices;
}

void StretchColumn(QPainter& painter, const QRect& place, const QPixmap& column) {
    painter.drawPixmap(place, column, QRect(0, 0, 1, column.height()));
}
