#include "records/fooddata/FdcDownload.h"

#include "foods/CustomFood.h"
#include "records/fooddata/FdcNutrients.h"
#include "records/fooddata/FdcPortions.h"
#include "records/fooddata/FdcSelection.h"
#include "records/fooddata/FdcTable.h"
#include "records/fooddata/FoodTally.h"
#include "records/fooddata/ServingAmounts.h"
#include "runtime/Convert.h"
#include "runtime/RuntimeError.h"

#include <algorithm>
#include <limits>
#include <string_view>

namespace {
constexpr size_t FoodsInABlock = 250'000;
const QString HundredGrams = QStringLiteral("100 g");

/// What 100 g can hold at most. 100 ml of a syrup weigh up to 150 g. A label rounds the amounts of
/// a serving: grams to whole ones, energy to tens.
struct Most {
    std::string_view unit;
    double in100;
    double rounding;
};
constexpr Most MostOfALabel[] = {{"g", 100, .5}, {"kcal", 900, 5}};
constexpr double HeaviestMillilitre = 1.5;

double Limit(const FdcFood& food, std::string_view unit) {
    for (const Most& most : MostOfALabel)
        if (food.kind->fromLabel && most.unit == unit)
            return most.in100 * (food.millilitres ? HeaviestMillilitre : 1) +
                   most.rounding * 100 / food.amount;
    return std::numeric_limits<double>::infinity();
}

QString Impossible(const FdcFood& food, const NutrientAmounts& in100) {
    for (const NutrientInfo& nutrient : Nutrients()) {
        const double amount = in100[nutrient.id].value_or(0);
        if (amount < 0 || amount > Limit(food, nutrient.unit))
            return QStringLiteral("no food has %1 %2 of %3 in 100 %4")
                .arg(DecimalText(amount), QLatin1String(nutrient.unit),
                     QLatin1String(nutrient.chartCaption),
                     QLatin1String(food.millilitres ? "ml" : "g"));
    }
    return {};
}

/// A longer name or serving cannot be meant.
constexpr qsizetype MostLetters = 1000;

QString Refusal(const CustomFood& own) {
    return std::max(own.name.size(), own.serving.size()) > MostLetters
               ? QStringLiteral("its name or serving has more than 1,000 characters")
               : own.FirstProblem().message;
}

bool HasAmount(const NutrientAmounts& amounts) {
    return std::ranges::any_of(Nutrients(), [&](const NutrientInfo& nutrient) {
        return amounts[nutrient.id].has_value();
    });
}
} // namespace

bool FdcDownload::IsIn(const QString& folder) {
    return !FdcTable::Find(folder, QStringLiteral("food.csv")).isEmpty();
}

FdcDownload::FdcDownload(QString folder, const FoodFilter& filter, FoodTally& tally)
    : folder_(std::move(folder))
    , tally_(tally) {
    FdcNutrients::RequireUnits(folder_);
    foods_ = FdcSelection(folder_, filter, tally).Choose();
    FdcPortions::Read(folder_, foods_);
}

void FdcDownload::Read(const Take& take, const Step& step) {
    const Block all(foods_);
    const qint64 blocks = static_cast<qint64>(all.size() / FoodsInABlock + 1);
    for (size_t from = 0; from < all.size(); from += FoodsInABlock) {
        const qint64 before = static_cast<qint64>(from / FoodsInABlock);
        ReadBlock(all.subspan(from, std::min(FoodsInABlock, all.size() - from)), take,
                  [&](qint64 done, qint64 total) {
                      if (step)
                          step(before * total + done, blocks * total);
                  });
    }
    if (!foods_.empty() && !anyAmount_)
        throw RuntimeError(ErrorNumber::TypeMismatch,
                           QStringLiteral("food_nutrient.csv has no amount of any of the foods."));
}

void FdcDownload::ReadBlock(Block foods, const Take& take, const Step& step) {
    const FdcAmounts amounts(folder_, foods, tally_, step);
    for (size_t i = 0; i < foods.size(); ++i)
        Give(foods[i], FdcNutrients::Amounts(amounts.Of(i), tally_), take);
}

void FdcDownload::Give(const FdcFood& food, const NutrientAmounts& in100, const Take& take) {
    if (!HasAmount(in100))
        return Refuse(food, QStringLiteral("not one of its amounts is known"));
    anyAmount_ = true;
    if (const QString impossible = Impossible(food, in100); !impossible.isEmpty())
        return Refuse(food, impossible);
    const CustomFood own{QString::fromUtf8(food.name),
                         food.serving.isEmpty() ? HundredGrams : QString::fromUtf8(food.serving),
                         ServingAmounts(in100, food.amount)};
    if (const QString refusal = Refusal(own); !refusal.isEmpty())
        return Refuse(food, refusal);
    take(QString::fromUtf8(food.number), own);
}

void FdcDownload::Refuse(const FdcFood& food, const QString& reason) {
    tally_.Refuse(QStringLiteral("food.csv"), food.line, QString::fromUtf8(food.name), reason);
}
