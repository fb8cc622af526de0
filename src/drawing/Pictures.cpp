#include "drawing/Pictures.h"

#include "drawing/DevicePixels.h"

#include <QFile>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

/// The linker drops the pictures of a static library unless something names them.
static void BindPictures() {
    static const bool bound = [] {
        Q_INIT_RESOURCE(assets);
        return true;
    }();
    Q_UNUSED(bound)
}

namespace {

QString PathOf(const QString& name) {
    BindPictures();
    return ":/assets/" + name + ".svg";
}

QByteArray Tinted(const QString& name, const QColor& tint) {
    QFile file(PathOf(name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray source = file.readAll();
    if (tint.isValid())
        source.replace("currentColor", tint.name().toLatin1());
    return source;
}

QPixmap Draw(QSize pixels, const QByteArray& source) {
    QPixmap drawn(pixels);
    drawn.fill(Qt::transparent);
    QSvgRenderer renderer(source);
    QPainter painter(&drawn);
    if (renderer.isValid())
        renderer.render(&painter, QRectF(QPointF(), QSizeF(pixels)));
    return drawn;
}

QString KeyOf(const QString& name, QSize pixels, const QColor& tint) {
    return "halvane/" + name + u'/' + QString::number(pixels.width()) + u'x' +
           QString::number(pixels.height()) + u'/' +
           (tint.isValid() ? tint.name(QColor::HexArgb) : QString());
}

} // namespace

bool Pictures::Exists(const QString& name) {
    return QFile::exists(PathOf(name));
}

void Pictures::Paint(QPainter& painter, const QRectF& place, const QString& name,
                     const QColor& tint) {
    const DevicePixels device(painter);
    const QRect on = device.Of(place);
    const QSize size = (QSizeF(place.size().toSize()) * device.Ratio()).toSize();
    painter.drawPixmap(on.topLeft(), Get(name, size, tint));
}

QPixmap Pictures::Get(const QString& name, QSize size, const QColor& tint, qreal ratio) {
    const QSize pixels = (QSizeF(size) * ratio).toSize();
    const QString key = KeyOf(name, pixels, tint);
    QPixmap drawn;
    if (!pixels.isEmpty() && !QPixmapCache::find(key, &drawn)) {
        drawn = Draw(pixels, Tinted(name, tint));
        QPixmapCache::insert(key, drawn);
    }
    drawn.setDevicePixelRatio(ratio);
    return drawn;
}
