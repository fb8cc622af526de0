#include "records/peers/PeerValues.h"

#include "foods/Quantity.h"
#include "model/EnergyTargets.h"
#include "runtime/Convert.h"
#include "runtime/NumberText.h"
#include "runtime/RuntimeError.h"

#include <QLocale>

#include <array>

namespace {
constexpr qsizetype LongestLine = 1'000;
constexpr int FirstYear = 1900;
constexpr int LastYear = 2199;

[[noreturn]] void Refuse(const QString& reason) {
    throw RuntimeError(ErrorNumber::TypeMismatch, reason);
}

[[noreturn]] void RefuseDay(const QString& text) {
    Refuse(u'"' + text.left(40) + "\" is not a date.");
}

/// Three whole numbers with one separator between them.
std::array<int, 3> Parts(const QString& text, QChar separator) {
    const QStringList texts = text.split(separator);
    std::array<int, 3> parts{};
    bool sound = texts.size() == 3;
    for (size_t i = 0; sound && i < parts.size(); ++i)
        parts[i] = texts[static_cast<qsizetype>(i)].toUInt(&sound);
    return sound ? parts : std::array<int, 3>{};
}

bool IsMeasured(const QString& unit) {
    static const QStringList measured{"g",  "mg", "kg",    "oz",    "lb",   "lbs",
                                      "ml", "l",  "fl oz", "fl.oz", "g/ml", "gml"};
    return measured.contains(unit, Qt::CaseInsensitive);
}
} // namespace

QString PeerValues::Line(const QString& text) {
    QString line = text;
    for (QChar& c : line)
        if (c.category() == QChar::Other_Control)
            c = u' ';
    line = line.simplified();
    if (line.size() > LongestLine)
        Refuse(QStringLiteral("A text is longer than %1 characters.").arg(LongestLine));
    return line;
}

QString PeerValues::Name(const QString& text) {
    const QString name = Line(text);
    if (name.isEmpty())
        Refuse(QStringLiteral("It has no name."));
    return name;
}

QDate PeerValues::SoundDay(QDate day, const QString& text) {
    if (!day.isValid() || day.year() < FirstYear || day.year() > LastYear)
        RefuseDay(text);
    return day;
}

QDate PeerValues::IsoDay(const QString& text) {
    const auto [year, month, day] = Parts(text.trimmed(), u'-');
    return SoundDay(QDate(year, month, day), text);
}

QDate PeerValues::SlashDay(const QString& text, PeerChoices::DateOrder order) {
    auto [month, day, year] = Parts(text.trimmed(), u'/');
    if (order == PeerChoices::DateOrder::DayFirst)
        std::swap(month, day);
    return SoundDay(QDate(year, month, day), text);
}

QDate PeerValues::Day(const QString& text, std::optional<PeerChoices::DateOrder> order) {
    if (!text.contains(u'/'))
        return IsoDay(text);
    if (!order)
        Refuse(u'"' + text.left(40) +
               "\" may have the month or the day first. Say which: --date-order mdy or dmy.");
    return SlashDay(text, *order);
}

QTime PeerValues::Time(const QString& text) {
    if (text.isEmpty())
        return {};
    for (const char* form : {"h:mm AP", "h:mm", "h:mm:ss"})
        if (const QTime time = QLocale::c().toTime(text, QLatin1String(form)); time.isValid())
            return time;
    Refuse(u'"' + text.left(40) + "\" is not a time.");
}

void PeerValues::SetPortion(ImportedFood& food, double number, const QString& unit) {
    const QString name = Line(unit);
    const bool isCounted = !name.isEmpty() && !IsMeasured(name) && number > 0 &&
                           Quantity::LogRefusal(number).isEmpty();
    food.quantity = isCounted ? number : 1;
    food.serving = isCounted ? name : Line(DecimalText(number) + u' ' + name);
}

void PeerValues::SetPortion(ImportedFood& food, const QString& amount) {
    food.serving = Line(amount);
    const qsizetype length = NumberText::LeadingLength(food.serving);
    if (length > 0 && food.serving.mid(length).startsWith(u' '))
        SetPortion(food, ToDouble(food.serving.left(length)), food.serving.mid(length));
}

double PeerValues::Pounds(std::optional<double> weight, WeightUnit unit) {
    const double pounds = Units::Pounds(weight.value_or(0), unit);
    if (!(pounds > 0 && pounds <= HeaviestWeight))
        Refuse(QStringLiteral("It is not a weight."));
    return pounds;
}
