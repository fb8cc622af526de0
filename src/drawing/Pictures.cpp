#include "drawing/Pictures.h"

#include "drawing/DevicePixels.h"
#include "drawing/Style.h"

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

struct ColourName {
    const char* name;
    QColor Style::*colour;
};

/// The colours that a picture may name.
constexpr ColourName ColourNames[] = {
    {"\"@canvas\"", &Style::canvas},
    {"\"@paper\"", &Style::paper},
    {"\"@frame\"", &Style::frame},
    {"\"@fieldEdge\"", &Style::fieldEdge},
    {"\"@disabledInk\"", &Style::disabledInk},
    {"\"@cardRuling\"", &Style::cardRuling},
    {"\"@checkLit\"", &Style::checkLit},
    {"\"@checkOn\"", &Style::checkOn},
    {"\"@checkOnEdge\"", &Style::checkOnEdge},
    {"\"@checkMark\"", &Style::checkMark},
    {"\"@checkDisabledOn\"", &Style::checkDisabledOn},
    {"\"@checkDisabledEdge\"", &Style::checkDisabledEdge},
    {"\"@cellFoot\"", &Style::cellFoot},
    {"\"@foodMark\"", &Style::foodMark},
    {"\"@foodMarkEdge\"", &Style::foodMarkEdge},
    {"\"@foodMarkStem\"", &Style::foodMarkStem},
    {"\"@scaleMark\"", &Style::scaleMark},
    {"\"@scaleMarkDial\"", &Style::scaleMarkDial},
    {"\"@scaleMarkNeedle\"", &Style::scaleMarkNeedle},
    {"\"@plate\"", &Style::plate},
    {"\"@plateEdge\"", &Style::plateEdge},
    {"\"@plateRim\"", &Style::plateRim},
    {"\"@plateShine\"", &Style::plateShine},
};

void TakeNamedColours(QByteArray& source) {
    if (!source.contains("\"@"))
        return;
    for (const ColourName& row : ColourNames)
        source.replace(row.name, QString(u'"' + (TheStyle().*row.colour).name() + u'"').toLatin1());
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
    return "halvane/" + name + u'/' + QString::number(int(TheStyle().kind)) + u'/' +
           QString::number(pixels.width()) + u'x' + QString::number(pixels.height()) + u'/' +
           (tint.isValid() ? tint.name(QColor::HexArgb) : QString());
}

} // namespace

bool Pictures::Exists(const QString& name) {
    return QFile::exists(PathOf(name));
}

QByteArray Pictures::Source(const QString& name, const QColor& tint) {
    QFile file(PathOf(name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray source = file.readAll();
    TakeNamedColours(source);
    if (tint.isValid())
        source.replace("currentColor", tint.name().toLatin1());
    return source;
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
        drawn = Draw(pixels, Source(name, tint));
        QPixmapCache::insert(key, drawn);
    }
    drawn.setDevicePixelRatio(ratio);
    return drawn;
}
