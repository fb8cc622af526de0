#include "support/HalvaneTest.h"

#include "model/User.h"
#include "runtime/AppPath.h"
#include "store/Connection.h"

#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QSet>
#include <QSettings>

namespace {
constexpr int Kills = 200;
constexpr unsigned Seed = 20261121;

struct Acknowledged {
    QSet<int> foods;
    QSet<int> weights;
    int next = 1;
};

void TakeDown(const QByteArray& output, Acknowledged& acknowledged) {
    for (const QByteArray& line : output.split('\n')) {
        const QList<QByteArray> words = line.split(' ');
        if (words.size() != 2)
            continue;
        (words[0] == "food" ? acknowledged.foods : acknowledged.weights).insert(words[1].toInt());
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
        worker.start(QStringLiteral(HALVANE_BUILD_DIR "/tests/log_worker"),
                     {Folder(), QString::number(acknowledged.next)});
        ASSERT_TRUE(worker.waitForReadyRead(30000)) << "the next start did not log";
        worker.waitForFinished(random_.bounded(40));
        worker.kill();
        worker.waitForFinished();
        TakeDown(worker.readAllStandardOutput(), acknowledged);
        // A row may be committed and the worker killed before it could say so.
        acknowledged.next += 1;
    }

    QSet<int> Numbers(const QString& sql) {
        QSet<int> found;
        for (const QVariantList& row : Rows(UserDB(), sql))
            found.insert(row.first().toInt());
        return found;
    }

    QRandomGenerator random_{Seed};
};

TEST_F(KillTest, EveryAcknowledgedFoodAndWeightSurvivesTwoHundredKills) {
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
    EXPECT_GE(acknowledged.foods.size(), Kills);
    EXPECT_TRUE(Numbers(QStringLiteral("SELECT QTY FROM USER_FOODS")).contains(acknowledged.foods));
    EXPECT_TRUE(
        Numbers(QStringLiteral("SELECT Weight FROM USER_WEIGHTS")).contains(acknowledged.weights));
    EXPECT_EQ(Users(QStringLiteral(
                  "SELECT count(*) FROM USER_FOODS WHERE FoodName IS NULL OR UDate IS NULL "
                  "OR QTY IS NULL OR Calories IS NULL")),
              0);
    EXPECT_EQ(Users(QStringLiteral(
                  "SELECT count(*) FROM USER_WEIGHTS WHERE UDate IS NULL OR Weight IS NULL")),
              0);
}
