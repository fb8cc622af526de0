#include "tour/HomeWalk.h"

#include "tour/Guide.h"

#include "runtime/AppState.h"
#include "runtime/Clock.h"
#include "store/Connection.h"

#include <SQLiteCpp/SQLiteCpp.h>

HomeWalk::HomeWalk(Guide& guide)
    : guide_(guide) {}

QWidget* HomeWalk::Frame() {
    return guide_.Window(QStringLiteral("frmHOME"));
}

QWidget* HomeWalk::Home() {
    return guide_.Window(QStringLiteral("frmMain"));
}

void HomeWalk::EmptyMonth() {
    guide_.Check(App().CurrentDate == Clock::Today(), QStringLiteral("today is chosen"));
    guide_.Picture(Frame(), QStringLiteral("home-empty"));
    guide_.HoverOver(Frame(), QStringLiteral("cmdRecipes"));
    guide_.Picture(Frame(), QStringLiteral("home-frame-hover"));
    guide_.HoverOver(Frame(), QStringLiteral("picFrameTop"));
    guide_.HoverOver(Home(), QStringLiteral("ucCalButton"));
    guide_.Picture(Frame(), QStringLiteral("home-day-hover"));
}

void HomeWalk::ChooseToday() {
    guide_.Press(Home(), QStringLiteral("ucCalButton"));
    guide_.Check(guide_.Window(QStringLiteral("frmDay")) != nullptr,
                 QStringLiteral("a click on the day leads to its details"));
}

/// Copies the logged foods to most days of the month: each day without one dish, and with a second
/// helping at lunch and dinner.
void HomeWalk::FillMonth() {
    SQLite::Database& users = UserDB().Raw();
    const QDate today = Clock::Today();
    users.exec("CREATE TEMP TABLE Eaten AS SELECT * FROM USER_FOODS");
    for (QDate day(today.year(), today.month(), 1); day < today; day = day.addDays(1)) {
        if (day.dayOfWeek() == Qt::Saturday)
            continue;
        const std::string text = day.toString(Qt::ISODate).toStdString();
        users.exec("UPDATE Eaten SET RecID = NULL, UDate = '" + text + "'");
        users.exec("INSERT INTO USER_FOODS SELECT * FROM Eaten WHERE rowid <> 1 + " +
                   std::to_string(day.day() % 10));
        users.exec("INSERT INTO USER_FOODS SELECT * FROM Eaten WHERE Meal IN ('Lunch', 'Dinner')");
        if (day.dayOfWeek() == Qt::Sunday || day.dayOfWeek() == Qt::Wednesday)
            users.exec("INSERT INTO USER_WEIGHTS (UID, UDate, Weight) SELECT UID, '" + text +
                       "', 198.5 + 0.15 * " + std::to_string(day.daysTo(today)) + " FROM profiles");
    }
    users.exec("DROP TABLE Eaten");
}

void HomeWalk::FullMonth() {
    FillMonth();
    guide_.Press(Frame(), QStringLiteral("cmdCal"));
    guide_.HoverOver(Home(), QStringLiteral("lblTip"));
    guide_.Picture(Frame(), QStringLiteral("home-full"));
    OpenMonths();
    guide_.Press(Frame(), QStringLiteral("cmdCal"));
    guide_.Press(Home(), QStringLiteral("picDay5"));
    const QDate today = Clock::Today();
    guide_.Check(App().CurrentDate == QDate(today.year(), today.month(), 5),
                 QStringLiteral("the 5th is chosen"));
    guide_.Picture(Frame(), QStringLiteral("home-chosen-day"));
    guide_.Press(Frame(), QStringLiteral("cmdDone"));
    guide_.Picture(Frame(), QStringLiteral("home-after-the-day"));
}

void HomeWalk::OpenMonths() {
    QWidget* months = guide_.Find(Home(), QStringLiteral("ucMonth"));
    guide_.Press(Home(), QStringLiteral("ucMonth"));
    guide_.HoverOver(months, QStringLiteral("lblItem10"));
    guide_.Picture(Frame(), QStringLiteral("home-months-open"));
    guide_.Press(months, QStringLiteral("lblItem10"));
    guide_.Picture(Frame(), QStringLiteral("home-month-before"));
    guide_.Check(App().CurrentDate == Clock::Today(),
                 QStringLiteral("another month chooses no day"));
}
