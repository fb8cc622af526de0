#include "records/peers/Units.h"

#include "records/text/CsvHeader.h"

#include <array>
#include <cmath>

namespace {
constexpr double KilojoulesPerKilocalorie = 4.184;
constexpr double SaltPerSodium = 2.5;
constexpr double KilogramsPerPound = 0.45359237;
constexpr double RetinolPerIu = 0.3;   ///< micrograms RAE
constexpr double CarotenePerIu = 0.05; ///< micrograms RAE, from food

struct UnitName {
    const char* name;
    Unit unit;
};
constexpr UnitName Names[] = {
    {"g", Unit::Gram},
    {"mg", Unit::Milligram},
    {"mcg", Unit::Microgram},
    {"\u00b5g", Unit::Microgram},
    {"ug", Unit::Microgram},
    {"kcal", Unit::Kilocalorie},
    {"kJ", Unit::Kilojoule},
    {"iu", Unit::InternationalUnit},
    {"mcg RAE", Unit::RetinolEquivalent},
    {"\u00b5g RAE", Unit::RetinolEquivalent},
    {"g salt", Unit::GramOfSalt},
};

/// The power of ten of a gram that a unit of mass is.
std::optional<int> Power(Unit unit) {
    switch (unit) {
    case Unit::Gram:
        return 0;
    case Unit::Milligram:
        return -3;
    case Unit::Microgram:
        return -6;
    default:
        return std::nullopt;
    }
}

/// Powers of ten are exact; their inverses are not.
double Shifted(double value, int places) {
    return places < 0 ? value / std::pow(10, -places) : value * std::pow(10, places);
}

/// Nothing is nothing in every unit.
std::optional<double> Iu(double rae, VitaminASource source) {
    if (rae == 0)
        return 0;
    switch (source) {
    case VitaminASource::Retinol:
        return rae / RetinolPerIu;
    case VitaminASource::BetaCarotene:
        return rae / CarotenePerIu;
    default:
        return std::nullopt;
    }
}

/// Each amount of each row asks for it.
Unit OwnUnit(Nutrient nutrient) {
    static const auto units = [] {
        std::array<Unit, NutrientCount> all{};
        for (const NutrientInfo& info : Nutrients())
            all[static_cast<size_t>(info.id)] = *Units::Named(QString::fromLatin1(info.unit));
        return all;
    }();
    return units[static_cast<size_t>(nutrient)];
}

std::optional<double> Mass(double value, Unit from, Unit to) {
    const auto power = Power(from);
    const auto wanted = Power(to);
    if (!power || !wanted)
        return std::nullopt;
    return Shifted(value, *power - *wanted);
}
} // namespace

std::optional<double> Units::Amount(double value, Unit unit, Nutrient nutrient,
                                    VitaminASource source) {
    const Unit own = OwnUnit(nutrient);
    if (unit == own)
        return value;
    if (unit == Unit::Kilojoule && own == Unit::Kilocalorie)
        return value / KilojoulesPerKilocalorie;
    if (unit == Unit::GramOfSalt && nutrient == Nutrient::Sodium)
        return Shifted(value / SaltPerSodium, 3);
    if (unit == Unit::RetinolEquivalent && nutrient == Nutrient::VitaminA)
        return Iu(value, source);
    return Mass(value, unit, own);
}

std::optional<Unit> Units::Named(QStringView name) {
    for (const auto& [known, unit] : Names)
        if (CsvHeader::Key(QString::fromUtf8(known)) == CsvHeader::Key(name))
            return unit;
    return std::nullopt;
}

double Units::Pounds(double weight, WeightUnit unit) {
    return unit == WeightUnit::Kilogram ? weight / KilogramsPerPound : weight;
}

std::optional<WeightUnit> Units::WeightNamed(QStringView name) {
    const QString key = CsvHeader::Key(name);
    if (key == QLatin1String("kg"))
        return WeightUnit::Kilogram;
    if (key == QLatin1String("lb") || key == QLatin1String("lbs"))
        return WeightUnit::Pound;
    return std::nullopt;
}
