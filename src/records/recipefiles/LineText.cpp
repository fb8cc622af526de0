#include "records/recipefiles/LineText.h"

#include "runtime/Convert.h"

#include <QRegularExpression>
#include <QStringList>

QString LineText::Of(double quantity, const QString& unit, const QString& food,
                     const QString& note) {
    QStringList parts{quantity == 0 ? QString() : DecimalText(quantity), unit, food};
    parts.removeAll(QString());
    const QString line = parts.join(u' ').simplified();
    if (note.isEmpty())
        return line;
    return line.isEmpty() ? note : line + u", " + note;
}

std::optional<double> LineText::FirstNumber(const QString& text) {
    static const QRegularExpression number(QStringLiteral("\\d{1,6}(?:[.,]\\d{1,3})?"));
    const QRegularExpressionMatch match = number.match(text);
    return match.hasMatch() ? std::optional(match.captured().replace(u',', u'.').toDouble())
                            : std::nullopt;
}
