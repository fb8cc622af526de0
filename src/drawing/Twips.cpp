#include "drawing/Twips.h"

#include <QGuiApplication>
#include <QScreen>
#include <QtMath>

namespace {

constexpr double TwipsPerInch = 1440;
constexpr double StandardDensity = 96;

} // namespace

int Twips::PerPixel() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    const double density = screen ? screen->logicalDotsPerInchX() : StandardDensity;
    return qMax(1, qRound(TwipsPerInch / density));
}

int Twips::ToPixels(double twips) {
    return qRound(twips / PerPixel());
}

int Twips::FromPixels(int pixels) {
    return pixels * PerPixel();
}
