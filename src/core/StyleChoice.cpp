#include "core/StyleChoice.h"

#include "core/DesktopStyle.h"
#include "runtime/SettingTable.h"
#include "runtime/Settings.h"

#include <algorithm>

int StyleChoice::Stored() {
    const QString stored = GetRegValue(Settings::Look);
    const auto* found = std::ranges::find_if(
        All, [&](const Choice& choice) { return stored == QLatin1String(choice.stored); });
    return found == std::end(All) ? 0 : int(found - std::begin(All));
}

void StyleChoice::Keep(int choice) {
    SetRegValue(Settings::Look, QLatin1String(All[choice].stored));
}

StyleKind StyleChoice::Wanted(const QPalette& platform) {
    const std::optional<StyleKind> chosen = All[Stored()].kind;
    return chosen ? *chosen : DesktopStyle::Wanted(platform);
}
