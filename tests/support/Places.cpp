#include "support/Places.h"

QString Places::Source(const QString& path) {
    return QStringLiteral(HALVANE_SOURCE_DIR) + path;
}

QString Places::Build(const QString& path) {
    return QStringLiteral(HALVANE_BUILD_DIR) + path;
}
