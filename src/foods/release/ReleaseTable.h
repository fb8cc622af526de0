#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// A file of a release of the USDA National Nutrient Database for Standard Reference: each line is
/// a record, fields are separated by `^`, texts enclosed in `~`, in Latin-1. An empty field is an
/// unknown value.
class ReleaseTable {
public:
    struct Record {
        int line;
        QStringList fields;
        /// Fields count from 1, as in the release's documentation.
        const QString& Field(int number) const { return fields[number - 1]; }
    };

    /// Fails if the file is missing, or if a record has a number of fields that is not in
    /// `fieldCounts` or differs from the record before.
    static ReleaseTable Read(const QString& path, const QList<int>& fieldCounts);

    const QString& Path() const { return path_; }
    const QList<Record>& Records() const { return records_; }
    int FieldCount() const { return fieldCount_; }

private:
    void Append(int line, const QString& text, const QList<int>& fieldCounts);

    QString path_;
    QList<Record> records_;
    int fieldCount_ = 0;
};
