#include "records/recipefiles/IngredientChoice.h"

#include <QRegularExpression>

std::optional<IngredientChoice> IngredientChoice::Of(const QString& text) {
    static const QRegularExpression form(QStringLiteral(
        "^(\\d{1,6})\\.(\\d{1,6})=(?:(text)|(\\d{1,9}):([ABab]):(\\d{1,4}(?:\\.\\d{1,9})?))$"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    IngredientChoice choice{match.captured(1).toInt(), match.captured(2).toInt()};
    if (match.capturedView(3).isEmpty())
        choice.food = FoodMatch{match.captured(4).toInt(),
                                {},
                                match.captured(5).toUpper(),
                                match.captured(6).toDouble()};
    return choice;
}
