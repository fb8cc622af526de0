#include "model/ReferenceIntake.h"

#include "model/User.h"

#include <limits>
#include <span>

namespace {
/// A range of ages, both ends included.
struct Band {
    double from;
    double to;
    const char* suffix;
};
constexpr double AnyAge = -std::numeric_limits<double>::infinity();

constexpr Band AdultBands[] = {{AnyAge, 13, "_9_13"}, {14, 18, "_14_18"}, {19, 30, "_19_30"},
                               {31, 50, "_31_50"},    {51, 70, "_51_70"}, {71, 999, "_71_999"}};
constexpr Band MotherBands[] = {{AnyAge, 18, "_0_18"}, {19, 30, "_19_30"}, {31, 999, "_31_999"}};

QString SuffixOf(std::span<const Band> bands, double age) {
    for (const Band& band : bands)
        if (age >= band.from && age <= band.to)
            return QString::fromLatin1(band.suffix);
    return {};
}

/// The keys of the two infant rows end in a blank.
QString StageKey(const User& user) {
    if (user.Age < 1)
        return QStringLiteral("INFANT") + QLatin1String(user.Age <= 0.5 ? "_0_6 " : "_7_12 ");
    if (user.Age < 9)
        return QStringLiteral("CHILD") + QLatin1String(user.Age <= 3 ? "_1_3" : "_4_8");
    return QLatin1String(user.Gender == 1 ? "MALE" : "FEMALE") + SuffixOf(AdultBands, user.Age);
}

/// Pregnancy overrides lactation. Between two bands the key stays that of the life stage.
QString ProfileKey(const User& user) {
    QString key = StageKey(user);
    const QString suffix = SuffixOf(MotherBands, user.Age);
    if (user.Lactating && !suffix.isEmpty())
        key = QStringLiteral("LACTATION") + suffix;
    if (user.Pregnant && !suffix.isEmpty())
        key = QStringLiteral("PREGNANCY") + suffix;
    return key;
}
} // namespace

QString ReferenceStatement(const User& user) {
    return QStringLiteral("SELECT * FROM RDI WHERE Profile = '") + ProfileKey(user) + u'\'';
}
