#pragma once

#include <QString>

/// Paths of the tree under test. Only Places.cpp is compiled with them, so that different trees
/// share the compiler cache.
namespace Places {
QString Source(const QString& path); ///< in the source tree; the path begins with a slash
QString Build(const QString& path);  ///< in the build tree, likewise
} // namespace Places
