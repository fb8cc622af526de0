#include "support/HalvaneTest.h"

#include "records/SnapshotMaking.h"
#include "records/Snapshots.h"
#include "store/Connection.h"
#include "support/Places.h"
#include "support/RunSize.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>

#include <SQLiteCpp/SQLiteCpp.h>

#include <iostream>

namespace {
constexpr unsigned Seed = 20261122;
constexpr int FewKills = 25;
constexpr int RowCount = 6000; ///< so that a restore writes for a while

/// The environment variable HALVANE_KILLS asks for more kills than an ordinary run.
int Kills() {
    return RunSize("HALVANE_KILLS", FewKills);
}
} // namespace

/// Records that change between two states, a and b. Both files tell in which one they are.
class RestoreKillTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        OpenDatabases();
        AddUser();
        CloseDatabases();
        a_ = MakeState("a");
        b_ = MakeState("b");
    }

    Snapshot MakeState(const std::string& name) {
        const RecordsFolder records(Folder());
        const std::string numbers =
            "WITH n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
            std::to_string(RowCount) + ") ";
        Change(records.Users(),
               "UPDATE profiles SET UserName = '" + name + "'; DELETE FROM USER_FOODS; " + numbers +
                   "INSERT INTO USER_FOODS (UID, FoodName, Serving, Meal, UDate, "
                   "QTY) SELECT 1, '" +
                   name + "', printf('%300d', i), 'Lunch', '2026-11-22', i FROM n");
        Change(records.Foods(), "DELETE FROM FOODS WHERE ID > 23508; " + numbers +
                                    "INSERT INTO FOODS (ID, FoodName) SELECT 23508 + i, '" + name +
                                    "' FROM n");
        return SnapshotMaking(records, Snapshots(records).Place())
            .Make(SnapshotKind::Manual, QString::fromStdString(name));
    }
    static void Change(const QString& path, const std::string& sql) {
        SQLite::Database(path.toStdString(), SQLite::OPEN_READWRITE).exec(sql);
    }

    /// The milliseconds that it took. It is killed after that time; -1: never.
    qint64 Restore(const Snapshot& snapshot, int killAfter) {
        QElapsedTimer clock;
        clock.start();
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(Places::Build(QStringLiteral("/src/halvane-data")),
                      {"restore", "--folder", Folder(), snapshot.path});
        process.waitForFinished(killAfter);
        killed_ += process.state() != QProcess::NotRunning ? 1 : 0;
        process.kill();
        process.waitForFinished();
        return clock.elapsed();
    }

    /// What the next start finds: "a" or "b" if both files are wholly in that state.
    QString State() {
        UserDB().Open(Folder() + "/users.mdb", DatabaseKind::Users);
        FoodDB().Open(Folder() + "/foods.mdb", DatabaseKind::Foods);
        EXPECT_EQ(Users("PRAGMA integrity_check"), "ok");
        EXPECT_EQ(Foods("PRAGMA integrity_check"), "ok");
        const QString state = Users("SELECT UserName FROM profiles").toString();
        EXPECT_EQ(Users("SELECT count(*) FROM USER_FOODS WHERE FoodName = '" + state + "'"),
                  RowCount);
        EXPECT_EQ(
            Foods("SELECT count(*) FROM FOODS WHERE ID > 23508 AND FoodName = '" + state + "'"),
            RowCount);
        CloseDatabases();
        return state;
    }

    Snapshot a_;
    Snapshot b_;
    int killed_ = 0;
};

TEST_F(RestoreKillTest, AfterAKillAtAnyMomentBothFilesAreAsBeforeOrBothAsAfter) {
    QRandomGenerator random(Seed);
    const qint64 whole = Restore(a_, -1);
    ASSERT_EQ(State(), "a");
    QString before = "a";
    int changed = 0;
    for (int i = 0; i < Kills() && !HasFailure(); ++i) {
        const Snapshot& wanted = before == "a" ? b_ : a_;
        const int atRandom = random.bounded(int(whole * 5 / 4) + 1);
        Restore(wanted, i == 0 ? 0 : i == 1 ? -1 : atRandom);
        const QString after = State();
        EXPECT_TRUE(after == before || after == wanted.reason) << after.toStdString();
        changed += after != before ? 1 : 0;
        before = after;
    }
    EXPECT_GT(killed_, 0);
    EXPECT_GT(changed, 0);
    std::cout << Kills() << " restores of " << whole << " ms, " << killed_ << " killed, " << changed
              << " had been done\n";
    for (const Snapshot& snapshot : Snapshots(RecordsFolder(Folder())).All())
        EXPECT_NO_THROW(snapshot.RequireSound()) << snapshot.path.toStdString();
}
