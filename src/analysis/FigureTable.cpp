#include "analysis/FigureTable.h"

#include "analysis/EnergyShares.h"
#include "analysis/NutrientFigure.h"
#include "analysis/WeightCurve.h"
#include "runtime/Convert.h"
#include "runtime/Dates.h"

FigureTable FigureTable::Of(const std::vector<NutrientFigure>& figures) {
    return {{QStringLiteral("Nutrient"), QStringLiteral("Amount"),
             QStringLiteral("Percent of the target")},
            int(figures.size()),
            [&figures](int row, int column) {
                const NutrientFigure& figure = figures[size_t(row)];
                return column == 0   ? figure.Caption()
                       : column == 1 ? figure.Amount()
                                     : figure.Percent();
            }};
}

FigureTable FigureTable::Of(const EnergyShares& shares) {
    const bool any = shares.What() == EnergyShares::Content::Sectors;
    return {{QStringLiteral("Part of the calories"), QStringLiteral("Percent")},
            any ? int(EnergyShares::Count) : 0,
            [&shares](int row, int column) {
                const QString caption = shares.Captions()[size_t(row)];
                const auto blank = caption.lastIndexOf(u' ');
                return column == 0 ? caption.left(blank) : caption.mid(blank + 1);
            }};
}

FigureTable FigureTable::Of(const WeightCurve& curve) {
    return {{QStringLiteral("Date"), QStringLiteral("Weight (lbs)")},
            int(curve.entries.size()),
            [&curve](int row, int column) {
                const WeightLog::Entry& entry = curve.entries[size_t(row)];
                return column == 0 ? Dates::ShortText(entry.day) : DecimalText(entry.weight);
            }};
}
