#include "runtime/Dates.h"

#include <QRegularExpression>

#include <array>

namespace {
constexpr int EarliestYear = 100;
constexpr int LatestYear = 9999;
constexpr int LastYearOf2000s = 29;

constexpr std::array MonthNames = {"January",   "February", "March",    "April",
                                   "May",       "June",     "July",     "August",
                                   "September", "October",  "November", "December"};
constexpr std::array WeekdayNames = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                     "Thursday", "Friday", "Saturday"};

template <size_t Count> QString NameAt(const std::array<const char*, Count>& names, int number) {
    const bool known = number >= 1 && number <= int(Count);
    return known ? QString::fromLatin1(names[size_t(number - 1)]) : QString();
}

/// The ways in which a date is written, as groups `m`, `d` and `y`; months in digits or letters.
const std::array<QRegularExpression, 4>& Forms() {
    static const std::array<QRegularExpression, 4> forms = [] {
        const auto form = [](const char* pattern) {
            return QRegularExpression(QRegularExpression::anchoredPattern(QLatin1String(pattern)));
        };
        return std::array{
            form(R"((?<m>[0-9]{1,2})(?<s>[/-])(?<d>[0-9]{1,2})\k<s>(?<y>[0-9]{4}|[0-9]{2}))"),
            form(R"((?<y>[0-9]{4})-(?<m>[0-9]{1,2})-(?<d>[0-9]{1,2}))"),
            form(R"((?<m>[A-Za-z]+)[ -]+(?<d>[0-9]{1,2})(, *|[ -]+)(?<y>[0-9]{4}|[0-9]{2}))"),
            form(R"((?<d>[0-9]{1,2})[ -]+(?<m>[A-Za-z]+)(, *|[ -]+)(?<y>[0-9]{4}|[0-9]{2}))"),
        };
    }();
    return forms;
}

int MonthNumber(const QString& text) {
    for (int month = 1; month <= 12; ++month) {
        const QString name = NameAt(MonthNames, month);
        const bool whole = name.compare(text, Qt::CaseInsensitive) == 0;
        if (whole || name.left(3).compare(text, Qt::CaseInsensitive) == 0)
            return month;
    }
    return text.toInt();
}

int YearNumber(const QString& text) {
    const int year = text.toInt();
    if (text.size() > 2)
        return year;
    return year + (year <= LastYearOf2000s ? 2000 : 1900);
}

QDate DateOf(const QRegularExpressionMatch& match) {
    const int year = YearNumber(match.captured(u"y"));
    const QDate date(year, MonthNumber(match.captured(u"m")), match.captured(u"d").toInt());
    return year < EarliestYear ? QDate() : date;
}
} // namespace

QDate Dates::First() {
    return {EarliestYear, 1, 1};
}

QDate Dates::Last() {
    return {LatestYear, 12, 31};
}

bool Dates::IsDate(QStringView text) {
    return Parse(text).isValid();
}

QDate Dates::Parse(QStringView text) {
    const QString trimmed = text.trimmed().toString();
    for (const QRegularExpression& form : Forms())
        if (const auto match = form.match(trimmed); match.hasMatch())
            return DateOf(match);
    return {};
}

QString Dates::ShortText(QDate date) {
    if (date.year() < 1000)
        return date.toString(QStringLiteral("M/d/yyyy"));
    return QString::number(date.month()) + u'/' + QString::number(date.day()) + u'/' +
           QString::number(date.year());
}

int Dates::DaysBetween(QDate from, QDate to) {
    return static_cast<int>(from.daysTo(to));
}

QDate Dates::AddDays(QDate date, int days) {
    return date.addDays(days);
}

QDate Dates::AddMonths(QDate date, int months) {
    return date.addMonths(months);
}

int Dates::Weekday(QDate date) {
    return date.dayOfWeek() % 7 + 1;
}

QString Dates::MonthName(int month) {
    return NameAt(MonthNames, month);
}

QString Dates::WeekdayName(int weekday) {
    return NameAt(WeekdayNames, weekday);
}

QDate Dates::LastOfMonth(QDate date) {
    return QDate(date.year(), date.month(), date.daysInMonth());
}
