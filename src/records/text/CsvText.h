#pragma once

#include <QStringList>

#include <string>

/// Writes comma separated values (RFC 4180) in UTF-8.
namespace CsvText {
/// In quotes where they are needed.
std::string Cell(std::string text, char separator = ',');
/// The same for a text of unknown origin. If a spreadsheet would take it for a formula, it gets an
/// apostrophe in front, which makes it a text there.
std::string ForeignCell(std::string text);
/// A record of texts of unknown origin, with its line end.
std::string ForeignLine(const QStringList& cells);
} // namespace CsvText
