#include "Release.h"
#include "support/Places.h"

#include <QFile>

QString Release::Folder() {
    return Places::Source(QStringLiteral("/tests/tools/release"));
}

QHash<QString, QList<QStringList>> Release::Read(const QString& name) {
    QFile file(Folder() + u'/' + name);
    QHash<QString, QList<QStringList>> records;
    if (!file.open(QIODevice::ReadOnly))
        return records;
    const QString text = QString::fromLatin1(file.readAll());
    for (const QString& line : text.split(QStringLiteral("\r\n"), Qt::SkipEmptyParts)) {
        QStringList fields = line.split(u'^');
        fields.replaceInStrings(QStringLiteral("~"), QString());
        records[fields.first()] << fields;
    }
    return records;
}

QString Release::Field(const QStringList& record, int number) {
    return record.value(number - 1);
}
