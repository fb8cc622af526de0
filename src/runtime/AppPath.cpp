#include "runtime/AppPath.h"

#include <QCoreApplication>
#include <QDir>

namespace {
QString& ChosenPath() {
    static QString path;
    return path;
}
} // namespace

QString ApplicationPath() {
    return ChosenPath().isEmpty() ? QCoreApplication::applicationDirPath() : ChosenPath();
}

void SetApplicationPath(const QString& path) {
    ChosenPath() = path;
}

QString FileBeside(const QString& name) {
    const QString path = ApplicationPath();
    const bool separated = path.endsWith(u'/') || path.endsWith(QDir::separator());
    return path + QLatin1String(separated ? "" : "/") + name;
}
