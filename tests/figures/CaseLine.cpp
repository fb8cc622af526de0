#include "figures/CaseLine.h"

CaseLine::CaseLine(const QByteArray& line)
    : fields_(line.split('\t')) {}

std::optional<QString> CaseLine::Known(int field) const {
    return fields_.at(field).isEmpty() ? std::nullopt : std::optional(Text(field));
}

std::optional<double> CaseLine::NumberIfKnown(int field) const {
    return fields_.at(field).isEmpty() ? std::nullopt : std::optional(Number(field));
}
