#pragma once

#include <QHash>
#include <QStringList>

class CsvReader;

/// The first record of a table: where the columns of each name stand. Names are compared without
/// blanks around them and without regard to case; both characters for "micro" are equal.
class CsvHeader {
public:
    CsvHeader() = default;
    explicit CsvHeader(const CsvReader& firstRecord);

    int Count() const { return static_cast<int>(names_.size()); }
    const QString& Name(int column) const { return names_[column]; }
    bool Has(QStringView name) const { return Find(name) >= 0; }
    int Find(QStringView name) const; ///< -1 if there is none; the first of two equal names

    static QString Key(QStringView name); ///< equal for names that are compared as equal

private:
    QStringList names_;
    QHash<QString, int> places_;
};
