#pragma once

#include "drawing/Style.h"

#include <QVariantMap>

#include <optional>

class QPalette;

/// The style that the desktop asks for.
namespace DesktopStyle {
/// What the settings portal of the desktop tells; what it does not tell is seen in the palette of
/// the platform.
StyleKind Wanted(const QPalette& platform);

StyleKind SeenIn(const QPalette& platform);

/// The settings of the portal by name, in groups by name. Empty if they tell nothing about it.
using PortalSettings = QMap<QString, QVariantMap>;
std::optional<StyleKind> ToldBy(const PortalSettings& settings);

/// Empty without a session bus, and if no portal runs there: it is never started for this.
PortalSettings FromPortal();
} // namespace DesktopStyle
