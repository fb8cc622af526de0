#include "records/text/CsvText.h"

namespace {
constexpr auto FormulaBeginnings = "=+-@\t\r";

bool LooksLikeFormula(const std::string& text) {
    return text.find_first_of(FormulaBeginnings) == 0;
}

std::string Quoted(const std::string& text) {
    std::string quoted = "\"";
    for (const char at : text)
        quoted.append(at == '"' ? 2 : 1, at);
    return quoted + '"';
}
} // namespace

std::string CsvText::Cell(std::string text, char separator) {
    const char special[] = {separator, '"', '\r', '\n'};
    return text.find_first_of(special, 0, sizeof special) == text.npos ? std::move(text)
                                                                       : Quoted(text);
}

std::string CsvText::ForeignCell(std::string text) {
    return Cell(LooksLikeFormula(text) ? '\'' + text : std::move(text));
}

std::string CsvText::ForeignLine(const QStringList& cells) {
    std::string line;
    for (const QString& cell : cells)
        line += ForeignCell(cell.toStdString()) + ',';
    line.pop_back();
    return line + "\r\n";
}
