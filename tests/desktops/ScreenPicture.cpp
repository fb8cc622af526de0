#include "desktops/ScreenPicture.h"

#include "drawing/Style.h"

#include <QFile>
#include <QtEndian>

namespace {

constexpr QSize FrameSize(850, 620);
constexpr int Tolerance = 4; ///< of a colour

// Numbers of the header, by their place.
constexpr int HeaderSize = 0;
constexpr int Width = 4;
constexpr int Height = 5;
constexpr int BytesInALine = 12;
constexpr int Colours = 19;
constexpr int BytesOfAColour = 12;

bool IsNear(int one, int other) {
    return qAbs(one - other) <= Tolerance;
}

} // namespace

ScreenPicture::ScreenPicture(const QString& file) {
    QFile picture(file);
    if (!picture.open(QIODevice::ReadOnly))
        return;
    bytes_ = picture.readAll();
    width_ = int(Number(Width));
    height_ = int(Number(Height));
}

quint32 ScreenPicture::Number(int index) const {
    return qFromBigEndian<quint32>(bytes_.constData() + index * int(sizeof(quint32)));
}

bool ScreenPicture::IsTitle(int x, int y) const {
    const quint32 start = Number(HeaderSize) + Number(Colours) * BytesOfAColour;
    const char* pixel = bytes_.constData() + start + quint32(y) * Number(BytesInALine) + x * 4;
    const QRgb colour = qFromLittleEndian<quint32>(pixel);
    const QColor& title = TheStyle().window.from;
    return IsNear(qRed(colour), title.red()) && IsNear(qGreen(colour), title.green()) &&
           IsNear(qBlue(colour), title.blue());
}

QRect ScreenPicture::Frame() const {
    for (int y = 0; y < height_; ++y)
        for (int x = 0; x + FrameSize.width() <= width_; ++x) {
            const int left = x;
            while (x < width_ && IsTitle(x, y))
                ++x;
            if (x - left == FrameSize.width())
                return {QPoint(left, y), FrameSize};
        }
    return {};
}
