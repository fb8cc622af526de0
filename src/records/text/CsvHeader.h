#pragma once

#include <QHash>
#include <QString>

class CsvReader;

/// The first record of a table: where the columns of each name stand. Names are compared without
/// blanks around them and without regard to case; both characters for "micro" are equal.
class CsvHeader {
public:
    explicit CsvHeader(const CsvReader& firstRecord);

    int Count() const { return count_; }
    bool Has(QStringView name) const { return Find(name) >= 0; }
    int Find(QStringView name) const; ///< -1 if there is none; the first of two equal names

    static QString Key(QStringView name); ///< equal for names that are compared as equal

private:
    QHash<QString, int> places_;
    int count_;
};
