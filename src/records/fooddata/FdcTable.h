#pragma once

#include "records/text/CsvReader.h"

#include <QFile>
#include <QStringList>

#include <optional>
#include <vector>

/// A file of a FoodData Central download: comma separated values, read by the names of the columns,
/// because their order differs between releases. A failure names the file.
class FdcTable {
public:
    /// The path of a file of the download, which stands in the folder or in a folder within it.
    /// Empty if there is none.
    static QString Find(const QString& folder, const QString& name);

    /// `columns` are then known by their places in this list. One that begins with a question mark
    /// may be missing; its fields are empty.
    FdcTable(const QString& folder, const QString& name, const QStringList& columns);

    bool Next();
    QByteArrayView operator[](int column) const;
    QString Text(int column) const { return QString::fromUtf8((*this)[column]).trimmed(); }
    std::optional<double> Number(int column) const; ///< finite; none if empty. Fails for text.
    quint32 Key(int column) const;                  ///< 0 for what is no key
    quint32 Day(int column) const;                  ///< as the number yyyymmdd; 0 if unknown
    int Line() const { return reader_->Line(); }
    const QString& Name() const { return name_; }
    qint64 Passed() const { return file_.pos(); } ///< bytes read so far
    qint64 Size() const { return file_.size(); }

private:
    void FindColumns(const QStringList& columns);
    bool ReadRecord();
    [[noreturn]] void Fail(const QString& complaint) const;

    QString name_;
    QFile file_;
    std::optional<CsvReader> reader_;
    std::vector<int> places_;
};
