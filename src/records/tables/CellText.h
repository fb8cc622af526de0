#pragma once

#include <QDate>

#include <string>

/// Values as the text formats write them, whatever the locale.
namespace CellText {
void AddNumber(std::string& text, double number); ///< the shortest that reads back the same
std::string Iso(QDate day);                       ///< "2026-03-02"
} // namespace CellText
