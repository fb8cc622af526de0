#include "support/Places.h"

#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QStringList>

#include <gtest/gtest.h>

namespace {
const auto Anonymous = QStringLiteral("(anonymous)");

/// The classes that a source defines, with their namespaces.
QStringList ClassesOf(const QString& path) {
    static const QRegularExpression begin(QStringLiteral("^namespace ([\\w:]+ )?\\{"));
    static const QRegularExpression definition(
        QStringLiteral("^(?:class|struct) (\\w+)(?: final)?(?: :[^;]*| \\{[^;]*)?$"));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    QStringList namespaces;
    QStringList classes;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        if (const auto found = begin.match(line); found.hasMatch())
            namespaces << (found.captured(1).isEmpty() ? Anonymous : found.captured(1).trimmed());
        else if (line.startsWith(QLatin1String("} // namespace")))
            namespaces.removeLast();
        else if (const auto defined = definition.match(line); defined.hasMatch())
            classes << (namespaces + QStringList(defined.captured(1))).join(QLatin1String("::"));
    }
    return classes.filter(QRegularExpression(QStringLiteral("^(?!.*\\(anonymous\\))")));
}

/// The files that define each class of the program.
QMap<QString, QStringList> Definitions() {
    QMap<QString, QStringList> definitions;
    QDirIterator each(Places::Source(QStringLiteral("/src")), {"*.h", "*.cpp"}, QDir::Files,
                      QDirIterator::Subdirectories);
    while (each.hasNext()) {
        const QString path = each.next();
        for (const QString& name : ClassesOf(path))
            definitions[name] << path;
    }
    return definitions;
}
} // namespace

// The linker takes either of them for both, and says nothing.
TEST(ClassNames, NoTwoFilesDefineClassesOfOneName) {
    const auto definitions = Definitions();
    ASSERT_GT(definitions.size(), 300);
    for (const auto& [name, files] : definitions.asKeyValueRange())
        EXPECT_EQ(files.size(), 1)
            << name.toStdString() << ": " << files.join(QLatin1String(", ")).toStdString();
}
