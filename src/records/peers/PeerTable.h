#pragma once

#include "records/peers/Imported.h"
#include "records/peers/PeerNumber.h"
#include "records/text/CsvHeader.h"
#include "records/text/CsvReader.h"
#include "runtime/RuntimeError.h"

#include <QIODevice>
#include <QSet>

#include <memory>
#include <span>

struct PeerFile;

/// A file of comma separated values whose columns are found by name, row by row.
class PeerTable {
public:
    explicit PeerTable(const PeerFile& file, NumberFormat numbers = {}, char separator = ',');

    const QString& File() const { return name_; }
    int Find(const char* column) const; ///< its place; -1 if the table has none of that name
    bool Has(const char* column) const { return Find(column) >= 0; }
    bool Has(std::span<const char* const> columns) const; ///< all of them; a null is none
    bool Next();

    // The current row. What is empty, and a column that is missing, gives an empty text.
    int Count() const { return reader_.Count(); }
    QString Text(int column) const { return reader_.Text(column).trimmed(); }
    QString Text(const char* column) const { return Text(Find(column)); }
    std::optional<double> Number(int column) const; ///< fails for what is no number
    std::optional<double> Number(const char* column) const { return Number(Find(column)); }
    void RequireWholeRow() const; ///< fails if it has fewer or more cells than the header
    Origin Here() const;

    /// Takes each row by `take`. A row that it cannot take is refused with the reason. Tells which
    /// columns nobody has looked for though they hold something.
    template <class Take> void ForEachRow(Imported& into, Take take) {
        while (Next()) {
            NoteCells();
            RefuseWhatFails(into, take);
        }
        TellUnread(into);
    }
    template <class Take> void RefuseWhatFails(Imported& into, Take take) const {
        try {
            take();
        } catch (const RuntimeError& wrong) {
            into.Refuse(Here(), wrong.Description());
        }
    }

private:
    void NoteCells();
    void TellUnread(Imported& into) const;

    QString name_;
    NumberFormat numbers_;
    std::unique_ptr<QIODevice> device_;
    CsvReader reader_;
    CsvHeader header_;
    mutable QSet<int> known_; ///< columns that were looked for
    QSet<int> filled_;        ///< columns that hold something
};
