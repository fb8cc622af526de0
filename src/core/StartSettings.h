#pragma once

#include "runtime/AppInfo.h"

/// Reads the stored settings into the copy that the program consults while it runs. Whatever stands
/// in the store, each value comes out as one of those that are allowed.
namespace StartSettings {
bool Agreed(); ///< the agreement has been accepted

void ReadFirst(AppInfo& info); ///< what is needed before the first window
void ReadRest(AppInfo& info);  ///< what the screens consult
} // namespace StartSettings
