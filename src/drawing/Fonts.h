#pragma once

#include <QString>

/// The typeface of the program. Its files are delivered in the folder `fonts` beside the program,
/// so the program looks the same on every machine.
namespace Fonts {

/// Begins to read the configuration of the machine's fonts, in a thread. The first font needs it,
/// and nothing else takes as long at a start. The thread reads the environment: nobody may change
/// that until a font is there.
void ReadAhead();

/// Loads the files of the folder and returns their family; empty if none can be loaded.
QString Load(const QString& folder);

/// The delivered family. If the folder is missing: a family of the machine.
QString Family();

} // namespace Fonts
