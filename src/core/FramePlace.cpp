#include "core/FramePlace.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace {

constexpr QSize LeastGrip(64, 16); ///< of the title that must be within reach of the pointer

bool HoldsGrip(const QRect& screen, const QRect& title) {
    const QRect seen = screen.intersected(title);
    return seen.width() >= LeastGrip.width() && seen.height() >= LeastGrip.height();
}

} // namespace

QPoint PlaceOnScreens(QPoint wanted, QSize size, int titleHeight) {
    const QRect title(wanted, QSize(size.width(), titleHeight));
    const QList<QScreen*> screens = QGuiApplication::screens();
    const bool reachable = std::any_of(screens.begin(), screens.end(), [&](const QScreen* screen) {
        return HoldsGrip(screen->availableGeometry(), title);
    });
    if (reachable || screens.isEmpty())
        return wanted;
    const QRect middle = QGuiApplication::primaryScreen()->availableGeometry();
    return middle.center() - QRect(QPoint(), size).center();
}
