#include "support/HalvaneTest.h"

#include "model/User.h"
#include "runtime/AppPath.h"
#include "store/Connection.h"
#include "support/Places.h"

#include <QFile>
#include <QHash>
#include <QProcess>
#include <QRandomGenerator>
#include <QSet>
#include <QSettings>

namespace {
constexpr int Kills = 200;
constexpr unsigned Seed = 20261121;

struct Acknowledged {
    QHash<QByteArray, QSet<int>> numbers; ///< by kind
    int next = 1;
};

void TakeDown(const QByteArray& output, Acknowledged& acknowledged) {
    for (const QByteArray& line : output.split('\n')) {
        const QList<QByteArray> words = line.split(' ');
        if (words.size() != 2)
            continue;
        acknowledged.numbers[words[0]].insert(words[1].toInt());
        acknowledged.next = std::max(acknowledged.next, words[1].toInt() + 1);
    }
}
} // namespace

class KillTest : public HalvaneTest {
protected:
    /// Lets the worker log until it has acknowledged a row, then for a random moment more, and
    /// kills it.
    void LogUntilKilled(Acknowledged& acknowledged) {
        QProcess worker;
        worker.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        worker.start(Places::Build(QStringLiteral("/tests/log_worker")),
                     {Folder(), QString::number(acknowledged.next)});
        ASSERT_TRUE(worker.waitForReadyRead(30000)) << "the next start did not log";
        worker.waitForFinished(random_.bounded(40));
        worker.kill();
        worker.waitForFinished();
        TakeDown(worker.readAllStandardOutput(), acknowledged);
        // A row may be committed and the worker killed before it could say so.
        acknowledged.next += 1;
    }

    QSet<int> Numbers(Connection& connection, const QString& sql) {
        QSet<int> found;
        for (const QVariantList& row : Rows(connection, sql))
            found.insert(row.first().toInt());
        return found;
    }

    QRandomGenerator random_{Seed};
};

TEST_F(KillTest, WhatWasAcknowledgedSurvivesTwoHundredKillsAndNothingIsHalfWritten) {
    OpenDatabases();
    AddUser();
    CloseDatabases();
    Acknowledged acknowledged;
    for (int i = 0; i < Kills && !HasFatalFailure(); ++i)
        LogUntilKilled(acknowledged);

    UserDB().Open(FileBeside(QStringLiteral("users.mdb")), DatabaseKind::Users);
    FoodDB().Open(FileBeside(QStringLiteral("foods.mdb")), DatabaseKind::Foods);
    EXPECT_EQ(Users(QStringLiteral("PRAGMA integrity_check")).toString(), QStringLiteral("ok"));
    EXPECT_EQ(Foods(QStringLiteral("PRAGMA integrity_check")).toString(), QStringLiteral("ok"));
    EXPECT_GE(acknowledged.numbers["food"].size(), Kills);
    EXPECT_GT(acknowledged.numbers["custom"].size(), 0);
    EXPECT_TRUE(Numbers(UserDB(), QStringLiteral("SELECT QTY FROM USER_FOODS"))
                    .contains(acknowledged.numbers["food"]));
    EXPECT_TRUE(Numbers(UserDB(), QStringLiteral("SELECT Weight FROM USER_WEIGHTS"))
                    .contains(acknowledged.numbers["weight"]));
    EXPECT_TRUE(Numbers(FoodDB(), QStringLiteral("SELECT Calories FROM FOODS WHERE ID > 23508"))
                    .contains(acknowledged.numbers["custom"]));
    EXPECT_EQ(Foods(QStringLiteral("SELECT count(*) FROM FOODS WHERE ID > 23508 AND "
                                   "FoodName IS NOT NULL AND (Serv_GM_WT_A IS NOT 100 OR "
                                   "FoodName IS NOT CAST(CAST(Calories AS INTEGER) AS TEXT))")),
              0);
    EXPECT_EQ(
        Foods(QStringLiteral("SELECT count(*) FROM FOODS WHERE ID > 23508 AND FoodName IS NULL AND "
                             "coalesce(Calories, Serv_GM_WT_A, Serv_Desc_A) IS NOT NULL")),
        0)
        << "a key that was given out has nothing beside it before all of it is there";
    EXPECT_EQ(Users(QStringLiteral(
                  "SELECT count(*) FROM USER_FOODS WHERE FoodName IS NULL OR UDate IS NULL "
                  "OR QTY IS NULL OR Calories IS NULL")),
              0);
    EXPECT_EQ(Users(QStringLiteral(
                  "SELECT count(*) FROM USER_WEIGHTS WHERE UDate IS NULL OR Weight IS NULL")),
              0);
}
