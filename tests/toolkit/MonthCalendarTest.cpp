#include "toolkit/MonthCalendar.h"
#include "drawing/Style.h"
#include "runtime/Clock.h"
#include "runtime/Format.h"
#include "support/HalvaneTest.h"

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QSignalSpy>
#include <QTableView>
#include <QTextCharFormat>

namespace {

class MonthCalendarTest : public HalvaneTest {
protected:
    /// The table that assistive tools see of that calendar.
    static QAccessibleInterface* Days(const MonthCalendar& calendar) {
        return QAccessible::queryAccessibleInterface(View(calendar));
    }
    static QTableView* View(const MonthCalendar& calendar) {
        return Find<QTableView>(&calendar, QStringLiteral("qt_calendar_calendarview"));
    }
    static QAccessibleInterface* CellOf(const MonthCalendar& calendar, QDate day) {
        QAccessibleTableInterface* table = Days(calendar)->tableInterface();
        for (int week = 0; week < table->rowCount(); ++week)
            for (int column = 0; column < table->columnCount(); ++column)
                if (QAccessibleInterface* cell = table->cellAt(week, column);
                    cell->text(QAccessible::Name) == FormatLongDate(day))
                    return cell;
        return nullptr;
    }
    static void Press(QAccessibleInterface* cell) {
        cell->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    }
};

} // namespace

TEST_F(MonthCalendarTest, WeeksBeginOnSunday) {
    EXPECT_EQ(MonthCalendar().firstDayOfWeek(), Qt::Sunday);
}

TEST_F(MonthCalendarTest, GoesFromTheYear100To9999) {
    MonthCalendar calendar;
    calendar.show();
    EXPECT_EQ(calendar.minimumDate(), QDate(100, 1, 1));
    EXPECT_EQ(calendar.maximumDate(), QDate(9999, 12, 31));
    calendar.setCurrentPage(100, 1);
    Click(Find(&calendar, QStringLiteral("qt_calendar_prevmonth")));
    EXPECT_EQ(calendar.yearShown(), 100);
    calendar.setCurrentPage(9999, 12);
    Click(Find(&calendar, QStringLiteral("qt_calendar_nextmonth")));
    EXPECT_EQ(calendar.yearShown(), 9999);
}

TEST_F(MonthCalendarTest, TheChosenDayStandsInTheFrameBrown) {
    Clock::SetToday(QDate(2026, 11, 21));
    MonthCalendar calendar;
    calendar.resize(280, 210);
    calendar.setSelectedDate(QDate(2026, 11, 18));
    calendar.show();
    QApplication::processEvents();
    const QImage drawn = Grab(&calendar);
    int framed = 0;
    for (int y = 0; y < drawn.height(); ++y)
        for (int x = 0; x < drawn.width(); ++x)
            framed += drawn.pixelColor(x, y) == TheStyle().frame;
    EXPECT_GT(framed, 100);
}

TEST_F(MonthCalendarTest, WeekendsLookLikeTheOtherDays) {
    const MonthCalendar calendar;
    for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday})
        EXPECT_EQ(calendar.weekdayTextFormat(day), QTextCharFormat());
}

TEST_F(MonthCalendarTest, AssistiveToolsReadTheWholeDateOfEachDayThatIsShown) {
    MonthCalendar calendar;
    QAccessibleTableInterface* table = Days(calendar)->tableInterface();
    for (QDate month(2023, 1, 1); month.year() < 2029; month = month.addMonths(1)) {
        calendar.setCurrentPage(month.year(), month.month());
        const QAbstractItemModel* shown = View(calendar)->model();
        for (int week = 0; week < 6; ++week)
            for (int column = 0; column < 7; ++column) {
                const QDate day = calendar.DateAt(week, column);
                EXPECT_EQ(shown->index(week + 1, column).data().toInt(), day.day());
                EXPECT_EQ(table->cellAt(week, column)->text(QAccessible::Name),
                          FormatLongDate(day));
            }
    }
}

TEST_F(MonthCalendarTest, AssistiveToolsFindEachDayBelowTheNameOfItsWeekday) {
    MonthCalendar calendar;
    calendar.setCurrentPage(2026, 11);
    QAccessibleInterface* days = Days(calendar);
    EXPECT_EQ(days->role(), QAccessible::Table);
    EXPECT_EQ(days->tableInterface()->rowCount(), 6);
    EXPECT_EQ(days->tableInterface()->columnDescription(6), "Saturday");
    QAccessibleInterface* cell = CellOf(calendar, QDate(2026, 11, 18));
    ASSERT_NE(cell, nullptr);
    EXPECT_EQ(cell->parent(), days);
    EXPECT_EQ(days->child(days->indexOfChild(cell)), cell);
    EXPECT_EQ(cell->tableCellInterface()->columnHeaderCells().value(0)->text(QAccessible::Name),
              "Wednesday");
}

TEST_F(MonthCalendarTest, AssistiveToolsHearOfTheDayThatTheArrowsReach) {
    MonthCalendar calendar;
    calendar.setSelectedDate(QDate(2026, 11, 18));
    const QModelIndex index = View(calendar)->currentIndex();
    const int place = (index.row() + 1) * (View(calendar)->model()->columnCount() + 1) +
                      index.column() + 1; // as the view counts
    EXPECT_EQ(Days(calendar)->child(place), CellOf(calendar, QDate(2026, 11, 18)));
}

TEST_F(MonthCalendarTest, ADayLiesForAssistiveToolsWhereItIsShown) {
    MonthCalendar calendar;
    calendar.resize(280, 210);
    calendar.setCurrentPage(2026, 11);
    calendar.show();
    QAccessibleInterface* cell = CellOf(calendar, QDate(2026, 11, 18));
    EXPECT_FALSE(cell->state().invisible);
    EXPECT_TRUE(calendar.rect().contains(calendar.mapFromGlobal(cell->rect().center())));
    EXPECT_EQ(Days(calendar)->childAt(cell->rect().center().x(), cell->rect().center().y()), cell);
}

TEST_F(MonthCalendarTest, OnlyTheChosenDayIsSelected) {
    MonthCalendar calendar;
    calendar.setSelectedDate(QDate(2026, 11, 18));
    EXPECT_TRUE(CellOf(calendar, QDate(2026, 11, 18))->state().selected);
    EXPECT_FALSE(CellOf(calendar, QDate(2026, 11, 19))->state().selected);
    QAccessibleTableInterface* table = Days(calendar)->tableInterface();
    EXPECT_EQ(table->selectedCells(),
              QList<QAccessibleInterface*>{CellOf(calendar, QDate(2026, 11, 18))});
    calendar.setCurrentPage(2027, 3);
    EXPECT_TRUE(table->selectedCells().isEmpty());
}

TEST_F(MonthCalendarTest, APressOfAnAssistiveToolChoosesTheDayAfterItsAnswer) {
    MonthCalendar calendar;
    calendar.setSelectedDate(QDate(2026, 11, 18));
    QSignalSpy chosen(&calendar, &QCalendarWidget::activated);
    Press(CellOf(calendar, QDate(2026, 12, 2)));
    EXPECT_EQ(chosen.count(), 0);
    QCoreApplication::sendPostedEvents(&calendar);
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen.at(0).at(0).toDate(), QDate(2026, 12, 2));
    EXPECT_EQ(calendar.selectedDate(), QDate(2026, 12, 2));
}

TEST_F(MonthCalendarTest, WhileItIsMadeItsDaysTellNothing) {
    MonthCalendar().show();
    const QCalendarWidget base; // all of it that exists when tools first hear of its days
    QAccessibleInterface* days = QAccessible::queryAccessibleInterface(
        Find(&base, QStringLiteral("qt_calendar_calendarview")));
    QAccessibleInterface* day = days->tableInterface()->cellAt(2, 3);
    EXPECT_TRUE(day->text(QAccessible::Name).isEmpty());
    EXPECT_FALSE(day->state().selected);
    EXPECT_TRUE(day->state().disabled);
    EXPECT_TRUE(days->tableInterface()->selectedCells().isEmpty());
}

TEST_F(MonthCalendarTest, ADialogKeepsADayBelowItFromBeingPressed) {
    MonthCalendar calendar;
    calendar.setSelectedDate(QDate(2026, 11, 18));
    calendar.show();
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    Press(CellOf(calendar, QDate(2026, 11, 19)));
    QCoreApplication::sendPostedEvents(&calendar);
    EXPECT_EQ(calendar.selectedDate(), QDate(2026, 11, 18));
}

TEST_F(MonthCalendarTest, ADayThatCannotBeChosenIsNotEnabledAndHasNoPress) {
    MonthCalendar calendar;
    calendar.setCurrentPage(9999, 12);
    QAccessibleInterface* last = CellOf(calendar, QDate(9999, 12, 31));
    QAccessibleInterface* beyond = CellOf(calendar, QDate(10000, 1, 1));
    EXPECT_FALSE(last->state().disabled);
    EXPECT_TRUE(beyond->state().disabled);
    EXPECT_FALSE(beyond->state().selectable);
    EXPECT_TRUE(beyond->actionInterface()->actionNames().isEmpty());
    const QDate before = calendar.selectedDate();
    Press(beyond);
    QCoreApplication::sendPostedEvents(&calendar);
    EXPECT_EQ(calendar.selectedDate(), before);
}
