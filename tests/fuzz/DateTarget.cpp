#include "fuzz/Target.h"

#include "runtime/Attempt.h"
#include "runtime/Convert.h"
#include "runtime/Dates.h"
#include "runtime/Format.h"

/// A text is a date of the calendar or none, and a date is read from each text that we write of it.
void Fuzz(const std::string& bytes) {
    const QString text = QString::fromStdString(bytes);
    const QDate date = Dates::Parse(text);
    Expect(Dates::IsDate(text) == date.isValid());
    Expect(Attempt([&] { Expect(ToDate(text) == date); }) == date.isValid());
    if (!date.isValid())
        return;
    Expect(date >= Dates::First() && date <= Dates::Last());
    for (const QString& written :
         {Dates::ShortText(date), FormatShortDate(date), date.toString(Qt::ISODate)})
        Expect(Dates::Parse(written) == date);
    Expect(Dates::LastOfMonth(date).month() == date.month());
    Expect(FormatLongDate(date).startsWith(Dates::WeekdayName(Dates::Weekday(date))));
}
