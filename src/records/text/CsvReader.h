#pragma once

#include "runtime/Utf8.h"

#include <QByteArray>
#include <QString>

#include <vector>

class QIODevice;

/// Reads comma separated values (RFC 4180, in UTF-8) from an open device, one record at a time, and
/// keeps no more than one record.
///
/// Lines may end with LF, CR LF or CR; a byte order mark and empty lines are passed over. A quote
/// within a field that does not begin with one is a plain character. What is no such table fails
/// with ErrorNumber::TypeMismatch, and the message names the line.
class CsvReader {
public:
    struct Limits {
        qsizetype record = 4 << 20; ///< bytes
        int fields = 10'000;        ///< of a record
    };
    explicit CsvReader(QIODevice& device, char separator = ',')
        : CsvReader(device, separator, Limits()) {}
    CsvReader(QIODevice& device, char separator, Limits limits);

    bool Next(); ///< goes to the next record; false at the end

    // The current record.
    int Line() const { return line_; } ///< where it begins, counted from 1
    int Count() const { return static_cast<int>(fields_.size()); }
    /// Valid until the next record; empty where the record is shorter.
    QByteArrayView operator[](int field) const;
    QString Text(int field) const { return Utf8::Text((*this)[field]); }
    QString Source() const; ///< the fields, written as a record again

private:
    struct Field {
        qsizetype begin, end; ///< counted from the start of the record
    };
    bool SkipEmptyLines();
    void StartRecord();
    void ReadField();
    void ReadBare();
    void ReadQuoted();
    void KeepUpToQuote(Field& field, int opened);
    bool PassSeparator();
    void PassLineEnd();
    void RequireUtf8() const;

    int Peek(); ///< the next byte; -1 at the end
    bool ReadMore();
    [[noreturn]] static void Fail(int line, const QString& complaint);

    QIODevice& device_;
    const char separator_;
    const Limits limits_;
    QByteArray buffer_;
    qsizetype start_ = 0; ///< of the record in the buffer
    qsizetype at_ = 0;    ///< the next byte, counted from the start of the record
    int line_ = 0;
    int nextLine_ = 1;
    std::vector<Field> fields_;
};
