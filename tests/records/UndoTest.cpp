#include "SnapshotTest.h"
#include "WeighIn.h"

#include "intake/DayLog.h"
#include "records/RecordsChange.h"
#include "records/Undo.h"
#include "runtime/SettingTable.h"
#include "runtime/Settings.h"
#include "support/Failure.h"

class UndoTest : public SnapshotTest {
protected:
    void Weigh(int weight) const { WeighIn::Change(Records(), weight); }
    double Weight() const { return WeighIn::Kept(Records()); }
    int Undone() {
        return FailureOf([&] { Undo::Last(Records()); });
    }
    qsizetype Count() const { return All().All().size(); }
};

TEST_F(UndoTest, TheLastChangeIsTakenBack) {
    const QStringList before = Rows(Records());
    Weigh(150);
    const Undo::Result result = Undo::Last(Records());
    EXPECT_EQ(result.change, "weigh 150");
    EXPECT_EQ(Rows(Records()), before);
}

TEST_F(UndoTest, ChangesAreTakenBackOneByOne) {
    for (const int weight : {150, 151, 152})
        Weigh(weight);
    for (const int weight : {151, 150, 0}) {
        EXPECT_EQ(Undone(), 0);
        EXPECT_EQ(Weight(), weight);
    }
    EXPECT_EQ(Undone(), ErrorNumber::CannotBeChanged);
}

TEST_F(UndoTest, WhatWasTakenBackCanBeRestored) {
    Weigh(150);
    const Snapshot replaced = Undo::Last(Records()).replaced;
    EXPECT_EQ(Rows(replaced.Files()).filter("USER_WEIGHTS|1|2002-03-04|150").size(), 1);
}

TEST_F(UndoTest, AChangeOfBothFilesIsTakenBackInBoth) {
    const QStringList before = Rows(Records());
    {
        RecordsChange change(Records(), "both");
        DayLog::SetWeight(QDate(2002, 3, 4), 150);
        FoodDB().Raw().exec("INSERT INTO FOODS (ID, FoodName) VALUES (23509, 'Pie')");
        change.Commit();
    }
    EXPECT_NE(Rows(Records()), before);
    EXPECT_EQ(Undone(), 0);
    EXPECT_EQ(Rows(Records()), before);
}

TEST_F(UndoTest, WhereTheRecordsHaveChangedSinceNothingIsTakenBack) {
    Weigh(150);
    AddWeight("2002-03-05", 160);
    const QStringList before = Rows(Records());
    try {
        Undo::Last(Records());
        FAIL();
    } catch (const RuntimeError& failure) {
        EXPECT_TRUE(failure.Description().contains("weigh 150")) << failure.what();
        EXPECT_TRUE(failure.Description().contains("`restore 1`")) << failure.what();
    }
    EXPECT_EQ(Rows(Records()), before);
}

TEST_F(UndoTest, WithoutAChangeThereIsNothingToTakeBack) {
    EXPECT_EQ(Undone(), ErrorNumber::CannotBeChanged);
}

TEST_F(UndoTest, AChangeThatWasNotCommittedLeavesNoSnapshot) {
    {
        const RecordsChange change(Records(), "weigh");
        DayLog::SetWeight(QDate(2002, 3, 4), 150);
    }
    EXPECT_EQ(Count(), 0);
}

TEST_F(UndoTest, AChangeOfNothingLeavesNoSnapshot) {
    {
        RecordsChange change(Records(), "nothing");
        change.Commit();
    }
    EXPECT_EQ(Count(), 0);
}

TEST_F(UndoTest, ASettingIsSetWithTheCommitAndComesBack) {
    SetRegValue(Settings::ToEmail, "old@example.org");
    SetRegValue(Settings::FromEmail, "anna@example.org");
    {
        RecordsChange change(Records(), "settings");
        change.Set(Settings::ToEmail, "new@example.org");
        EXPECT_EQ(GetRegValue(Settings::ToEmail), "old@example.org");
        change.Commit();
    }
    EXPECT_EQ(GetRegValue(Settings::ToEmail), "new@example.org");
    SetRegValue(Settings::FromEmail, "zoe@example.org");
    EXPECT_EQ(Undone(), 0);
    EXPECT_EQ(GetRegValue(Settings::ToEmail), "old@example.org");
    EXPECT_EQ(GetRegValue(Settings::FromEmail), "zoe@example.org") << "the change left it alone";
}

TEST_F(UndoTest, AfterAStartOfTheSystemADamagedSnapshotIsNotTakenForTheRecords) {
    Weigh(150);
    Snapshot last = All().All().first();
    last.boot = "another";
    last.WriteNote();
    QFile::setPermissions(last.Files().Users(), QFile::ReadOwner | QFile::WriteOwner);
    Damage(last.Files().Users(), 8192);
    EXPECT_EQ(Undone(), -SQLITE_CORRUPT);
    EXPECT_EQ(Weight(), 150);
}

TEST_F(UndoTest, TheLastTenChangesCanBeTakenBack) {
    for (int i = 1; i <= 12; ++i)
        Weigh(100 + i);
    for (int i = 11; i > 1; --i) {
        EXPECT_EQ(Undone(), 0);
        EXPECT_EQ(Weight(), 100 + i);
    }
    EXPECT_EQ(Undone(), ErrorNumber::CannotBeChanged);
}
