#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// A table in a text file: UTF-8, a row a line, columns split by tabs, the column names in the
/// first line. An empty field is an unknown value. A field that needs its outer blanks stands in
/// double quotes.
class TsvTable {
public:
    explicit TsvTable(QStringList columns);

    /// Fails where the file is missing or a row has not as many fields as there are columns.
    static TsvTable Read(const QString& path);
    /// Replaces the file as a whole or leaves it alone.
    void Write(const QString& path) const;

    void Append(const QStringList& row);
    const QStringList& Columns() const { return columns_; }
    const QList<QStringList>& Rows() const { return rows_; }
    /// Position of a column; fails where there is none of that name.
    qsizetype Position(const QString& column) const;

private:
    QStringList columns_;
    QList<QStringList> rows_;
};
