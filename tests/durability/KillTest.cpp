#include "support/HalvaneTest.h"

#include "model/User.h"
#include "runtime/AppPath.h"
#include "store/Connection.h"
#include "support/Places.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QProcess>
#include <QRandomGenerator>
#include <QSet>

#include <iostream>

namespace {
constexpr unsigned Seed = 20261121;
constexpr int KillsAFolder = 25;
constexpr int MostRows = 12;
constexpr int MostMilliseconds = 30;
constexpr const char* Files[] = {"users.mdb", "foods.mdb"};

/// The environment variable HALVANE_KILLS asks for more kills than an ordinary run.
int Kills() {
    const int asked = qEnvironmentVariableIntValue("HALVANE_KILLS");
    return asked > 0 ? asked : KillsAFolder;
}

/// Where the number of a saved row is stored, for each kind of row.
struct Kind {
    const char* name;
    Connection& (*database)();
    const char* numbers;
};
constexpr Kind Kinds[] = {
    {"food", UserDB, "SELECT QTY FROM USER_FOODS"},
    {"weight", UserDB, "SELECT Weight FROM USER_WEIGHTS"},
    {"custom", FoodDB, "SELECT Calories FROM FOODS WHERE ID > 23508"},
    {"recipe", UserDB,
     "SELECT CAST(RecipeName AS INTEGER) FROM Recipes WHERE ServingName = '1 cup'"},
    {"ingredient", UserDB, "SELECT QTY FROM Ingredients"},
};

/// Half-written rows: no kill may leave any.
struct HalfWritten {
    Connection& (*database)();
    const char* rows;
};
constexpr HalfWritten HalfWrittenRows[] = {
    {FoodDB,
     "SELECT ID FROM FOODS WHERE ID > 23508 AND FoodName IS NOT NULL AND "
     "(Serv_GM_WT_A IS NOT 100 OR FoodName IS NOT CAST(CAST(Calories AS INTEGER) AS TEXT))"},
    {FoodDB, "SELECT ID FROM FOODS WHERE ID > 23508 AND FoodName IS NULL AND "
             "coalesce(Calories, Serv_GM_WT_A, Serv_Desc_A) IS NOT NULL"},
    {UserDB, "SELECT RecID FROM USER_FOODS WHERE FoodName IS NULL OR UDate IS NULL OR QTY IS NULL "
             "OR Calories IS NULL"},
    {UserDB, "SELECT UID FROM USER_WEIGHTS WHERE UDate IS NULL OR Weight IS NULL"},
    {UserDB, "SELECT ID FROM Ingredients WHERE FoodName IS NULL OR RecipeID IS NULL OR QTY IS NULL "
             "OR Calories IS NULL"},
};

struct Acknowledged {
    QHash<QByteArray, QSet<int>> numbers; ///< by kind
    int next = 1;

    void TakeDown(const QByteArray& output) {
        for (const QByteArray& line : output.split('\n')) {
            const QList<QByteArray> words = line.split(' ');
            if (words.size() != 2)
                continue;
            numbers[words[0]].insert(words[1].toInt());
            next = std::max(next, words[1].toInt() + 1);
        }
        next += 1; // the last row may be saved although the kill came before its number was printed
    }
};

void CopyBoth(const QString& from, const QString& to) {
    for (const char* file : Files)
        ASSERT_TRUE(QFile::copy(from + u'/' + file, to + u'/' + file)) << file;
}

void OpenBoth(const QString& folder) {
    UserDB().Open(folder + u'/' + Files[0], DatabaseKind::Users);
    FoodDB().Open(folder + u'/' + Files[1], DatabaseKind::Foods);
}
} // namespace

class KillTest : public HalvaneTest {
protected:
    /// Kills the worker at a random moment after it has printed some numbers.
    void WorkUntilKilled(const QString& folder, Acknowledged& acknowledged) {
        QProcess worker;
        worker.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        worker.start(Places::Build(QStringLiteral("/tests/log_worker")),
                     {folder, QString::number(acknowledged.next)});
        QByteArray output;
        for (int rows = random_.bounded(1, MostRows); output.count('\n') < rows;) {
            ASSERT_TRUE(worker.waitForReadyRead(30000)) << "the worker stands still";
            output += worker.readAllStandardOutput();
        }
        worker.waitForFinished(random_.bounded(MostMilliseconds));
        worker.kill();
        worker.waitForFinished();
        acknowledged.TakeDown(output + worker.readAllStandardOutput());
    }

    /// True if no journal is left: the kill did not come in the middle of a write.
    bool StandsAlone(const QString& folder) {
        const QStringList files = QDir(folder).entryList(QDir::Files, QDir::Name);
        const QStringList known{"foods.mdb", "foods.mdb-journal", "users.mdb", "users.mdb-journal"};
        for (const QString& file : files)
            EXPECT_TRUE(known.contains(file)) << file.toStdString();
        return files == QStringList{"foods.mdb", "users.mdb"};
    }

    /// Opens the files as the next start does, which takes back the unfinished write.
    void BringInOrder(const QString& folder) {
        OpenBoth(folder);
        CloseDatabases();
        EXPECT_TRUE(StandsAlone(folder));
        ++inTheMiddleOfAWrite_;
    }

    void ExpectACopyToHoldAll(const QString& folder, const Acknowledged& acknowledged) {
        const QTemporaryDir copy;
        CopyBoth(folder, copy.path());
        OpenBoth(copy.path());
        EXPECT_EQ(Users(QStringLiteral("PRAGMA integrity_check")), QStringLiteral("ok"));
        EXPECT_EQ(Foods(QStringLiteral("PRAGMA integrity_check")), QStringLiteral("ok"));
        for (const Kind& kind : Kinds)
            EXPECT_TRUE(Numbers(kind).contains(acknowledged.numbers[kind.name])) << kind.name;
        for (const HalfWritten& half : HalfWrittenRows)
            EXPECT_TRUE(Rows(half.database(), QLatin1String(half.rows)).isEmpty()) << half.rows;
        CloseDatabases();
    }

    QSet<int> Numbers(const Kind& kind) {
        QSet<int> found;
        for (const QVariantList& row : Rows(kind.database(), QLatin1String(kind.numbers)))
            found.insert(row.first().toInt());
        return found;
    }

    void KillInAFolder(int kills) {
        const QTemporaryDir folder;
        CopyBoth(Folder(), folder.path());
        Acknowledged acknowledged;
        for (int i = 0; i < kills && !HasFailure(); ++i) {
            WorkUntilKilled(folder.path(), acknowledged);
            if (!StandsAlone(folder.path()))
                BringInOrder(folder.path());
            ExpectACopyToHoldAll(folder.path(), acknowledged);
        }
        for (const Kind& kind : Kinds)
            total_[kind.name] += acknowledged.numbers[kind.name].size();
    }

    QRandomGenerator random_{qEnvironmentVariableIntValue("HALVANE_KILL_SEED") + Seed};
    QHash<QByteArray, qsizetype> total_;
    int inTheMiddleOfAWrite_ = 0;
};

TEST_F(KillTest, ACopyOfTheTwoFilesAfterEachKillHoldsEveryPrintedNumber) {
    OpenDatabases();
    AddUser();
    CloseDatabases();
    for (int left = Kills(); left > 0 && !HasFailure(); left -= KillsAFolder)
        KillInAFolder(std::min(left, KillsAFolder));
    std::cout << Kills() << " kills, " << inTheMiddleOfAWrite_ << " in the middle of a write;";
    for (const Kind& kind : Kinds) {
        EXPECT_GT(total_[kind.name], 0) << kind.name;
        std::cout << ' ' << kind.name << ' ' << total_[kind.name];
    }
    std::cout << " acknowledged\n";
}
