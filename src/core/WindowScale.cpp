#include "core/WindowScale.h"

#include "runtime/SettingTable.h"
#include "runtime/Settings.h"

#include <QtGlobal>

#include <algorithm>
#include <iterator>

namespace {

constexpr int Steps[] = {WindowScale::Normal, 110, 125, 150, 175, 200};
constexpr const char* Factor = "QT_SCALE_FACTOR";

int startedAt = WindowScale::Normal;
QByteArray factorBefore;

/// The last step up to `percent`.
int StepAt(int percent) {
    const auto* above = std::upper_bound(std::begin(Steps), std::end(Steps), percent);
    return above == std::begin(Steps) ? WindowScale::Normal : *std::prev(above);
}

} // namespace

int WindowScale::Stored() {
    return StepAt(GetRegValue(Settings::Scale).toInt());
}

void WindowScale::Keep(int percent) {
    SetRegValue(Settings::Scale, QString::number(percent));
}

int WindowScale::Larger(int percent) {
    const auto* next = std::upper_bound(std::begin(Steps), std::end(Steps), percent);
    return next == std::end(Steps) ? percent : *next;
}

int WindowScale::Smaller(int percent) {
    return StepAt(percent - 1);
}

int WindowScale::LargestThatFits(QSize window, QSize screen, int started) {
    const int width = screen.width() * started / window.width();
    const int height = screen.height() * started / window.height();
    return StepAt(std::min(width, height));
}

void WindowScale::TellPlatform() {
    startedAt = Stored();
    factorBefore = qgetenv(Factor);
    const double desktop = factorBefore.toDouble();
    const double factor = (desktop > 0 ? desktop : 1) * startedAt / Normal;
    if (startedAt != Normal)
        qputenv(Factor, QByteArray::number(factor));
}

void WindowScale::ClearEnvironment() {
    if (factorBefore.isEmpty())
        qunsetenv(Factor);
    else
        qputenv(Factor, factorBefore);
}

int WindowScale::Started() {
    return startedAt;
}
