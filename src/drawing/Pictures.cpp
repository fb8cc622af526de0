#include "drawing/Pictures.h"

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
    const qreal ratio = painter.device()->devicePixelRatioF();
    const QSize size = place.size().toSize();
    painter.drawPixmap(place.topLeft(), Get(name, size, tint, ratio));
}

QPixmap Pictures::Get(const QString& name, QSize size, const QColor& tint, qreal ratio) {
    const QSize pixels = (QSizeF(size) * ratio).toSize();
    const QString key = KeyOf(name, pixels, tint);
    QPixmap drawn;
    if (pixels.isEmpty() || QPixmapCache::find(key, &drawn))
        return drawn;
    drawn = QPixmap(pixels);
    drawn.fill(Qt::transparent);
    QSvgRenderer renderer(Tinted(name, tint));
    QPainter painter(&drawn);
    if (renderer.isValid())
        renderer.render(&painter, QRectF(QPointF(), QSizeF(pixels)));
    painter.end();
    drawn.setDevicePixelRatio(ratio);
    QPixmapCache::insert(key, drawn);
    return drawn;
}
