#include "desktops/FramePicture.h"

#include "drawing/Style.h"

namespace {

constexpr int Tolerance = 4;       ///< of a colour
constexpr int LargestPointer = 64; ///< pixels of a line that it may cover

bool IsNear(int one, int other) {
    return qAbs(one - other) <= Tolerance;
}

/// The colour of the upper edge of the title.
bool IsTitle(QRgb colour) {
    const QColor& title = TheStyle().window.from;
    return IsNear(qRed(colour), title.red()) && IsNear(qGreen(colour), title.green()) &&
           IsNear(qBlue(colour), title.blue());
}

/// The first and the last pixel of the title's colour, if nearly all between them are.
std::pair<int, int> TitleIn(const QRgb* line, int width) {
    int first = -1, last = -1, count = 0;
    for (int x = 0; x < width; ++x)
        if (IsTitle(line[x])) {
            first = first < 0 ? x : first;
            last = x;
            ++count;
        }
    return count > 0 && last - first + 1 - count <= LargestPointer ? std::pair(first, last)
                                                                   : std::pair(0, -1);
}

} // namespace

QRect FramePicture::Find(const QImage& screen, QSize frame) {
    for (int y = 0; y < screen.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(screen.constScanLine(y));
        const auto [first, last] = TitleIn(line, screen.width());
        if (last - first + 1 == frame.width())
            return {QPoint(first, y), frame};
    }
    return {};
}
