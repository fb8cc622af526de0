#pragma once

#include "drawing/Style.h"

#include <optional>

class QPalette;

/// The style that the user has chosen. It is a setting and counts from the next start, because
/// controls take their colours when they are made.
namespace StyleChoice {
struct Choice {
    const char* stored;
    const char* caption;
    std::optional<StyleKind> kind = {}; ///< none: that of the desktop
};
inline constexpr Choice All[] = {{"DESKTOP", "As the desktop"},
                                 {"LIGHT", "Light", StyleKind::Light},
                                 {"DARK", "Dark", StyleKind::Dark},
                                 {"CONTRAST", "High contrast", StyleKind::HighContrast}};

int Stored(); ///< its place in All; the first if the stored text is none of them
void Keep(int choice);

/// The style to start with. `platform` is the palette before the program sets its own.
StyleKind Wanted(const QPalette& platform);
} // namespace StyleChoice
