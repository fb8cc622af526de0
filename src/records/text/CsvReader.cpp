#include "records/text/CsvReader.h"

#include "records/text/ByteOrderMark.h"
#include "records/text/CsvText.h"
#include "runtime/RuntimeError.h"

#include <QIODevice>

#include <algorithm>

namespace {
constexpr qsizetype Chunk = 1 << 16;
constexpr int AtEnd = -1;

bool EndsLine(int c) {
    return c == '\n' || c == '\r';
}
} // namespace

CsvReader::CsvReader(QIODevice& device, char separator, Limits limits)
    : device_(device)
    , separator_(separator)
    , limits_(limits) {
    while (buffer_.size() < ByteOrderMark::Bytes.size() && ReadMore()) {
    }
    if (buffer_.startsWith(ByteOrderMark::Bytes))
        start_ = ByteOrderMark::Bytes.size();
}

bool CsvReader::Next() {
    StartRecord();
    if (!SkipEmptyLines())
        return false;
    line_ = nextLine_;
    do
        ReadField();
    while (PassSeparator());
    PassLineEnd();
    RequireUtf8();
    return true;
}

QByteArrayView CsvReader::operator[](int field) const {
    if (field < 0 || field >= Count())
        return {};
    const auto [begin, end] = fields_[static_cast<size_t>(field)];
    return {buffer_.constData() + start_ + begin, end - begin};
}

QString CsvReader::Source() const {
    std::string record;
    for (int i = 0; i < Count(); ++i)
        record += (i == 0 ? "" : std::string(1, separator_)) +
                  CsvText::Cell((*this)[i].toByteArray().toStdString(), separator_);
    return Utf8::Text(record);
}

void CsvReader::StartRecord() {
    start_ += at_;
    at_ = 0;
    fields_.clear();
}

bool CsvReader::SkipEmptyLines() {
    while (EndsLine(Peek())) {
        PassLineEnd();
        StartRecord();
    }
    return Peek() != AtEnd;
}

void CsvReader::ReadField() {
    if (Count() == limits_.fields)
        Fail(line_, QStringLiteral("it has more than %1 fields.").arg(limits_.fields));
    if (Peek() == '"')
        ReadQuoted();
    else
        ReadBare();
}

void CsvReader::ReadBare() {
    const qsizetype begin = at_;
    do {
        const QByteArrayView rest = QByteArrayView(buffer_).sliced(start_ + at_);
        const auto end = std::find_if(rest.begin(), rest.end(),
                                      [this](char c) { return c == separator_ || EndsLine(c); });
        at_ += end - rest.begin();
        if (end != rest.end())
            break;
    } while (ReadMore());
    fields_.push_back({begin, at_});
}

/// Doubled quotes become single ones where they stand: the field ends before the closing quote.
void CsvReader::ReadQuoted() {
    const int opened = nextLine_;
    ++at_;
    Field field{at_, at_};
    KeepUpToQuote(field, opened);
    while (Peek() == '"') {
        buffer_[start_ + field.end++] = '"';
        ++at_;
        KeepUpToQuote(field, opened);
    }
    fields_.push_back(field);
    if (const int next = Peek(); next != AtEnd && next != separator_ && !EndsLine(next))
        Fail(nextLine_, QStringLiteral("there is text after a closing quote."));
}

/// Passes the quote, too.
void CsvReader::KeepUpToQuote(Field& field, int opened) {
    for (;;) {
        if (Peek() == AtEnd)
            Fail(opened, QStringLiteral("a quote is opened here and never closed."));
        char* const record = buffer_.data() + start_;
        char* const from = record + at_;
        char* const end = std::find(from, buffer_.data() + buffer_.size(), '"');
        nextLine_ += static_cast<int>(std::count(from, end, '\n'));
        std::memmove(record + field.end, from, static_cast<size_t>(end - from));
        field.end += end - from;
        at_ += end - from;
        if (end != buffer_.data() + buffer_.size())
            break;
    }
    ++at_;
}

bool CsvReader::PassSeparator() {
    if (Peek() != static_cast<unsigned char>(separator_))
        return false;
    ++at_;
    return true;
}

void CsvReader::PassLineEnd() {
    const int c = Peek();
    if (c == AtEnd)
        return;
    ++at_;
    ++nextLine_;
    if (c == '\r' && Peek() == '\n')
        ++at_;
}

void CsvReader::RequireUtf8() const {
    for (int i = 0; i < Count(); ++i)
        if (!(*this)[i].isValidUtf8())
            Fail(line_, QStringLiteral("it is not in UTF-8. Save the file as UTF-8 first."));
}

int CsvReader::Peek() {
    if (start_ + at_ >= buffer_.size() && !ReadMore())
        return AtEnd;
    return static_cast<unsigned char>(buffer_.at(start_ + at_));
}

bool CsvReader::ReadMore() {
    if (at_ > limits_.record)
        Fail(line_, QStringLiteral("it is longer than %1 bytes.").arg(limits_.record));
    buffer_.remove(0, start_);
    start_ = 0;
    const qsizetype before = buffer_.size();
    buffer_.resize(before + Chunk);
    const qint64 count = device_.read(buffer_.data() + before, Chunk);
    buffer_.resize(before + std::max<qint64>(count, 0));
    if (count < 0)
        throw RuntimeError(ErrorNumber::FileAccess, device_.errorString());
    return count > 0;
}

void CsvReader::Fail(int line, const QString& complaint) {
    throw RuntimeError(ErrorNumber::TypeMismatch,
                       QStringLiteral("Line %1 cannot be read: ").arg(line) + complaint);
}
