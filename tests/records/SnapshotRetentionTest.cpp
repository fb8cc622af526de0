#include "records/SnapshotRetention.h"

#include <gtest/gtest.h>

namespace {
/// A snapshot a day for so many days, thinned each day as the program does it.
QList<QDate> AfterDays(int count, QDate first, int step = 1) {
    QList<QDate> days;
    for (int i = 0; i < count; ++i) {
        days << first.addDays(i * step);
        const QSet<QDate> kept = SnapshotRetention::Kept(days);
        days.removeIf([&](QDate day) { return !kept.contains(day); });
    }
    return days;
}
} // namespace

TEST(SnapshotRetentionTest, OneWeekIsKeptWhole) {
    EXPECT_EQ(AfterDays(7, QDate(2026, 11, 16)).size(), 7);
}

TEST(SnapshotRetentionTest, TheNewestDayIsAlwaysKept) {
    for (int days = 1; days < 800; days += 13)
        EXPECT_TRUE(
            AfterDays(days, QDate(2024, 1, 31)).contains(QDate(2024, 1, 31).addDays(days - 1)));
}

TEST(SnapshotRetentionTest, AfterThreeYearsSevenDaysFiveWeeksAndTwelveMonthsAreLeft) {
    const QList<QDate> left = AfterDays(1096, QDate(2023, 11, 23)); // the last is 2026-11-22
    EXPECT_EQ(left, (QList<QDate>{{2025, 12, 31}, {2026, 1, 31},  {2026, 2, 28},  {2026, 3, 31},
                                  {2026, 4, 30},  {2026, 5, 31},  {2026, 6, 30},  {2026, 7, 31},
                                  {2026, 8, 31},  {2026, 9, 30},  {2026, 10, 25}, {2026, 10, 31},
                                  {2026, 11, 1},  {2026, 11, 8},  {2026, 11, 15}, {2026, 11, 16},
                                  {2026, 11, 17}, {2026, 11, 18}, {2026, 11, 19}, {2026, 11, 20},
                                  {2026, 11, 21}, {2026, 11, 22}}));
}

TEST(SnapshotRetentionTest, WhoStartsTheProgramSeldomKeepsSevenDaysToo) {
    const QList<QDate> left = AfterDays(20, QDate(2020, 1, 1), 100);
    EXPECT_GE(left.size(), 12);
    EXPECT_EQ(left.last(), QDate(2020, 1, 1).addDays(1900));
}

TEST(SnapshotRetentionTest, NothingIsKeptOfNothing) {
    EXPECT_TRUE(SnapshotRetention::Kept({}).isEmpty());
}
