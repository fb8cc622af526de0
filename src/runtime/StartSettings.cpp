#include "runtime/StartSettings.h"

#include "runtime/AppPath.h"
#include "runtime/Convert.h"
#include "runtime/Round.h"
#include "runtime/SettingTable.h"
#include "runtime/Settings.h"

#include <QDir>

#include <limits>
#include <string_view>

namespace {

/// The platform family of all current systems; their text is smoothed.
constexpr qint32 PlatformFamily = 2;

bool Holds(const Setting& setting, const char* value) {
    return GetRegValue(setting).compare(QLatin1String(value), Qt::CaseInsensitive) == 0;
}

/// Only the opposite of the default changes it: any other text counts as the default.
bool IsOn(const Setting& setting) {
    const bool byDefault = setting.missing == std::string_view("True");
    return Holds(setting, byDefault ? "False" : "True") != byDefault;
}

/// A position on the desktop. A text that is not a number, or too large a one, counts as 0: a
/// damaged store must not keep the program from starting.
qint32 Position(const Setting& setting) {
    const double twips = NumberOrZero(GetRegValue(setting));
    return qAbs(twips) <= std::numeric_limits<qint32>::max() ? Round(twips) : 0;
}

} // namespace

bool StartSettings::Agreed() {
    return Holds(Settings::Agreement, "YES");
}

void StartSettings::ReadFirst(AppInfo& info) {
    info.HELPPATH = FileBeside(QStringLiteral("help")) + QDir::separator();
    info.FAST = IsOn(Settings::Fast);
    info.OSVERSION = PlatformFamily;
}

void StartSettings::ReadRest(AppInfo& info) {
    info.SHOWCUECARDS = false;
    info.SHOWDROPSHADOWS = IsOn(Settings::DropShadows);
    info.UILEFT = Position(Settings::Left);
    info.UITOP = Position(Settings::Top);
    info.AUTOUPDATERDI = IsOn(Settings::AutoRDI);
    info.LIMITRESULTS = IsOn(Settings::Limit50);
}
