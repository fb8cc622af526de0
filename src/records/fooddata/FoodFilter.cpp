#include "records/fooddata/FoodFilter.h"

#include <algorithm>

namespace {
bool HoldsAll(const QString& name, const QStringList& words) {
    return std::ranges::all_of(
        words, [&](const QString& word) { return name.contains(word, Qt::CaseInsensitive); });
}

bool IsEmptyOrHas(const QStringList& wanted, const QString& text) {
    return wanted.isEmpty() || wanted.contains(text, Qt::CaseInsensitive);
}
} // namespace

QStringList FoodFilter::Types() {
    return {QStringLiteral("sr"), QStringLiteral("foundation"), QStringLiteral("survey"),
            QStringLiteral("branded")};
}

bool FoodFilter::Add(const QString& restriction) {
    const QString sort = restriction.section(u'=', 0, 0);
    const QString value = restriction.section(u'=', 1).simplified();
    if (value.isEmpty())
        return false;
    if (sort == QLatin1String("words"))
        words_ << value.split(u' ');
    else if (sort == QLatin1String("category"))
        categories_ << value;
    else if (sort == QLatin1String("type") && Types().contains(value))
        types_ << value;
    else
        return false;
    return true;
}

bool FoodFilter::TakesType(const QString& type) const {
    return IsEmptyOrHas(types_, type);
}

bool FoodFilter::TakesCategory(const QString& category) const {
    return IsEmptyOrHas(categories_, category);
}

bool FoodFilter::TakesName(const QString& name) const {
    return words_.isEmpty() || std::ranges::any_of(words_, [&](const QStringList& words) {
               return HoldsAll(name, words);
           });
}
