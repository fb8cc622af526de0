#include "foods/delivery/TsvTable.h"

#include "foods/delivery/WriteText.h"
#include "runtime/RuntimeError.h"
#include "runtime/TextLines.h"

namespace {

QString Unquoted(const QString& field) {
    const bool quoted = field.size() > 1 && field.startsWith(u'"') && field.endsWith(u'"');
    return quoted ? field.mid(1, field.size() - 2) : field;
}

QString Quoted(const QString& field) {
    if (field.contains(u'\t') || field.contains(u'\n'))
        throw RuntimeError(ErrorNumber::TypeMismatch,
                           u"a tab or line break within \"" + field + u'"');
    const bool asItStands = !field.startsWith(u'"') && field == field.trimmed();
    return asItStands ? field : QString(u'"' + field + u'"');
}

QStringList Fields(const QString& line) {
    QStringList fields = line.split(u'\t');
    for (QString& field : fields)
        field = Unquoted(field);
    return fields;
}

QString Line(const QStringList& fields) {
    QStringList quoted;
    for (const QString& field : fields)
        quoted << Quoted(field);
    return quoted.join(u'\t') + u'\n';
}

} // namespace

TsvTable::TsvTable(QStringList columns)
    : columns_(std::move(columns)) {}

TsvTable TsvTable::Read(const QString& path) {
    const QStringList lines = ReadLines(path, TextCoding::Utf8);
    if (lines.isEmpty())
        throw RuntimeError(ErrorNumber::TypeMismatch, path + u": no column names");
    TsvTable table(Fields(lines.first()));
    for (qsizetype i = 1; i < lines.size(); ++i) {
        const QStringList row = Fields(lines[i]);
        if (row.size() != table.columns_.size())
            throw RuntimeError(ErrorNumber::TypeMismatch, path + u':' + QString::number(i + 1) +
                                                              u": " + QString::number(row.size()) +
                                                              u" fields");
        table.rows_ << row;
    }
    return table;
}

void TsvTable::Write(const QString& path) const {
    QString text = Line(columns_);
    for (const QStringList& row : rows_)
        text += Line(row);
    WriteText(path, text);
}

void TsvTable::Append(const QStringList& row) {
    Q_ASSERT(row.size() == columns_.size());
    rows_ << row;
}

qsizetype TsvTable::Position(const QString& column) const {
    const qsizetype position = columns_.indexOf(column);
    if (position < 0)
        throw RuntimeError(ErrorNumber::NoSuchMember, u"no column " + column);
    return position;
}
