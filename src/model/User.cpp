#include "model/User.h"

#include "model/EnergyTargets.h"
#include "model/ReferenceIntake.h"
#include "runtime/AppState.h"
#include "runtime/Attempt.h"
#include "runtime/Convert.h"
#include "runtime/Round.h"
#include "runtime/RuntimeError.h"
#include "store/Connection.h"
#include "store/Recordset.h"

namespace {
constexpr double DailyWater = 1792;
constexpr double DailySodium = 2400;
constexpr double DailyPotassium = 3500;
constexpr double LeastFiber = 25;

QString Column(Nutrient id) {
    return QString::fromLatin1(Info(id).profileColumn);
}

void ReadReferenceValues(Nuts& targets, const Recordset& row, double age) {
    if (row.AtEnd())
        throw RuntimeError(
            ErrorNumber::NoCurrentRecord,
            QStringLiteral("There are no reference intakes for an age of ") + DecimalText(age) +
                QStringLiteral(" years. From the age of 9 on, enter whole years, 999 at most."));
    for (Nutrient id : ReferenceOrder())
        targets.Set(id, row[QString::fromLatin1(Info(id).rdiColumn)].Number());
}

/// An energy target that gives less than the least amount of fiber is an error.
double FiberTarget(double age, double calories) {
    if (age <= 10)
        return age + 5;
    const double fiber = calories / 100 * 5;
    if (fiber < LeastFiber)
        throw RuntimeError(
            ErrorNumber::NoSuchMember,
            QStringLiteral("No fiber target can be derived from an energy target of ") +
                DecimalText(calories) +
                QStringLiteral(" kcal. Check the age, the height and the weight."));
    return fiber;
}

void MakeTotalTheSumOfThirds(Nuts& targets) {
    const double sum =
        targets[Nutrient::MonoFat] + targets[Nutrient::SatFat] + targets[Nutrient::PolyFat];
    targets.Set(Nutrient::TotalFat, Round(sum));
}

void WriteEnergyTargets(const User& user) {
    Recordset row(UserDB(),
                  QStringLiteral("SELECT * FROM profiles WHERE UID=") + QString::number(user.UID),
                  CursorType::Dynamic, LockType::Optimistic);
    using enum Nutrient;
    for (Nutrient id : {Calories, Carbs, Protein, TotalFat, SatFat, MonoFat, PolyFat})
        row.Set(Column(id), user.RDIs[id]);
    row.Set(QStringLiteral("Current_Weight"), user.CurrentWeight);
    row.Update();
}
} // namespace

void User::GetUserProfile(qint32 uid) {
    const Recordset row(UserDB(), QStringLiteral("SELECT * FROM profiles WHERE UID = ") +
                                      QString::number(uid));
    Gender = row[QStringLiteral("gender")].WholeOr(0);
    ActivityLevel = row[QStringLiteral("activity_level")].WholeOr(0);
    Age = row[QStringLiteral("age")].NumberOr(0);
    FlagCholesterol = row[QStringLiteral("FlagCholesterol")].NumberOr(0) != 0;
    FlagSodium = row[QStringLiteral("FlagSodium")].NumberOr(0) != 0;
    sodiumMAX = row[QStringLiteral("sodiumMAX")].WholeOr(0);
    cholesterolMAX = row[QStringLiteral("cholesterolMAX")].WholeOr(0);
    Height = row[QStringLiteral("height")].WholeOr(0);
    CurrentWeight = row[QStringLiteral("current_weight")].WholeOr(0);
    DesiredWeight = row[QStringLiteral("desired_weight")].WholeOr(0);
    UserName = row[QStringLiteral("UserName")].Text();
    for (Nutrient id : ProfileOrder())
        RDIs.Set(id, row[Column(id)].NumberOr(0));
}

void User::CreateDefaultRDIs() {
    const Recordset row(UserDB(), ReferenceStatement(*this));
    DeriveEnergyTargets(*this);
    MakeTotalTheSumOfThirds(RDIs);
    ReadReferenceValues(RDIs, row, Age);
    RDIs.Set(Nutrient::Water, DailyWater);
    RDIs.Set(Nutrient::Sodium, DailySodium);
    RDIs.Set(Nutrient::Potassium, DailyPotassium);
    RDIs.Set(Nutrient::Fiber, FiberTarget(Age, RDIs.Calories()));
}

User& User::Current() {
    static User user;
    return user;
}

void User::ResetCurrent() {
    Current() = User();
}

void RecalcTargets() {
    if (!App().AppInfo.AUTOUPDATERDI)
        return;
    User& user = User::Current();
    if (!Attempt([&] { DeriveEnergyTargets(user); }))
        return; // a weight or a height that no person has
    WriteEnergyTargets(user);
    user.GetUserProfile(user.UID);
}
