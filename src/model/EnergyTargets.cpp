#include "model/EnergyTargets.h"

#include "model/User.h"
#include "runtime/Round.h"
#include "runtime/Seams.h"

#include <array>

namespace {
constexpr double PoundsPerKilogram = 2.2;
constexpr double CentimetresPerInch = 2.54;
constexpr int WeightGoalStep = 500;
constexpr int LeastToReduce = 1501;

/// The energy that a body needs at rest, in kilocalories a day.
struct BasalFactors {
    double perKilogram, base, perCentimetre, perYear;
};
constexpr BasalFactors Female = {9.6, 655, 1.7, 4.7};
constexpr BasalFactors Male = {13.7, 66, 5.0, 6.8};

double BasalEnergy(const User& user) {
    if (user.Gender != 0 && user.Gender != 1) {
        ShowAlert(QStringLiteral("Error, gender info not found"));
        return 0;
    }
    const BasalFactors& factors = user.Gender == 1 ? Male : Female;
    const double weight = user.CurrentWeight / PoundsPerKilogram;
    const double height = user.Height * CentimetresPerInch;
    const double basal = weight * factors.perKilogram + factors.base;
    return basal + height * factors.perCentimetre - user.Age * factors.perYear;
}

double ActivityFactor(int level) {
    constexpr std::array factors{0.2, 0.6, 0.72, 0.9};
    return level >= 0 && level < int(factors.size()) ? factors[size_t(level)] : 0;
}

qint32 TotalEnergy(const User& user) {
    const double basal = BasalEnergy(user);
    const double activity = basal * ActivityFactor(user.ActivityLevel);
    const double thermic = (basal + activity) * 0.1;
    return Round(basal + activity + thermic);
}

/// What to add for a person who wants to gain or lose weight. A target of 1500 kcal or less is not
/// reduced.
int GoalStep(const User& user, qint32 calories) {
    if (calories >= LeastToReduce && user.CurrentWeight > user.DesiredWeight)
        return -WeightGoalStep;
    return user.CurrentWeight < user.DesiredWeight ? WeightGoalStep : 0;
}

void SetMacronutrients(Nuts& targets) {
    const double calories = targets.Calories();
    targets.Set(Nutrient::Protein, Round(calories / KcalPerGram::Protein * 0.3));
    targets.Set(Nutrient::Carbs, Round(calories / KcalPerGram::Carbs * 0.4));
    targets.Set(Nutrient::TotalFat, Round(calories / KcalPerGram::Fat * 0.3));
}
} // namespace

void DeriveEnergyTargets(User& user) {
    const qint32 calories = TotalEnergy(user);
    user.RDIs.Set(Nutrient::Calories, double(calories) + GoalStep(user, calories));
    SetMacronutrients(user.RDIs);
    for (Nutrient third : {Nutrient::SatFat, Nutrient::MonoFat, Nutrient::PolyFat})
        user.RDIs.Set(third, Round(user.RDIs.TotalFat() / 3));
}
