#include "core/StartSettings.h"

#include "core/SettingNames.h"
#include "runtime/AppPath.h"
#include "runtime/Convert.h"
#include "runtime/Round.h"
#include "runtime/Settings.h"

#include <QDir>

#include <limits>

namespace {

/// The platform family of all systems since the first whose text is smoothed.
constexpr qint32 platformFamily = 2;

bool Is(const char* name, const char* value) {
    return GetRegValue(name).compare(QLatin1String(value), Qt::CaseInsensitive) == 0;
}

/// A place on the desktop. What is no number that fits counts as 0, so that a damaged store never
/// keeps the program from starting.
qint32 Position(const char* name) {
    const double twips = NumberOrZero(GetRegValue(name));
    return qAbs(twips) <= std::numeric_limits<qint32>::max() ? Round(twips) : 0;
}

} // namespace

bool StartSettings::Agreed() {
    return Is(SettingNames::Agreement, "YES");
}

void StartSettings::ReadFirst(AppInfo& info) {
    info.HELPPATH = FileBeside(QStringLiteral("help")) + QDir::separator();
    info.FAST = Is(SettingNames::Fast, "True");
    info.OSVERSION = platformFamily;
}

void StartSettings::ReadRest(AppInfo& info) {
    info.SHOWCUECARDS = false;
    info.SHOWDROPSHADOWS = !Is(SettingNames::DropShadows, "False");
    info.UILEFT = Position(SettingNames::Left);
    info.UITOP = Position(SettingNames::Top);
    info.AUTOUPDATERDI = !Is(SettingNames::AutoRDI, "False");
    info.LIMITRESULTS = !Is(SettingNames::Limit50, "False");
}
