#pragma once

#include <QString>

/// The typeface of the program. Its files are delivered beside the program, in the folder `fonts`:
/// every machine shows the same.
namespace Fonts {

/// The family in the files of the folder, which are loaded; empty where none can be loaded.
QString Load(const QString& folder);

/// The delivered family, or one of the machine's where the folder is missing.
QString Family();

} // namespace Fonts
