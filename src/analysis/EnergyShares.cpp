#include "analysis/EnergyShares.h"

#include "model/Nuts.h"
#include "runtime/Format.h"

namespace {

constexpr double ShareOfNone = 0.0001;
constexpr double SumOfNone = 0.00031;
constexpr double Limit = 99.9;
constexpr double Largest = 99.8;
// A full circle would be drawn as none.
constexpr double CircleStart = 0.001;
constexpr double CircleEnd = 99.999;

constexpr std::array<const char*, EnergyShares::Count> Names{"Fat ", "Protein ", "Carbs. "};

} // namespace

EnergyShares::EnergyShares(double fat, double protein, double carbs, TooLarge limit) {
    std::array<double, Count> shares{fat, protein, carbs};
    for (double& share : shares)
        share = share == 0 ? ShareOfNone : share;
    const double total = shares[0] + shares[1] + shares[2];
    if (!(total > SumOfNone))
        return;
    content_ = Content::Sectors;
    for (size_t i = 0; i < Count; ++i) {
        const double percent = shares[i] / total * 100;
        const bool fromLimit = i == 0 || limit == TooLarge::EachFrom999;
        const bool tooLarge = fromLimit ? percent >= Limit : percent > Limit;
        percents_[i] = tooLarge ? Largest : percent;
    }
}

EnergyShares EnergyShares::NoData() {
    EnergyShares shares;
    shares.content_ = Content::NoData;
    return shares;
}

EnergyShares EnergyShares::Of(const std::optional<Nuts>& amounts, TooLarge limit) {
    if (!amounts || amounts->Calories() < 1)
        return NoData();
    const double calories = amounts->Calories();
    return {amounts->TotalFat() * KcalPerGram::Fat / calories,
            amounts->Protein() * KcalPerGram::Protein / calories,
            amounts->Carbs() * KcalPerGram::Carbs / calories, limit};
}

std::array<EnergyShares::Sector, EnergyShares::Count> EnergyShares::Sectors() const {
    const double first = percents_[0];
    const double second = percents_[0] + percents_[1];
    return {Sector{CircleStart, first}, Sector{first, second}, Sector{second, CircleEnd}};
}

std::array<QString, EnergyShares::Count> EnergyShares::Captions() const {
    std::array<QString, Count> captions;
    for (size_t i = 0; i < Count; ++i)
        captions[i] =
            QLatin1String(Names[i]) + Format(percents_[i], NumberMask::WholeNumber) + u'%';
    return captions;
}

QString EnergyShares::Summary() const {
    const auto [fat, protein, carbs] = Captions();
    switch (content_) {
    case Content::Sectors:
        return fat + u", " + protein + u", " + carbs;
    case Content::NoData:
        return QStringLiteral("No data to chart");
    default:
        return {};
    }
}
