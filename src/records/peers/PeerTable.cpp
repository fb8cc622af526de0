#include "records/peers/PeerTable.h"

#include "records/peers/PeerFile.h"
#include "runtime/RuntimeError.h"

#include <algorithm>

namespace {
/// Programs write 0 into columns that they do not use.
bool SaysSomething(QByteArrayView cell) {
    return std::ranges::any_of(cell,
                               [](char at) { return QByteArrayView(" 0.,").indexOf(at) < 0; });
}
} // namespace

PeerTable::PeerTable(const PeerFile& file, NumberFormat numbers, char separator)
    : name_(file.name)
    , numbers_(numbers)
    , device_(file.Open())
    , reader_(*device_, separator) {
    if (Next())
        header_ = CsvHeader(reader_);
}

int PeerTable::Find(const char* column) const {
    const int place = header_.Find(QString::fromUtf8(column));
    known_ << place;
    return place;
}

void PeerTable::NoteCells() {
    for (int column = 0; column < Count(); ++column)
        if (SaysSomething(reader_[column]))
            filled_ << column;
}

void PeerTable::TellUnread(Imported& into) const {
    QStringList names;
    for (int column = 0; column < header_.Count(); ++column)
        if (filled_.contains(column) && !known_.contains(column))
            names << header_.Name(column);
    if (!names.isEmpty())
        into.Remark("Columns of " + name_ +
                    " that are not kept here: " + names.join(QLatin1String(", ")) + u'.');
}

bool PeerTable::Has(std::span<const char* const> columns) const {
    return std::ranges::all_of(columns,
                               [this](const char* column) { return !column || Has(column); });
}

bool PeerTable::Next() {
    try {
        return reader_.Next();
    } catch (const RuntimeError& broken) {
        throw RuntimeError(broken.Number(), name_ + ": " + broken.Description());
    }
}

std::optional<double> PeerTable::Number(int column) const {
    try {
        return PeerNumber::Read(Text(column), numbers_);
    } catch (const RuntimeError& wrong) {
        throw RuntimeError(wrong.Number(), header_.Name(column) + ": " + wrong.Description());
    }
}

void PeerTable::RequireWholeRow() const {
    if (Count() != header_.Count())
        throw RuntimeError(ErrorNumber::TypeMismatch,
                           QStringLiteral("The row has %1 cells, the header has %2.")
                               .arg(Count())
                               .arg(header_.Count()));
}

Origin PeerTable::Here() const {
    return {name_, QStringLiteral("line %1").arg(reader_.Line()), reader_.Source()};
}
