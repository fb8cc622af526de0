#include "records/recipefiles/MarkdownCell.h"

#include "runtime/Convert.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace {
/// What would end a cell or a line, or be taken for a blank around a cell.
struct Escape {
    char16_t letter;
    char16_t sign;
};
constexpr Escape Escapes[] = {
    {u'\\', u'\\'}, {u'|', u'|'}, {u'\n', u'n'}, {u'\r', u'r'}, {u'\t', u't'}, {u'\0', u'0'},
};
constexpr QLatin1String EmptyText("\\e");

QString Escaped(const QString& text) {
    QString escaped;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const bool outerBlank = c == u' ' && (i == 0 || i == text.size() - 1);
        if (outerBlank)
            escaped += QLatin1String("\\s");
        const auto* escape = std::find_if(std::begin(Escapes), std::end(Escapes),
                                          [&](const Escape& one) { return c == one.letter; });
        if (escape != std::end(Escapes))
            escaped += QString(u'\\') + QChar(escape->sign);
        else if (!outerBlank)
            escaped += c;
    }
    return escaped;
}

QChar Letter(QChar sign) {
    if (sign == u's')
        return u' ';
    for (const Escape& escape : Escapes)
        if (sign == escape.sign)
            return escape.letter;
    return sign;
}

QString Unescaped(const QString& cell) {
    QString text;
    for (qsizetype i = 0; i < cell.size(); ++i)
        if (cell[i] == u'\\' && i + 1 < cell.size())
            text += Letter(cell[++i]);
        else
            text += cell[i];
    return text;
}
} // namespace

QString MarkdownCell::Written(const QVariant& value) {
    if (value.isNull())
        return {};
    if (value.typeId() == QMetaType::QString)
        return value.toString().isEmpty() ? QString(EmptyText) : Escaped(value.toString());
    const double number = value.toDouble();
    return std::isfinite(number) ? DecimalText(number) : QString();
}

QVariant MarkdownCell::Text(const QString& cell) {
    const QString trimmed = cell.trimmed();
    if (trimmed.isEmpty())
        return {};
    return trimmed == EmptyText ? QString(QLatin1String("")) : Unescaped(trimmed);
}

QVariant MarkdownCell::Number(const QString& cell) {
    bool isNumber = false;
    const double number = cell.trimmed().toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? QVariant(number) : QVariant();
}

QString MarkdownCell::Row(const QStringList& cells) {
    return u"| " + cells.join(QLatin1String(" | ")) + u" |";
}

QStringList MarkdownCell::CellsOf(const QString& row) {
    QStringList cells{QString()};
    for (qsizetype i = 0; i < row.size(); ++i) {
        if (row[i] == u'\\' && i + 1 < row.size())
            cells.last() += row.mid(i++, 2);
        else if (row[i] == u'|')
            cells << QString();
        else
            cells.last() += row[i];
    }
    return cells.mid(1, cells.size() - 2);
}
