#include "analysis/ui/ucCal_LG.h"

#include "Statements.h"
#include "analysis/ui/DayCell.h"
#include "drawing/Style.h"
#include "model/User.h"
#include "runtime/AppState.h"
#include "runtime/Clock.h"
#include "runtime/Dates.h"
#include "store/Connection.h"
#include "support/HalvaneTest.h"
#include "toolkit/DropItem.h"
#include "toolkit/ucAALBL.h"
#include "toolkit/ucCalButton.h"
#include "toolkit/ucDropDown.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLocale>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

constexpr int HeadHeight = 22;
const QColor Line(180, 105, 12);

class ucCal_LGTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        OpenEmptyDatabases();
        AddUser();
    }
    void TearDown() override {
        form.reset();
        HalvaneTest::TearDown();
    }

    /// Opens a calendar in a window of its own, with that day as today.
    void Open(QDate today, QSize size = QSize(498, 514)) {
        Clock::SetToday(today);
        form = std::make_unique<QWidget>();
        form->resize(size + QSize(20, 20));
        calendar = new ucCal_LG(form.get());
        calendar->setGeometry(QRect(QPoint(10, 10), size));
        form->show();
        QApplication::setActiveWindow(form.get());
    }

    void Eat(QDate day, double calories = 100, qint32 uid = User::Current().UID) {
        UserDB().Raw().exec(QStringLiteral("INSERT INTO USER_FOODS (UID,UDate,Calories) VALUES "
                                           "(%1,'%2',%3)")
                                .arg(uid)
                                .arg(day.toString(Qt::ISODate))
                                .arg(calories)
                                .toStdString());
    }
    void Weigh(QDate day, const QString& weight, qint32 uid = User::Current().UID) {
        UserDB().Raw().exec(QStringLiteral("INSERT INTO USER_WEIGHTS VALUES (%1,'%2',%3)")
                                .arg(uid)
                                .arg(day.toString(Qt::ISODate), weight)
                                .toStdString());
    }

    DayCell* Cell(int day) { return Find<DayCell>(calendar, "picDay" + QString::number(day)); }
    bool IsShown(const QString& name) {
        const auto* control = calendar->findChild<QWidget*>(name);
        return control && control->isVisible();
    }
    /// The days whose icon of that name is visible.
    QList<int> Days(const QString& icon) {
        QList<int> days;
        for (int day = 1; day <= 31; ++day)
            if (IsShown(icon + QString::number(day)))
                days << day;
        return days;
    }
    int CellsShown() {
        int shown = 0;
        for (int day = 1; day <= 31; ++day)
            shown += IsShown("picDay" + QString::number(day));
        return shown;
    }
    int RowsShown() {
        QSet<int> tops;
        for (int day = 1; day <= CellsShown(); ++day)
            tops << Cell(day)->y();
        return int(tops.size());
    }
    QString Title() { return Find<ucAALBL>(calendar, "aadate")->Caption(); }
    QWidget* Grid() { return Find(calendar, "picCalBG"); }
    ucCalButton* Button() { return Find<ucCalButton>(calendar, "ucCalButton"); }
    ucDropDown* Month() { return Find<ucDropDown>(calendar, "ucMonth"); }
    ucDropDown* Year() { return Find<ucDropDown>(calendar, "ucYear"); }
    int Items(ucDropDown* list) { return int(list->findChildren<DropItem*>().size()) - 1; }
    void Pick(ucDropDown* list, int index) {
        Click(list, QPoint(5, 5));
        Click(Find(list, "lblItem" + QString::number(index)));
    }
    void PickYear(int year) { Pick(Year(), year - 1991); }
    void Key(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

    std::unique_ptr<QWidget> form;
    ucCal_LG* calendar = nullptr;
};

} // namespace

TEST_F(ucCal_LGTest, OpensOnTodayWithTheButtonThere) {
    Open({2026, 11, 21});
    EXPECT_EQ(Title(), "November 2026");
    EXPECT_EQ(calendar->Date(), QDate(2026, 11, 21));
    EXPECT_EQ(Month()->Text(), "November  ");
    EXPECT_EQ(Month()->SelectedID(), 11);
    EXPECT_EQ(Year()->Text(), "2026  ");
    EXPECT_EQ(Year()->SelectedID(), 2026);
    EXPECT_EQ(Button()->parentWidget(), Cell(21));
    EXPECT_EQ(Button()->pos(), QPoint(-1, -1));
    EXPECT_EQ(Button()->Caption(), "21");
    EXPECT_EQ(calendar->findChildren<ucCalButton*>().size(), 1);
    EXPECT_EQ(calendar->toolTip(), "Click a day on this calendar to add foods to your analysis.");
}

TEST_F(ucCal_LGTest, TheHeadsNameTheWeekFromSunday) {
    Open({2026, 11, 21});
    const QStringList heads{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    for (int i = 0; i < 7; ++i) {
        QWidget* head = Find(calendar, "ucDay" + QString::number(i));
        EXPECT_EQ(head->property("Caption").toString(), heads[i]);
        EXPECT_EQ(head->x(), qRound(498 * i / 7.0));
    }
}

TEST_F(ucCal_LGTest, TheFrameGoesOnBesideTheHeads) {
    Open({2026, 11, 21});
    const int row = Find(calendar, "ucDay0")->mapTo(calendar, QPoint(0, 10)).y();
    const QImage drawn = Grab(calendar);
    EXPECT_EQ(drawn.pixelColor(0, row), TheStyle().frame);
    EXPECT_EQ(drawn.pixelColor(1, row), TheStyle().navigation);
    EXPECT_EQ(drawn.pixelColor(calendar->width() - 1, row), TheStyle().frame);
}

TEST_F(ucCal_LGTest, LeapYearsAreThoseOfTheCalendar) {
    EXPECT_FALSE(Dates::IsDate(u"2/29/1900"));
    EXPECT_TRUE(Dates::IsDate(u"2/29/2000"));
    EXPECT_TRUE(Dates::IsDate(u"2/29/2012"));
    EXPECT_FALSE(Dates::IsDate(u"2/29/2026"));
    EXPECT_TRUE(Dates::IsDate(u"2/29/2028"));
    EXPECT_EQ(Dates::LastOfMonth(Dates::Parse(u"2/1/1900")).day(), 28);
}

TEST_F(ucCal_LGTest, AMonthHasTheDaysAndRowsItNeeds) {
    struct Row {
        QDate today;
        int days, rows;
    };
    for (const Row& row : {Row{{1900, 2, 1}, 28, 5},
                           {{2000, 2, 10}, 29, 5},
                           {{2012, 2, 29}, 29, 5},
                           {{2026, 2, 28}, 28, 4},
                           {{2028, 2, 29}, 29, 5},
                           {{2026, 4, 30}, 30, 5},
                           {{2026, 8, 31}, 31, 6},
                           {{2026, 5, 31}, 31, 6},
                           {{2026, 1, 1}, 31, 5},
                           {{2023, 4, 30}, 30, 6}}) {
        Open(row.today);
        EXPECT_EQ(CellsShown(), row.days) << row.today.toString().toStdString();
        EXPECT_EQ(RowsShown(), row.rows) << row.today.toString().toStdString();
        EXPECT_TRUE(Grid()->rect().contains(Cell(row.days)->geometry()));
    }
}

TEST_F(ucCal_LGTest, DaysStandUnderTheirWeekdays) {
    for (const QSize size : {QSize(498, 514), QSize(500, 511), QSize(503, 517), QSize(601, 489)}) {
        Open({2026, 8, 3}, size);
        const double width = size.width() / 7.0;
        for (int day = 1; day <= 31; ++day) {
            const int column = QDate(2026, 8, day).dayOfWeek() % 7;
            EXPECT_NEAR(Cell(day)->x(), width * column + 1, 1.01) << day;
        }
        const int first = HeadHeight + 1;
        EXPECT_EQ(Cell(1)->y(), first);
        EXPECT_NEAR(Cell(31)->y() - first, (Grid()->height() - HeadHeight) / 6.0 * 5, 1.5);
    }
}

TEST_F(ucCal_LGTest, NoCellCoversALineOrItsNeighbour) {
    for (const QDate month : {QDate(2026, 8, 3), QDate(2026, 2, 1), QDate(2026, 7, 9)})
        for (int grow = 0; grow < 7; ++grow) {
            Open(month, QSize(498 + grow, 511 + grow));
            QRegion covered;
            for (int day = 1; day <= CellsShown(); ++day) {
                const QRect place = Cell(day)->geometry();
                EXPECT_TRUE((covered & place).isEmpty()) << day;
                covered += place;
            }
            const QImage image = Grab(Grid());
            const int height = Grid()->height();
            for (int column = 0; column <= 7; ++column) {
                const int x = qMin(qRound(image.width() * column / 7.0), image.width() - 1);
                for (int y = HeadHeight; y < height; ++y)
                    ASSERT_EQ(image.pixelColor(x, y), Line) << x << ',' << y << ' ' << grow;
            }
            for (int row = 0; row <= 6; ++row) {
                const int y =
                    qMin(HeadHeight + qRound((height - HeadHeight) * row / 6.0), height - 1);
                for (int x = 0; x < image.width(); ++x)
                    ASSERT_EQ(image.pixelColor(x, y), Line) << x << ',' << y << ' ' << grow;
            }
        }
}

TEST_F(ucCal_LGTest, ADaysNumberIsPrintedAtItsPlace) {
    Open({2026, 11, 21});
    EXPECT_EQ(Cell(7)->Caption(), "7");
    const QImage image = Grab(Cell(28));
    const QRect number(8, 8, 18, 17);
    int inked = 0;
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y).lightness() < 128) {
                EXPECT_TRUE(number.contains(x, y)) << x << ',' << y;
                ++inked;
            }
    EXPECT_GT(inked, 20);
}

TEST_F(ucCal_LGTest, NumbersAreSmoothedFromTheSecondPlatformFamilyOn) {
    App().AppInfo.OSVERSION = 1;
    Open({2026, 11, 21});
    const QImage plain = Grab(Cell(28));
    App().AppInfo.OSVERSION = 2;
    EXPECT_NE(Grab(Cell(28)), plain);
}

TEST_F(ucCal_LGTest, TheTitleIsPrintedOnTheCalendarAndItsLabelHidden) {
    Open({2026, 11, 21});
    auto* label = Find<ucAALBL>(calendar, "aadate");
    EXPECT_TRUE(label->isHidden());
    const QRect place(label->pos(), label->sizeHint());
    const QImage november = Grab(calendar).copy(place);
    Pick(Month(), 3);
    EXPECT_EQ(Title(), "March 2026");
    EXPECT_TRUE(label->isHidden());
    EXPECT_NE(Grab(calendar).copy(place), november);
    label->show();
    calendar->getDate();
    EXPECT_TRUE(label->isHidden());
}

TEST_F(ucCal_LGTest, IconsMarkTheDaysWithFoodAndThoseWithAWeight) {
    Eat({2026, 11, 1});
    Eat({2026, 11, 1});
    Eat({2026, 11, 30});
    Weigh({2026, 11, 1}, "160.5");
    Weigh({2026, 11, 15}, "0.5");
    Open({2026, 11, 21});
    EXPECT_EQ(Days("imgFood"), QList<int>({1, 30}));
    EXPECT_EQ(Days("imgScale"), QList<int>({1, 15}));
    const QWidget* food = Find(calendar, "imgFood1");
    const QWidget* scale = Find(calendar, "imgScale1");
    EXPECT_EQ(food->parentWidget(), Cell(1));
    EXPECT_EQ(food->x(), 3);
    EXPECT_EQ(food->geometry().bottom(), Cell(1)->height() - 3);
    EXPECT_EQ(scale->geometry().right(), Cell(1)->width() - 4);
    EXPECT_EQ(scale->y(), food->y());
}

TEST_F(ucCal_LGTest, AMonthWithoutEntriesHasNoIcons) {
    Open({2026, 11, 21});
    EXPECT_EQ(Days("imgFood") + Days("imgScale"), QList<int>());
}

TEST_F(ucCal_LGTest, OneLoggedDayAmongThirtyShowsOneIcon) {
    Eat({2026, 11, 17});
    Open({2026, 11, 21});
    EXPECT_EQ(Days("imgFood"), QList<int>({17}));
}

TEST_F(ucCal_LGTest, AWeightOf0OrNullHasNoScaleIcon) {
    Weigh({2026, 11, 3}, "0");
    Weigh({2026, 11, 4}, "NULL");
    Weigh({2026, 11, 5}, "0.0");
    Weigh({2026, 11, 6}, "-1");
    Open({2026, 11, 21});
    EXPECT_EQ(Days("imgScale"), QList<int>({6}));
}

TEST_F(ucCal_LGTest, AFoodWithoutCaloriesHasItsIcon) {
    Eat({2026, 11, 9}, 0);
    Open({2026, 11, 21});
    EXPECT_EQ(Days("imgFood"), QList<int>({9}));
}

TEST_F(ucCal_LGTest, OtherUsersAndMonthsAreNotMarked) {
    Eat({2026, 11, 9}, 100, 77);
    Weigh({2026, 11, 9}, "160", 77);
    Eat({2026, 10, 31});
    Eat({2026, 12, 1});
    Eat({2025, 11, 9});
    Weigh({2026, 10, 31}, "160");
    Weigh({2026, 12, 1}, "160");
    Open({2026, 11, 21});
    EXPECT_EQ(Days("imgFood") + Days("imgScale"), QList<int>());
}

TEST_F(ucCal_LGTest, BeforeStartUpDaysHaveNoIconsAndNothingIsQueried) {
    Eat({2026, 11, 9});
    App().AppStarted = false;
    const Statements asked(UserDB());
    Open({2026, 11, 21});
    EXPECT_EQ(CellsShown(), 30);
    EXPECT_EQ(Days("imgFood"), QList<int>());
    EXPECT_EQ(asked.list, QStringList());
    App().AppStarted = true;
    calendar->ShowIcons();
    EXPECT_EQ(Days("imgFood"), QList<int>({9}));
}

TEST_F(ucCal_LGTest, AMonthCostsTwoQueriesThatSearchAnIndex) {
    for (int day = 1; day <= 30; ++day)
        Eat({2026, 4, day});
    Open({2026, 11, 21});
    QStringList asked;
    {
        const Statements statements(UserDB());
        Pick(Month(), 4);
        asked = statements.list;
    }
    ASSERT_EQ(asked.size(), 2);
    const char* indices[] = {"USER_FOODS_Day (UID=? AND UDate",
                             "USER_WEIGHTS_Day (UID=? AND UDate"};
    for (int i = 0; i < 2; ++i) {
        const auto plan = Rows(UserDB(), "EXPLAIN QUERY PLAN " + asked[i]);
        ASSERT_EQ(plan.size(), 1) << asked[i].toStdString();
        const QString step = plan.first().last().toString();
        EXPECT_TRUE(step.startsWith("SEARCH") && step.contains(indices[i])) << step.toStdString();
    }
}

TEST_F(ucCal_LGTest, ALoggedFoodShowsOnceTheCalendarIsRefreshed) {
    Open({2026, 11, 21});
    Eat({2026, 11, 21});
    calendar->getDate();
    EXPECT_EQ(Days("imgFood"), QList<int>({21}));
    UserDB().Raw().exec("DELETE FROM USER_FOODS");
    calendar->getDate();
    EXPECT_EQ(Days("imgFood"), QList<int>());
}

TEST_F(ucCal_LGTest, AClickOnADayMovesTheButtonAndRaisesDayChosen) {
    Open({2026, 11, 21});
    QSignalSpy chosen(calendar, &ucCal_LG::DayChosen);
    Click(Cell(5));
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen.first().first().toDate(), QDate(2026, 11, 5));
    EXPECT_EQ(calendar->Date(), QDate(2026, 11, 5));
    EXPECT_EQ(Button()->parentWidget(), Cell(5));
    EXPECT_TRUE(Button()->isVisible());
    EXPECT_EQ(Button()->Caption(), "5");
}

TEST_F(ucCal_LGTest, AClickOnTheButtonIsAClickOnItsCell) {
    Open({2026, 11, 21});
    QSignalSpy chosen(calendar, &ucCal_LG::DayChosen);
    Click(Button());
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen.first().first().toDate(), QDate(2026, 11, 21));
}

TEST_F(ucCal_LGTest, AClickOnAnIconIsAClickOnItsCell) {
    Eat({2026, 11, 5});
    Open({2026, 11, 21});
    QSignalSpy chosen(calendar, &ucCal_LG::DayChosen);
    const QPoint onIcon = Find(calendar, "imgFood5")->mapTo(form.get(), QPoint(8, 8));
    EXPECT_EQ(form->childAt(onIcon), Cell(5));
}

TEST_F(ucCal_LGTest, IconsOfTheChosenDayStandOnItsButton) {
    Eat({2026, 11, 21});
    Open({2026, 11, 21});
    const QImage with = Grab(Cell(21));
    Find(calendar, "imgFood21")->hide();
    EXPECT_NE(Grab(Cell(21)), with);
}

TEST_F(ucCal_LGTest, TheChosenDayStandsInAFrameOfTwoPixels) {
    Open({2026, 11, 11});
    const QRect cell = Cell(11)->geometry();
    const QImage image = Grab(Grid());
    const int x = cell.center().x();
    const int y = cell.center().y();
    for (int i = -1; i <= 0; ++i) {
        EXPECT_EQ(image.pixelColor(cell.left() + i, y), Line);
        EXPECT_EQ(image.pixelColor(cell.right() - i, y), Line);
        EXPECT_EQ(image.pixelColor(x, cell.top() + i), Line);
        EXPECT_EQ(image.pixelColor(x, cell.bottom() - i), Line);
    }
    EXPECT_NE(image.pixelColor(cell.left() + 1, y), Line);
    EXPECT_NE(image.pixelColor(cell.right() - 1, y), Line);
}

TEST_F(ucCal_LGTest, AnotherMonthStandsOnItsFirstDayAndRaisesItsEnds) {
    Open({2026, 11, 21});
    QSignalSpy chosen(calendar, &ucCal_LG::DayChosen);
    QSignalSpy changed(calendar, &ucCal_LG::MonthChanged);
    Pick(Month(), 2);
    EXPECT_EQ(Title(), "February 2026");
    EXPECT_EQ(Button()->parentWidget(), Cell(1));
    EXPECT_EQ(calendar->Date(), QDate(2026, 2, 1));
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed.first().at(0).toDate(), QDate(2026, 2, 1));
    EXPECT_EQ(changed.first().at(1).toDate(), QDate(2026, 2, 28));
    EXPECT_EQ(chosen.count(), 0);
    EXPECT_EQ(CellsShown(), 28);
}

TEST_F(ucCal_LGTest, AnotherYearDoesTheSame) {
    Open({2026, 2, 21});
    QSignalSpy changed(calendar, &ucCal_LG::MonthChanged);
    PickYear(2000);
    EXPECT_EQ(Title(), "February 2000");
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed.first().at(0).toDate(), QDate(2000, 2, 1));
    EXPECT_EQ(changed.first().at(1).toDate(), QDate(2000, 2, 29));
    EXPECT_EQ(Button()->parentWidget(), Cell(1));
}

TEST_F(ucCal_LGTest, TheMonthOrYearNowShownChangesNothing) {
    Open({2026, 11, 21});
    QSignalSpy changed(calendar, &ucCal_LG::MonthChanged);
    Pick(Month(), 11);
    PickYear(2026);
    EXPECT_EQ(changed.count(), 0);
    EXPECT_EQ(calendar->Date(), QDate(2026, 11, 21));
}

TEST_F(ucCal_LGTest, NothingMovesTheCurrentDate) {
    App().CurrentDate = QDate(2026, 11, 21);
    Open({2026, 11, 21});
    Pick(Month(), 2);
    Click(Cell(3));
    EXPECT_EQ(App().CurrentDate, QDate(2026, 11, 21));
}

TEST_F(ucCal_LGTest, FromThe31stToAMonthOf30DaysItStandsOnTheFirst) {
    Eat({2026, 10, 31});
    Weigh({2026, 10, 31}, "160");
    Open({2026, 10, 31});
    EXPECT_TRUE(IsShown("imgFood31"));
    Pick(Month(), 11);
    EXPECT_EQ(calendar->Date(), QDate(2026, 11, 1));
    EXPECT_FALSE(IsShown("picDay31"));
    EXPECT_FALSE(IsShown("imgFood31"));
    EXPECT_FALSE(IsShown("imgScale31"));
    EXPECT_EQ(Button()->parentWidget(), Cell(1));
    EXPECT_TRUE(Button()->isVisible());
}

TEST_F(ucCal_LGTest, FromThe29thOfFebruaryToACommonYearItStandsOnTheFirst) {
    Open({2028, 2, 29});
    PickYear(2027);
    EXPECT_EQ(calendar->Date(), QDate(2027, 2, 1));
    EXPECT_EQ(CellsShown(), 28);
}

TEST_F(ucCal_LGTest, CellsAreMadeOnceAndUsedAgain) {
    Open({2026, 2, 10});
    EXPECT_EQ(calendar->findChildren<DayCell*>().size(), 28);
    const DayCell* first = Cell(1);
    Pick(Month(), 3);
    EXPECT_EQ(calendar->findChildren<DayCell*>().size(), 31);
    Pick(Month(), 2);
    Pick(Month(), 4);
    EXPECT_EQ(calendar->findChildren<DayCell*>().size(), 31);
    EXPECT_EQ(Cell(1), first);
}

TEST_F(ucCal_LGTest, TheYearsGoFrom1992To2012OrToThePresentYear) {
    struct Row {
        int present, items;
    };
    for (const Row& row : {Row{1992, 21}, {2012, 21}, {2013, 22}, {2026, 35}, {2106, 115}}) {
        Open({row.present, 6, 15});
        EXPECT_EQ(Items(Year()), row.items) << row.present;
        EXPECT_EQ(Year()->SelectedID(), row.present);
        EXPECT_EQ(Find<DropItem>(Year(), "lblItem1")->Caption(), "1992  ");
        const int last = qMax(2012, row.present);
        EXPECT_EQ(Find<DropItem>(Year(), "lblItem" + QString::number(row.items))->Tag(),
                  QString::number(last));
        EXPECT_EQ(Title(), "June " + QString::number(row.present));
        EXPECT_EQ(calendar->Date(), QDate(row.present, 6, 15));
    }
}

TEST_F(ucCal_LGTest, AClockBefore1992SelectsNothingAndShowsItsYear) {
    Open({1991, 12, 31});
    EXPECT_EQ(Items(Year()), 21);
    EXPECT_EQ(Year()->Text(), "1991");
    EXPECT_EQ(Year()->SelectedID(), 0);
    EXPECT_EQ(Title(), "December 1991");
    PickYear(1992);
    EXPECT_EQ(Title(), "December 1992");
    EXPECT_EQ(Year()->SelectedID(), 1992);
}

TEST_F(ucCal_LGTest, AClockFarAheadStillOpens) {
    Open({2999, 12, 31});
    EXPECT_EQ(Title(), "December 2999");
    EXPECT_EQ(Year()->SelectedID(), 2999);
}

TEST_F(ucCal_LGTest, TheListOfMonthsNeedsNoBarAndThatOfYearsHasOne) {
    Open({2026, 11, 21});
    EXPECT_TRUE(Find<QScrollBar>(Month(), "vsResults")->isHidden());
    EXPECT_FALSE(Find<QScrollBar>(Year(), "vsResults")->isHidden());
    EXPECT_EQ(Items(Month()), 12);
}

TEST_F(ucCal_LGTest, AnOpenListStandsAboveTheDays) {
    Open({2026, 11, 21});
    Click(Month(), QPoint(5, 5));
    QWidget* item = Find(Month(), "lblItem9");
    const QPoint place = item->mapTo(form.get(), item->rect().center());
    EXPECT_EQ(form->childAt(place), item);
    EXPECT_TRUE(calendar->rect().contains(Month()->geometry()));
    Click(Cell(29));
    EXPECT_FALSE(Month()->IsOpen());
}

TEST_F(ucCal_LGTest, AMoveThatChangesBothCoordinatesTakesTheHoverOff) {
    Open({2026, 11, 21});
    const auto light = [this] {
        Hover(Button());
        EXPECT_EQ(Button()->State(), 2);
    };
    Hover(Cell(1), {10, 10});
    light();
    Hover(Cell(1), {10, 20});
    EXPECT_EQ(Button()->State(), 2) << "same x";
    Hover(Cell(1), {20, 10});
    EXPECT_EQ(Button()->State(), 2) << "same y";
    Hover(Cell(1), {20, 20});
    EXPECT_EQ(Button()->State(), 1);
    light();
    Hover(Grid(), {500, 440});
    EXPECT_EQ(Button()->State(), 1);
    light();
    Hover(calendar, {200, 40});
    EXPECT_EQ(Button()->State(), 1);
}

TEST_F(ucCal_LGTest, AnyMoveOverHeadsAndListsTakesTheHoverOff) {
    Open({2026, 11, 21});
    for (const char* name : {"ucDay3", "ucHead", "ucMonth", "ucYear"}) {
        QWidget* control = Find(calendar, name);
        for (int repeat = 0; repeat < 2; ++repeat) {
            Hover(Button());
            Hover(control, {5, 5});
            EXPECT_EQ(Button()->State(), 1) << name;
        }
    }
    Hover(Button());
    calendar->ResetButtons();
    EXPECT_EQ(Button()->State(), 1);
}

TEST_F(ucCal_LGTest, MovesOverItReachItsHost) {
    Open({2026, 11, 21});
    QSignalSpy moves(calendar, &ucCal_LG::MouseMove);
    Hover(Cell(9), {10, 10});
    ASSERT_EQ(moves.count(), 1);
    const QPoint place = Cell(9)->mapTo(calendar, QPoint(10, 10));
    EXPECT_EQ(moves.first().at(2).toDouble(), place.x() * 15.0);
}

TEST_F(ucCal_LGTest, TheCellUnderThePointerIsLit) {
    Open({2026, 11, 21});
    const QImage atRest = Grab(Cell(9));
    Cell(9)->setAttribute(Qt::WA_UnderMouse);
    EXPECT_NE(Grab(Cell(9)), atRest);
    Cell(9)->setAttribute(Qt::WA_UnderMouse, false);
    EXPECT_EQ(Grab(Cell(9)), atRest);
}

TEST_F(ucCal_LGTest, TodayIsMarkedInItsCellAndOnlyInItsMonth) {
    Open({2026, 11, 21});
    auto* today = Find<QLabel>(calendar, "lblToday");
    EXPECT_TRUE(Cell(21)->geometry().contains(today->geometry()));
    EXPECT_TRUE(today->isVisible());
    Click(Cell(5));
    EXPECT_TRUE(today->isVisible());
    EXPECT_TRUE(Cell(21)->geometry().contains(today->geometry()));
    PickYear(2025);
    EXPECT_FALSE(today->isVisible());
}

TEST_F(ucCal_LGTest, TabGoesFromTheMonthToTheYearToTheChosenDayAndOut) {
    Open({2026, 11, 21});
    Click(Cell(5));
    auto* after = new ucCalButton(form.get());
    after->show();
    Month()->setFocus();
    Key(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), Year());
    Key(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), Button());
    Key(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), after);
}

TEST_F(ucCal_LGTest, ArrowKeysMoveAmongTheDaysAndReturnClicks) {
    Open({2026, 11, 21});
    QSignalSpy chosen(calendar, &ucCal_LG::DayChosen);
    Button()->setFocus();
    struct Row {
        Qt::Key key;
        int day;
    };
    for (const Row& row : {Row{Qt::Key_Left, 20},
                           {Qt::Key_Up, 13},
                           {Qt::Key_Home, 1},
                           {Qt::Key_Left, 1},
                           {Qt::Key_Up, 1},
                           {Qt::Key_Right, 2},
                           {Qt::Key_Down, 9},
                           {Qt::Key_End, 30},
                           {Qt::Key_Down, 30},
                           {Qt::Key_Left, 29}}) {
        Key(row.key);
        EXPECT_EQ(QApplication::focusWidget(), Cell(row.day));
        EXPECT_TRUE(Cell(row.day)->FocusShown());
    }
    EXPECT_EQ(chosen.count(), 0);
    Key(Qt::Key_Return);
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen.first().first().toDate(), QDate(2026, 11, 29));
    EXPECT_EQ(QApplication::focusWidget(), Button());
    Key(Qt::Key_Space);
    EXPECT_EQ(chosen.count(), 2);
}

TEST_F(ucCal_LGTest, PageKeysTurnTheMonthAcrossTheYearsEnd) {
    Open({2026, 1, 31});
    QSignalSpy changed(calendar, &ucCal_LG::MonthChanged);
    Button()->setFocus();
    Key(Qt::Key_PageUp);
    EXPECT_EQ(Title(), "December 2025");
    EXPECT_EQ(Month()->SelectedID(), 12);
    EXPECT_EQ(Year()->SelectedID(), 2025);
    EXPECT_EQ(changed.last().at(1).toDate(), QDate(2025, 12, 31));
    EXPECT_EQ(QApplication::focusWidget(), Button());
    Key(Qt::Key_PageDown);
    EXPECT_EQ(Title(), "January 2026");
    EXPECT_EQ(changed.count(), 2);
}

TEST_F(ucCal_LGTest, PageKeysStopAtTheEndsOfTheList) {
    Open({1992, 1, 31});
    Button()->setFocus();
    Key(Qt::Key_PageUp);
    EXPECT_EQ(Title(), "January 1992");
    EXPECT_EQ(calendar->Date().day(), 31);
    Open({2026, 12, 31});
    Button()->setFocus();
    Key(Qt::Key_PageDown);
    EXPECT_EQ(Title(), "December 2026");
}

TEST_F(ucCal_LGTest, AYearThatBeginsMeanwhileIsNotOnTheListYet) {
    Open({2026, 12, 31});
    Clock::SetToday({2027, 1, 1});
    Button()->setFocus();
    Key(Qt::Key_PageDown);
    EXPECT_EQ(Title(), "December 2026");
}

TEST_F(ucCal_LGTest, TheFocusFollowsAClickWithoutARing) {
    Open({2026, 11, 21});
    Click(Cell(5));
    EXPECT_TRUE(Button()->hasFocus());
    EXPECT_FALSE(Button()->FocusShown());
    Key(Qt::Key_Right);
    EXPECT_TRUE(Cell(6)->FocusShown());
    Key(Qt::Key_Return);
    EXPECT_TRUE(Button()->FocusShown());
}

TEST_F(ucCal_LGTest, KeysInAListTurnTheMonthAndKeepTheFocus) {
    Open({2026, 11, 21});
    QSignalSpy turned(calendar, &ucCal_LG::MonthChanged);
    Month()->setFocus();
    const std::pair<Qt::Key, const char*> steps[] = {{Qt::Key_Down, "December 2026"},
                                                     {Qt::Key_Home, "January 2026"},
                                                     {Qt::Key_End, "December 2026"}};
    for (const auto& [key, title] : steps) {
        Key(key);
        EXPECT_EQ(Title(), title);
    }
    EXPECT_EQ(turned.count(), 3);
    EXPECT_EQ(QApplication::focusWidget(), Month());
}

TEST_F(ucCal_LGTest, EscapeInAnOpenListKeepsTheMonth) {
    Open({2026, 11, 21});
    Month()->setFocus();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Up, Qt::Key_Escape})
        Key(key);
    EXPECT_FALSE(Month()->IsOpen());
    EXPECT_EQ(Title(), "November 2026");
}

TEST_F(ucCal_LGTest, AssistiveProgramsReadTheDayAndWhatIsLogged) {
    Eat({2026, 3, 5});
    Weigh({2026, 3, 5}, "160");
    Weigh({2026, 3, 6}, "160");
    Open({2026, 3, 5});
    const auto name = [](QObject* control) {
        return QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name);
    };
    EXPECT_EQ(name(Cell(5)), "March 5, food logged, weight logged");
    EXPECT_EQ(name(Button()), "March 5, food logged, weight logged, chosen");
    EXPECT_EQ(name(Cell(6)), "March 6, weight logged");
    EXPECT_EQ(name(Cell(7)), "March 7");
    EXPECT_EQ(name(Month()), "Month");
    EXPECT_EQ(name(Year()), "Year");
    EXPECT_EQ(name(Grid()), "March 2026");
    EXPECT_EQ(name(Find(calendar, "ucDay0")), "Sunday");
    QAccessibleInterface* day = QAccessible::queryAccessibleInterface(Cell(7));
    EXPECT_EQ(day->role(), QAccessible::Button);
    day->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCoreApplication::sendPostedEvents(Cell(7));
    EXPECT_EQ(calendar->Date(), QDate(2026, 3, 7));
}

TEST_F(ucCal_LGTest, AnotherLocaleChangesNothing) {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    Eat({2026, 3, 5});
    Open({2026, 3, 5});
    EXPECT_EQ(Title(), "March 2026");
    EXPECT_EQ(Days("imgFood"), QList<int>({5}));
    QLocale::setDefault(QLocale::c());
}

TEST_F(ucCal_LGTest, AResizeLaysTheMonthOutAnew) {
    Open({2026, 8, 3});
    calendar->resize(700, 600);
    EXPECT_EQ(Find(calendar, "ucHead")->width(), 698);
    EXPECT_EQ(Grid()->width(), 700);
    EXPECT_EQ(Cell(2)->width(), 99);
    calendar->resize(0, 0);
    calendar->resize(498, 514);
    EXPECT_EQ(CellsShown(), 31);
}

TEST_F(ucCal_LGTest, AtEveryScaleTheWeekdaysAreOneBandAndTheCellsHaveOneGround) {
    Open({2026, 11, 21});
    const QWidget* head = Find(calendar, "ucDay0");
    const QPoint corner = head->mapTo(form.get(), QPoint());
    const QPoint inCell = Cell(12)->mapTo(form.get(), Cell(12)->rect().center());
    for (int percent = 100; percent <= 300; percent += 5) {
        const double ratio = percent / 100.0;
        QImage image((QSizeF(form->size()) * ratio).toSize(), QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        form->render(&image);
        const int row = int((corner.y() + 3) * ratio);
        for (int x = int((corner.x() + 3) * ratio); x < int((corner.x() + 480) * ratio); ++x) {
            const QColor found = image.pixelColor(x, row);
            ASSERT_TRUE(found == TheStyle().navigation || found == TheStyle().frame)
                << percent << " %, column " << x << ": " << found.name().toStdString();
        }
        EXPECT_EQ(image.pixelColor(inCell * ratio), TheStyle().paper) << percent << " %";
    }
}
