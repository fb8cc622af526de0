#include "records/peers/PeerAmounts.h"

#include "records/peers/PeerChoices.h"
#include "records/peers/PeerTable.h"

namespace {
/// Larger amounts make the sum of a day overflow.
constexpr double Most = 1'000'000;

void RequireSound(const QString& name, double amount) {
    if (amount < 0)
        throw RuntimeError(ErrorNumber::TypeMismatch, name + " is negative.");
    if (!(amount <= Most))
        throw RuntimeError(ErrorNumber::TypeMismatch, name + " is too large.");
}
} // namespace

void AmountRules::Take(NutrientAmounts& amounts, const AmountColumn& column,
                       std::optional<double> value) const {
    if (!value || amounts[column.nutrient])
        return;
    const auto amount = Units::Amount(*value, column.unit, column.nutrient, choices_.vitaminA);
    if (!amount)
        return into_.Remark(QStringLiteral(
            "Vitamin A in micrograms was left out: it has no exact value in IU. --vitamin-a "
            "retinol or carotene takes an estimate."));
    RequireSound(QString::fromUtf8(column.name), *amount);
    amounts.Set(column.nutrient, *amount + 0.0); // no negative zero
}

AmountColumns::AmountColumns(const PeerTable& table, std::span<const AmountColumn> columns,
                             const AmountRules& rules)
    : rules_(rules) {
    for (const AmountColumn& column : columns)
        if (const int place = table.Find(column.name); place >= 0)
            columns_.push_back({place, column});
}

NutrientAmounts AmountColumns::Of(const PeerTable& row) const {
    NutrientAmounts amounts;
    for (const auto& [place, column] : columns_)
        rules_.Take(amounts, column, row.Number(place));
    return amounts;
}

NutrientAmounts PeerAmounts::Scaled(const NutrientAmounts& amounts, double of, double eaten) {
    NutrientAmounts scaled;
    for (const Nutrient id : CanonicalOrder())
        if (amounts[id])
            scaled.Set(id, *amounts[id] / of * eaten);
    RequireSound(scaled);
    return scaled;
}

void PeerAmounts::RequireSound(const NutrientAmounts& amounts) {
    for (const Nutrient id : CanonicalOrder())
        ::RequireSound(QString::fromLatin1(Info(id).chartCaption), amounts[id].value_or(0));
}
