#pragma once

#include <QDate>

#include <memory>
#include <optional>
#include <string>

class Connection;
class Prepared;

/// Walks the rows of a statement in the dialect without keeping them, for tables that are too long
/// to be held in memory. The statement may only read; each reader prepares its own.
///
/// A row of any content can be read: what does not fit counts as nothing. Columns count from 0.
class RowReader {
public:
    RowReader(Connection& connection, const QString& source);
    ~RowReader();
    RowReader(RowReader&&) noexcept;
    RowReader& operator=(RowReader&&) noexcept;

    bool Next(); ///< moves to the first or the next row; false behind the last one

    bool IsNull(int column) const;
    std::optional<double> Number(int column) const; ///< nothing for what is no finite number
    std::string Text(int column) const;             ///< valid UTF-8; empty for null
    QString Name(int column) const;                 ///< the same as a text of Qt
    /// Nothing for what is no whole number of 32 bits, as every key of ours is.
    std::optional<qint32> Key(int column) const;
    QDate Day(int column) const; ///< invalid for all but a date as the store writes it

private:
    std::unique_ptr<Prepared> statement_;
};
