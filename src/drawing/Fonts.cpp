#include "drawing/Fonts.h"

#include "runtime/AppPath.h"

#include <QDir>
#include <QFontDatabase>
#include <QGuiApplication>

namespace {

QString FamilyAtHand() {
    for (const char* family : {"Inter", "Segoe UI", "Noto Sans", "DejaVu Sans"})
        if (QFontDatabase::hasFamily(QLatin1String(family)))
            return QLatin1String(family);
    return QGuiApplication::font().family();
}

} // namespace

QString Fonts::Load(const QString& folder) {
    QString family;
    for (const QFileInfo& file :
         QDir(folder).entryInfoList({QStringLiteral("*.otf")}, QDir::Files)) {
        const int id = QFontDatabase::addApplicationFont(file.filePath());
        if (id != -1 && family.isEmpty())
            family = QFontDatabase::applicationFontFamilies(id).value(0);
    }
    return family;
}

QString Fonts::Family() {
    const QString delivered = Load(FileBeside(QStringLiteral("fonts")));
    return delivered.isEmpty() ? FamilyAtHand() : delivered;
}
