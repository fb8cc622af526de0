#include "records/tables/LogReading.h"

#include "model/User.h"
#include "store/Connection.h"

#include <cmath>

namespace {
enum Column { UDate, MealName, Name, ServingText, QTY, ID, FirstNutrient };

QString Statement(const Period& period) {
    QString columns = QStringLiteral("SELECT UDate, Meal, FoodName, Serving, QTY, ID");
    for (const NutrientInfo& nutrient : Nutrients())
        columns += u", " + QLatin1String(nutrient.logColumn);
    return columns + u" FROM USER_FOODS WHERE UID=" + QString::number(User::Current().UID) +
           u" AND " + period.Condition() + u" ORDER BY UDate, RecID";
}
} // namespace

LogReading::LogReading(const Period& period)
    : row_(UserDB(), Statement(period)) {}

bool LogReading::Next() {
    if (!row_.Next())
        return false;
    name_ = row_.Text(Name);
    food_ = FoodOfEntry();
    return true;
}

const CatalogueFood* LogReading::FoodOfEntry() {
    const std::optional<double> key = Key();
    if (!key || std::abs(*key) > std::numeric_limits<qint32>::max())
        return nullptr;
    const auto [found, isNew] = foods_.try_emplace(qint64(*key));
    if (isNew)
        found->second = CatalogueFood::Find(qint64(*key));
    return found->second && found->second->Name() == name_ ? &*found->second : nullptr;
}

QDate LogReading::Day() const {
    return row_.Day(UDate);
}

std::string LogReading::Meal() const {
    return row_.Text(MealName);
}

std::string LogReading::Serving() const {
    return row_.Text(ServingText);
}

std::optional<double> LogReading::Quantity() const {
    return row_.Number(QTY);
}

std::optional<double> LogReading::Key() const {
    return row_.Number(ID);
}

std::optional<double> LogReading::Amount(Nutrient nutrient) const {
    const std::optional<double> amount = row_.Number(FirstNutrient + int(nutrient));
    const bool unknown = amount == 0.0 && food_ && !food_->Knows(nutrient);
    return unknown ? std::nullopt : amount;
}

double LogReading::Grams() const {
    const double grams = food_ ? food_->GramsOf(Serving()) : CatalogueFood::GramsOfAnyServing;
    return std::abs(grams * Quantity().value_or(0));
}
