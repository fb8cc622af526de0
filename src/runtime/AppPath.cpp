#include "runtime/AppPath.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace {
QString& ChosenPath() {
    static QString path;
    return path;
}

bool HoldsDelivery(const QString& folder) {
    return QFile::exists(folder + "/tips.txt");
}

/// The delivered files of a program that is installed for all people of a machine; empty if they
/// stand beside the program.
QString SharedPath() {
    const QString own = QCoreApplication::applicationDirPath();
    const QString shared = QDir::cleanPath(own + "/../share/halvane");
    return !HoldsDelivery(own) && HoldsDelivery(shared) ? shared : QString();
}
} // namespace

QString ApplicationPath() {
    if (!ChosenPath().isEmpty())
        return ChosenPath();
    const QString shared = SharedPath();
    return shared.isEmpty() ? QCoreApplication::applicationDirPath() : shared;
}

void SetApplicationPath(const QString& path) {
    ChosenPath() = path;
}

QString RecordsPath() {
    if (!ChosenPath().isEmpty() || SharedPath().isEmpty())
        return ApplicationPath();
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           "/halvane/records";
}

QString FileBeside(const QString& name) {
    const QString path = ApplicationPath();
    return path + QLatin1String(path.endsWith(u'/') ? "" : "/") + name;
}
