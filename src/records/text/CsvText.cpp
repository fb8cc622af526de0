#include "records/text/CsvText.h"

#include <algorithm>

namespace {
bool NeedsQuotes(QChar c) {
    return c == u'"' || c == u',' || c == u';' || c == u'\t' || c == u'\n' || c == u'\r';
}

bool LooksLikeAFormula(QStringView text) {
    return !text.isEmpty() && QStringView(u"=+-@\t\r").contains(text.front());
}
} // namespace

QString CsvText::Cell(QStringView text) {
    if (std::none_of(text.begin(), text.end(), NeedsQuotes))
        return text.toString();
    return u'"' + text.toString().replace(u'"', QStringLiteral("\"\"")) + u'"';
}

QString CsvText::ForeignCell(QStringView text) {
    return Cell(LooksLikeAFormula(text) ? QString(u'\'' + text.toString()) : text.toString());
}
