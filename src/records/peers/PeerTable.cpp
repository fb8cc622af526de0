#include "records/peers/PeerTable.h"

#include "records/peers/PeerFile.h"
#include "runtime/RuntimeError.h"

#include <algorithm>

PeerTable::PeerTable(const PeerFile& file, NumberFormat numbers, char separator)
    : name_(file.name)
    , numbers_(numbers)
    , device_(file.Open())
    , reader_(*device_, separator) {
    if (Next())
        header_ = CsvHeader(reader_);
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
