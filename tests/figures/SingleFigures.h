#pragma once

class CaseLine;

/// The figures that need no records: of a text, a number, two days, a person.
namespace SingleFigures {
void OfText(const CaseLine& line);
void OfNumber(const CaseLine& line);
void OfDays(const CaseLine& line);
/// The targets of a new profile, and those that a new weight brings.
void OfPerson(const CaseLine& line);
} // namespace SingleFigures
