#pragma once

#include <QString>
#include <QStringView>

/// Writes values for a file of comma separated values (RFC 4180).
namespace CsvText {
QString Cell(QStringView text); ///< in quotes where they are needed
/// The same for a text of unknown origin: a spreadsheet does not take it for a formula.
QString ForeignCell(QStringView text);
} // namespace CsvText
