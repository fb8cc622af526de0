#pragma once

#include <QString>

/// Where the tree under test stands. Only one file knows, so that trees share what they compile.
namespace Places {
QString Source(const QString& path); ///< in the source tree; the path begins with a slash
QString Build(const QString& path);  ///< in the build tree, likewise
} // namespace Places
