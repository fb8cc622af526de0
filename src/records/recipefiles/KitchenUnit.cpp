#include "records/recipefiles/KitchenUnit.h"

#include <algorithm>
#include <string_view>

namespace {
using enum KitchenUnit::Sort;

constexpr double Teaspoon = 4.92892159375;
constexpr KitchenUnit Units[] = {
    {Mass, 0.001, " mg milligram milligrams "},
    {Mass, 1, " g gr gram grams gramme grammes "},
    {Mass, 10, " dag dkg "},
    {Mass, 1000, " kg kilo kilos kilogram kilograms "},
    {Mass, 28.349523125, " oz ounce ounces "},
    {Mass, 453.59237, " lb lbs pound pounds "},
    {Volume, Teaspoon / 16, " pinch pinches "},
    {Volume, Teaspoon / 8, " dash dashes "},
    {Volume, Teaspoon, " tsp tsps teaspoon teaspoons t ts "},
    {Volume, Teaspoon * 3, " tbsp tbsps tbs tablespoon tablespoons tb "},
    {Volume, Teaspoon * 6, " floz "},
    {Volume, Teaspoon * 48, " c cup cups "},
    {Volume, Teaspoon * 96, " pt pint pints "},
    {Volume, Teaspoon * 192, " qt quart quarts "},
    {Volume, Teaspoon * 768, " ga gl gal gallon gallons "},
    {Volume, 1, " ml milliliter milliliters millilitre millilitres cc "},
    {Volume, 10, " cl "},
    {Volume, 100, " dl deciliter deciliters decilitre decilitres "},
    {Volume, 1000, " l liter liters litre litres "},
    {Piece, 1, " clove cloves "},
    {Piece, 1, " slice slices sl "},
    {Piece, 1, " large lg "},
    {Piece, 1, " medium med md "},
    {Piece, 1, " small sm "},
    {Piece, 1, " piece pieces pc pcs "},
    {Piece, 1, " can cans cn tin tins "},
    {Piece, 1, " package packages pkg pk packet packets "},
    {Piece, 1, " stick sticks "},
    {Piece, 1, " stalk stalks "},
    {Piece, 1, " head heads "},
    {Piece, 1, " bunch bunches bn "},
    {Piece, 1, " leaf leaves "},
    {Piece, 1, " ear ears "},
    {Piece, 1, " sprig sprigs "},
    {Piece, 1, " each ea whole "},
};

/// The only name whose case matters: a capital T is a tablespoon. "fl oz" is one name in two words.
QString Plain(const QString& word) {
    return word == QLatin1String("T") ? QStringLiteral("tb") : word.toLower();
}

qsizetype WordLength(const QString& text) {
    const auto end = std::ranges::find_if(text, [](QChar c) { return !c.isLetter(); });
    return end - text.begin();
}

const KitchenUnit* Named(const QString& word) {
    const std::string name = ' ' + word.toStdString() + ' ';
    const auto* unit = std::ranges::find_if(Units, [&](const KitchenUnit& one) {
        return std::string_view(one.names).find(name) != std::string_view::npos;
    });
    return unit == std::end(Units) ? nullptr : unit;
}

/// The length of "fl oz", "fl. oz" or "fluid ounces"; 0 if the text begins with something else.
qsizetype FluidOunceLength(const QString& text) {
    for (const char* name : {"fluid ounces", "fluid ounce", "fl. oz", "fl oz"})
        if (text.startsWith(QLatin1String(name), Qt::CaseInsensitive))
            return qstrlen(name);
    return 0;
}
} // namespace

const KitchenUnit* KitchenUnit::Leading(const QString& text, qsizetype& length) {
    length = FluidOunceLength(text);
    if (length > 0)
        return Named(QStringLiteral("floz"));
    length = WordLength(text);
    const KitchenUnit* unit = length == 0 ? nullptr : Named(Plain(text.left(length)));
    if (unit && length < text.size() && text[length] == u'.')
        ++length;
    return unit;
}
