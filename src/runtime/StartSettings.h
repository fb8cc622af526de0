#pragma once

#include "runtime/AppInfo.h"

/// Reads the settings into AppInfo. Whatever the store holds, every value comes out as an allowed
/// one.
namespace StartSettings {
bool Agreed(); ///< the agreement was accepted

void ReadFirst(AppInfo& info); ///< needed before the first window
void ReadRest(AppInfo& info);  ///< needed by the screens
} // namespace StartSettings
