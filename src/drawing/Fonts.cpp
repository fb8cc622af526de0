#include "drawing/Fonts.h"

#include "runtime/AppPath.h"

#include <QDir>
#include <QFontDatabase>
#include <QGuiApplication>

#include <future>

#if __has_include(<fontconfig/fontconfig.h>)
#define READS_FONTCONFIG
#include <fontconfig/fontconfig.h>
#endif

namespace {

std::future<void> readAhead;

QString FamilyAtHand() {
    for (const char* family : {"Inter", "Segoe UI", "Noto Sans", "DejaVu Sans"})
        if (QFontDatabase::hasFamily(QLatin1String(family)))
            return QLatin1String(family);
    return QGuiApplication::font().family();
}

} // namespace

/// Elsewhere the platform has read its fonts before any program starts.
void Fonts::ReadAhead() {
#ifdef READS_FONTCONFIG
    readAhead = std::async(std::launch::async, [] { FcInit(); });
#endif
}

QString Fonts::Load(const QString& folder) {
    if (readAhead.valid())
        readAhead.get();
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
