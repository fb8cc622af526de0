#include "model/Profile.h"

#include "model/EnergyTargets.h"
#include "runtime/Convert.h"
#include "runtime/Val.h"

namespace {
constexpr int InchesInAFoot = 12;
constexpr qint32 MostActive = 3;

bool IsAmong(qint32 value, qint32 last) {
    return value >= 0 && value <= last;
}
} // namespace

void Profile::SetHeight(qint32 height) {
    inches = height % InchesInAFoot;
    feet = QString::number(height / InchesInAFoot);
}

double Profile::Height() const {
    return inches + ToDouble(feet) * InchesInAFoot;
}

QString Profile::FirstProblem() const {
    const struct {
        bool broken;
        const char* message;
    } rules[] = {
        {userName.isEmpty(), "Please enter a User Name."},
        {Val(feet) <= 0 && inches <= 0, "Please enter your Height."},
        {inches >= InchesInAFoot, "Please enter an Inches value of 11 or less."},
        {age <= 0, "Please enter your Age."},
        {currentWeight <= 0, "Please enter your Current Weight."},
        {currentWeight > HeaviestWeight,
         "Please enter a Current Weight of 1,000,000 pounds or less."},
        {desiredWeight <= 0, "Please enter your Desired Weight."},
        {desiredWeight > HeaviestWeight,
         "Please enter a Desired Weight of 1,000,000 pounds or less."},
        {!IsAmong(gender, 1), "Please select your Gender."},
        {!IsAmong(activityLevel, MostActive), "Please select your Activity Level."},
    };
    for (const auto& [broken, message] : rules)
        if (broken)
            return QString::fromLatin1(message);
    return {};
}
