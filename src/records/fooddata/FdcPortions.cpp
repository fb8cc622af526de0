#include "records/fooddata/FdcPortions.h"

#include "records/fooddata/FdcTable.h"
#include "records/fooddata/FoodText.h"
#include "runtime/Convert.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace {
enum Column { Food, Sequence, Amount, Unit, Description, Modifier, Weight };

constexpr quint32 NoUnit = 9999;
const QString NotSpecified = QStringLiteral("Quantity not specified");

/// Weights of the laboratory, which nobody eats by.
bool IsOfTheLaboratory(quint32 unit) {
    return (unit >= 1010 && unit <= 1012) || unit == 1061 || unit == 1062;
}

using UnitNames = QHash<quint32, QString>;

UnitNames ReadUnits(const QString& folder) {
    enum { Key, Name };
    FdcTable table(folder, QStringLiteral("measure_unit.csv"),
                   {QStringLiteral("id"), QStringLiteral("name")});
    UnitNames names;
    while (table.Next())
        names.insert(table.Key(Key), table.Text(Name));
    return names;
}

QString Joined(const QStringList& words, const QString& separator) {
    return words.join(separator).simplified();
}

/// The measure in words. The survey writes it whole and has a code as its modifier. Where a unit
/// stands, the modifier tells more about it. Otherwise the modifier is the unit.
QString Measure(const FdcTable& row, const UnitNames& units) {
    const auto amount = row.Number(Amount);
    const quint32 unit = row.Key(Unit);
    if (!amount)
        return row.Text(Description);
    QStringList words{DecimalText(*amount)};
    if (unit == NoUnit || unit == 0)
        return row.Text(Modifier).isEmpty()
                   ? QString()
                   : Joined(words << row.Text(Modifier), QStringLiteral(" "));
    words << units.value(unit);
    const QString measure = Joined(words, QStringLiteral(" "));
    return row.Text(Modifier).isEmpty() ? measure : measure + u", " + row.Text(Modifier);
}

struct Portion {
    double sequence;
    double grams;
    QString text;
};

class Chooser {
public:
    explicit Chooser(FdcFoods& foods)
        : foods_(foods) {}

    void Take(quint32 key, const Portion& portion) {
        FdcFood* food = FindFood(foods_, key);
        if (!food || (sequences_.contains(key) && sequences_[key] <= portion.sequence))
            return;
        sequences_[key] = portion.sequence;
        food->amount = portion.grams;
        food->serving = FoodText::WithAmount(FoodText::Allowed(portion.text), portion.grams,
                                             QStringLiteral("g"))
                            .toUtf8();
    }

private:
    FdcFoods& foods_;
    QHash<quint32, double> sequences_; ///< of the portion that each food has now
};

bool CanBeEatenBy(const FdcTable& row, const QString& measure) {
    return !measure.isEmpty() && row.Number(Weight).value_or(0) > 0 &&
           !IsOfTheLaboratory(row.Key(Unit)) && !measure.startsWith(NotSpecified) &&
           row.Text(Modifier) != QLatin1String("90000");
}
} // namespace

void FdcPortions::Read(const QString& folder, FdcFoods& foods) {
    if (FdcTable::Find(folder, QStringLiteral("food_portion.csv")).isEmpty())
        return;
    const UnitNames units = ReadUnits(folder);
    FdcTable table(folder, QStringLiteral("food_portion.csv"),
                   {QStringLiteral("fdc_id"), QStringLiteral("?seq_num"), QStringLiteral("amount"),
                    QStringLiteral("measure_unit_id"), QStringLiteral("?portion_description"),
                    QStringLiteral("modifier"), QStringLiteral("gram_weight")});
    Chooser chooser(foods);
    while (table.Next()) {
        const QString measure = Measure(table, units);
        if (CanBeEatenBy(table, measure))
            chooser.Take(table.Key(Food),
                         {table.Number(Sequence).value_or(0), *table.Number(Weight), measure});
    }
}
