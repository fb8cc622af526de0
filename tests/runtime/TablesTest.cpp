#include "runtime/ScreenTable.h"
#include "runtime/SettingTable.h"
#include "support/Places.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>

#include <gtest/gtest.h>

namespace {

QString Content(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

/// "frmPrefs FAST" for each class that calls `routine` with a setting of the table.
QSet<QString> Users(const QString& routine) {
    const QString table = Content(Places::Source(QStringLiteral("/src/runtime/SettingTable.h")));
    QSet<QString> users;
    QDirIterator files(Places::Source(QStringLiteral("/src")), {QStringLiteral("*.cpp")},
                       QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString code = Content(files.next());
        static const QRegularExpression entry(QStringLiteral("Setting (\\w+)\\{\"(\\w+)\""));
        for (const auto& row : entry.globalMatch(table)) {
            const QRegularExpression use(routine + "[^;]*\\bSettings::" + row.captured(1) + "\\b");
            if (use.match(code).hasMatch())
                users << QString(files.fileInfo().baseName() + u' ' + row.captured(2));
        }
    }
    return users;
}

QSet<QString> Told(const char* Setting::*users) {
    QSet<QString> told;
    for (const Setting* setting : Settings::All)
        for (const QString& user :
             QString::fromLatin1(setting->*users).split(u' ', Qt::SkipEmptyParts))
            told << QString(user + u' ' + QLatin1String(setting->name));
    return told;
}

} // namespace

TEST(SettingTable, NoNameStandsTwice) {
    QSet<QString> names;
    for (const Setting* setting : Settings::All)
        names << QString(*setting);
    EXPECT_EQ(names.size(), std::size(Settings::All));
}

TEST(SettingTable, ItsOwnersAreTheClassesThatWrite) {
    EXPECT_EQ(Users(QStringLiteral("\\b(SetRegValue|Store)\\(")), Told(&Setting::owner));
}

TEST(SettingTable, ItsReadersAreTheClassesThatRead) {
    EXPECT_EQ(Users(QStringLiteral("\\b(GetRegValue|Holds|IsOn|Position|ticked)\\(")),
              Told(&Setting::readers));
}

TEST(ScreenTable, NoNameAndNoButtonStandsTwice) {
    QStringList names;
    for (const ScreenRow* row : Screens::All)
        for (const char* name : {row->name, row->button})
            if (name)
                names << QString::fromLatin1(name);
    EXPECT_EQ(names.removeDuplicates(), 0);
}
