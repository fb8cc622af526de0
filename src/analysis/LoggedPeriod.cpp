#include "analysis/LoggedPeriod.h"

#include "analysis/LoggedSums.h"
#include "model/User.h"
#include "store/Connection.h"
#include "store/LogSums.h"

namespace {

QStringList AmountColumns() {
    QStringList columns;
    for (const Nutrient id : StoredOrder())
        columns << QLatin1String(Info(id).logColumn);
    return columns;
}

std::optional<Nuts> KnownSums(const AmountSums& read) {
    Nuts sums;
    for (size_t i = 0; i < StoredOrder().size(); ++i) {
        const Nutrient id = StoredOrder()[i];
        if (id == Nutrient::Calories && !read.Of(i))
            return std::nullopt;
        sums.Set(id, read.Of(i).value_or(0));
    }
    return sums;
}

} // namespace

const LoggedPeriod::Log& LoggedPeriod::Read() {
    if (!log_) {
        const AmountSums read =
            LogSums::Of(UserDB(), {QStringLiteral("USER_FOODS"), AmountColumns(),
                                   User::Current().UID, period_.from, period_.to});
        log_ = {KnownSums(read), read.Days()};
    }
    return *log_;
}

const std::optional<Nuts>& LoggedPeriod::Sums() {
    return Read().sums;
}

int LoggedPeriod::Days() {
    return Read().days;
}

std::optional<Nuts> LoggedPeriod::AverageEnergy() {
    return Sums() ? LoggedSums::AverageEnergy(*Sums(), Days()) : std::nullopt;
}
