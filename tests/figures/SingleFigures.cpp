#include "figures/SingleFigures.h"

#include "analysis/NutrientFigure.h"
#include "analysis/PeriodFigures.h"
#include "figures/CaseLine.h"
#include "figures/FigureLine.h"
#include "figures/TargetFields.h"
#include "foods/FormatNutrient.h"
#include "model/EnergyTargets.h"
#include "model/User.h"
#include "runtime/Convert.h"
#include "runtime/Dates.h"
#include "runtime/Format.h"
#include "runtime/Round.h"
#include "runtime/RuntimeError.h"
#include "runtime/Val.h"

namespace {

const char* const Refused = "refused";

template <class Calculate> void PrintOrRefuse(FigureLine& line, Calculate calculate) {
    try {
        line << calculate();
    } catch (const RuntimeError&) {
        line << Refused;
    }
}

User PersonOf(const CaseLine& line) {
    User user;
    user.Gender = line.Whole(1);
    user.Age = line.Number(2);
    user.Height = line.Whole(3);
    user.CurrentWeight = line.Whole(4);
    user.DesiredWeight = line.Whole(5);
    user.ActivityLevel = line.Whole(6);
    user.Lactating = line.Flag(7);
    user.Pregnant = line.Flag(8);
    return user;
}

} // namespace

void SingleFigures::OfText(const CaseLine& line) {
    const double value = Val(line.Text(1));
    FigureLine figures("text");
    figures << value;
    PrintOrRefuse(figures, [value] { return Round(value); });
}

void SingleFigures::OfNumber(const CaseLine& line) {
    const double value = line.Number(1);
    FigureLine figures("number");
    figures << FormatNutrient(value) << WholeNumber(FormatNutrient(value))
            << NutrientFigure::numFix(value) << PeriodFigures::numFix(value)
            << Format(value, NumberMask::Percent) << Format(value, NumberMask::WholeNumber)
            << DecimalText(value) << RoundForDisplay(value);
    PrintOrRefuse(figures, [value] { return Round(value); });
}

void SingleFigures::OfDays(const CaseLine& line) {
    const QDate day = line.Day(1);
    FigureLine("days") << Dates::ShortText(day) << FormatShortDate(day) << FormatLongDate(day)
                       << Dates::LastOfMonth(day).day() << Dates::Weekday(day) - 1
                       << Dates::DaysBetween(day, line.Day(2));
}

void SingleFigures::OfPerson(const CaseLine& line) {
    User user = PersonOf(line);
    {
        FigureLine figures("targets");
        try {
            user.CreateDefaultRDIs();
            AddTargets(figures, user.RDIs);
        } catch (const RuntimeError&) {
            figures << Refused;
        }
    }
    user.CurrentWeight = line.Whole(9);
    DeriveEnergyTargets(user);
    FigureLine figures("reweighed");
    AddEnergyTargets(figures, user.RDIs);
}
