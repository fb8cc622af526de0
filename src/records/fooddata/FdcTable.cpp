#include "records/fooddata/FdcTable.h"

#include "records/text/CsvHeader.h"
#include "runtime/RuntimeError.h"

#include <QDate>
#include <QDir>
#include <QDirIterator>

#include <charconv>
#include <cmath>

namespace {
template <class Number> std::optional<Number> Read(QByteArrayView text) {
    Number number{};
    const auto [end, error] = std::from_chars(text.begin(), text.end(), number);
    return error == std::errc() && end == text.end() ? std::optional(number) : std::nullopt;
}
} // namespace

QString FdcTable::Find(const QString& folder, const QString& name) {
    const QDir own(folder);
    if (own.exists(name))
        return own.filePath(name);
    const QStringList within = own.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString& one : within)
        if (QDir(own.filePath(one)).exists(name))
            return own.filePath(one + u'/' + name);
    return {};
}

FdcTable::FdcTable(const QString& folder, const QString& name, const QStringList& columns)
    : name_(name)
    , file_(Find(folder, name)) {
    if (file_.fileName().isEmpty())
        throw RuntimeError(ErrorNumber::FileNotFound,
                           u"There is no " + name + u" in " + folder + u'.');
    if (!file_.open(QIODevice::ReadOnly))
        throw RuntimeError(ErrorNumber::FileAccess, file_.fileName() + u": " + file_.errorString());
    reader_.emplace(file_);
    FindColumns(columns);
}

void FdcTable::FindColumns(const QStringList& columns) {
    if (!ReadRecord())
        Fail(QStringLiteral("it is empty."));
    const CsvHeader header(*reader_);
    for (const QString& column : columns) {
        const bool optional = column.startsWith(u'?');
        places_.push_back(header.Find(QStringView(column).mid(optional)));
        if (places_.back() < 0 && !optional)
            Fail(u"it has no column \"" + column + u"\".");
    }
}

bool FdcTable::Next() {
    return ReadRecord();
}

bool FdcTable::ReadRecord() {
    try {
        return reader_->Next();
    } catch (const RuntimeError& failure) {
        throw RuntimeError(failure.Number(), name_ + u": " + failure.Description());
    }
}

QByteArrayView FdcTable::operator[](int column) const {
    return (*reader_)[places_[static_cast<size_t>(column)]];
}

std::optional<double> FdcTable::Number(int column) const {
    const QByteArrayView text = (*this)[column].trimmed();
    if (text.isEmpty())
        return std::nullopt;
    const auto number = Read<double>(text);
    if (!number || !std::isfinite(*number))
        Fail(u"line " + QString::number(Line()) + u" has \"" + QString::fromUtf8(text) +
             u"\" where a number must stand.");
    return number;
}

quint32 FdcTable::Key(int column) const {
    return Read<quint32>((*this)[column].trimmed()).value_or(0);
}

quint32 FdcTable::Day(int column) const {
    const QString text = Text(column);
    if (text.isEmpty())
        return 0;
    QDate day = QDate::fromString(text, Qt::ISODate);
    if (!day.isValid())
        day = QDate::fromString(text, QStringLiteral("M/d/yyyy"));
    return day.isValid() ? static_cast<quint32>(day.year() * 10000 + day.month() * 100 + day.day())
                         : 0;
}

void FdcTable::Fail(const QString& complaint) const {
    throw RuntimeError(ErrorNumber::TypeMismatch, name_ + u": " + complaint);
}
