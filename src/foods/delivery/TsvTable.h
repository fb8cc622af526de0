#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// A table in a text file: UTF-8, a row on each line, tabs between columns, column names in the
/// first line. An empty field is an unknown value. A field with leading or trailing blanks is in
/// double quotes.
class TsvTable {
public:
    explicit TsvTable(QStringList columns);

    /// Fails if the file is missing or a row has the wrong number of fields.
    static TsvTable Read(const QString& path);
    /// Replaces the file completely or not at all.
    void Write(const QString& path) const;

    void Append(const QStringList& row);
    const QStringList& Columns() const { return columns_; }
    const QList<QStringList>& Rows() const { return rows_; }
    /// Position of a column; fails if there is none of that name.
    qsizetype Position(const QString& column) const;

private:
    QStringList columns_;
    QList<QStringList> rows_;
};
