#include "records/tables/NutrientColumns.h"

namespace {
QString WithFirst(QString word, QChar first) {
    word[0] = first;
    return word;
}

QString Key(Nutrient nutrient) {
    const QString name = QLatin1String(Info(nutrient).property);
    return WithFirst(name, name[0].toLower());
}
} // namespace

QString NutrientColumns::Unit(Nutrient nutrient) {
    return QLatin1String(Info(nutrient).unit);
}

TableColumn NutrientColumns::Of(Nutrient nutrient) {
    return {QLatin1String(Info(nutrient).chartCaption), Unit(nutrient), Key(nutrient)};
}

TableColumn NutrientColumns::Of(Nutrient nutrient, const char* word, const QString& unit) {
    const QString text = QLatin1String(word);
    return {QLatin1String(Info(nutrient).chartCaption) + u", " + text, unit,
            Key(nutrient) + WithFirst(text, text[0].toUpper())};
}
