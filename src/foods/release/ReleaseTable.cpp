#include "foods/release/ReleaseTable.h"

#include "runtime/RuntimeError.h"
#include "runtime/TextLines.h"

#include <QFileInfo>

namespace {
constexpr qint64 LargestFile = 64 << 20;

QString Unwrapped(const QString& field) {
    const bool wrapped = field.size() > 1 && field.startsWith(u'~') && field.endsWith(u'~');
    return wrapped ? field.mid(1, field.size() - 2) : field;
}

QStringList Fields(const QString& line) {
    QStringList fields = line.split(u'^');
    for (QString& field : fields)
        field = Unwrapped(field);
    return fields;
}

} // namespace

ReleaseTable ReleaseTable::Read(const QString& path, const QList<int>& fieldCounts) {
    ReleaseTable table;
    table.path_ = path;
    if (QFileInfo(path).size() > LargestFile)
        throw RuntimeError(ErrorNumber::TypeMismatch,
                           path + QStringLiteral(" is larger than %1 bytes").arg(LargestFile));
    const QStringList lines = ReadLines(path, TextCoding::Latin1);
    for (int i = 0; i < int(lines.size()); ++i)
        table.Append(i + 1, lines[i], fieldCounts);
    return table;
}

void ReleaseTable::Append(int line, const QString& text, const QList<int>& fieldCounts) {
    const int count = int(text.count(u'^')) + 1;
    const bool fits = records_.isEmpty() ? fieldCounts.contains(count) : count == fieldCount_;
    if (!fits)
        throw RuntimeError(ErrorNumber::TypeMismatch, path_ + u':' + QString::number(line) + u": " +
                                                          QString::number(count) + u" fields");
    fieldCount_ = count;
    records_ << Record{line, Fields(text)};
}
