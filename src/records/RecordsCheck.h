#pragma once

#include "records/Finding.h"
#include "records/RecordsCounts.h"
#include "records/RecordsFolder.h"

#include <QDate>
#include <QList>

/// Looks through both files of a person's records: pages, indexes, tables, and each row. The
/// records may be in use meanwhile.
class RecordsCheck {
public:
    RecordsCheck(const RecordsFolder& records, QDate today);

    const QList<Finding>& Findings() const { return findings_; }
    const RecordsCounts& Counts() const { return counts_; } ///< zero where a file cannot be read

    /// Puts right what has one right answer, as one change. Gives those findings.
    QList<Finding> Repair() const;

private:
    void CheckOpen(QDate today);
    void AddDamage(const QString& problem);

    RecordsFolder records_;
    QList<Finding> findings_;
    RecordsCounts counts_;
};
