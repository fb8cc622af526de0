#include "CommandTest.h"

#include "commands/Session.h"
#include "intake/DayLog.h"
#include "records/RecordsChange.h"
#include "records/RecordsLock.h"
#include "records/Snapshots.h"
#include "records/WeighIn.h"
#include "store/Connection.h"
#include "support/Places.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <SQLiteCpp/SQLiteCpp.h>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

/// The commands backup, backups, restore and undo.
class KeepTest : public CommandTest {
protected:
    void SetUp() override {
        CommandTest::SetUp();
        UserDB().Open(Records().Users(), DatabaseKind::Users);
        AddUser();
        CloseDatabases();
    }
    RecordsFolder Records() const { return RecordsFolder(Folder()); }
    /// Constant, so that an index reads.
    const QJsonObject Json(const QStringList& arguments) const {
        return QJsonDocument::fromJson(Command(arguments + QStringList{"--json"}).out.toUtf8())
            .object();
    }
    void Weigh(int weight) const { WeighIn::Change(Records(), weight); }
    double Weight() const { return WeighIn::Kept(Records()); }
    /// As a process of its own, which `prepare` changes before it starts.
    static int Process(const QStringList& arguments, const std::function<void()>& prepare,
                       QString* said) {
        QProcess process;
        process.setChildProcessModifier(prepare);
        process.start(Places::Build(QStringLiteral("/src/halvane-data")), arguments);
        EXPECT_TRUE(process.waitForFinished());
        *said = QString::fromUtf8(process.readAllStandardError());
        return process.exitCode();
    }
    /// Root may write everywhere.
    static void HandOver(const QStringList& paths) {
        if (geteuid() != 0)
            return;
        for (const QString& path : paths)
            ASSERT_EQ(chown(QFile::encodeName(path), Nobody, Nobody), 0);
    }
    static constexpr uid_t Nobody = 65534;
};

TEST_F(KeepTest, BackupTellsWhereItIsAndWhatItHolds) {
    const Run run = Command({"backup"});
    EXPECT_EQ(run.code, Done) << run.error.toStdString();
    EXPECT_TRUE(run.out.startsWith("Kept in " + Snapshots(Records()).Place()))
        << run.out.toStdString();
    EXPECT_TRUE(run.out.endsWith("1 profile, 0 logged foods, 0 weights, 0 own foods, 0 recipes, "
                                 "0 ingredients.\n"))
        << run.out.toStdString();
}

TEST_F(KeepTest, BackupGoesToAnyFolderAndComesBackFromThere) {
    Weigh(150);
    const QString to = Folder() + "/stick/copies";
    const QString path = Json({"backup", to})["path"].toString();
    EXPECT_TRUE(path.startsWith(to + '/')) << path.toStdString();
    EXPECT_EQ(QDir(to).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(), 1);
    Weigh(160);
    EXPECT_EQ(Command({"restore", path}).code, Done);
    EXPECT_EQ(Weight(), 150);
}

TEST_F(KeepTest, BackupWorksWhileTheWindowIsOpen) {
    const RecordsLock window(Records());
    EXPECT_EQ(Command({"backup"}).code, Done);
    EXPECT_EQ(Command({"backups"}).code, Done);
}

TEST_F(KeepTest, RestoreAndUndoRefuseWhileTheWindowIsOpen) {
    Weigh(150);
    const RecordsLock window(Records());
    for (const QStringList& command : {QStringList{"restore", "1"}, QStringList{"undo"}}) {
        const Run run = Command(command);
        EXPECT_EQ(run.code, Cannot);
        EXPECT_EQ(run.error, "halvane-data: Halvane is open on these records. Close its window "
                             "first.\n");
    }
}

TEST_F(KeepTest, BackupsListsTheNewestFirst) {
    EXPECT_TRUE(Command({"backups"}).out.startsWith("There is no snapshot in "));
    Command({"backup"});
    Weigh(150);
    const QStringList lines = Command({"backups"}).out.split('\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 3);
    EXPECT_TRUE(lines[1].startsWith("   1  ")) << lines[1].toStdString();
    EXPECT_TRUE(lines[1].contains("weigh 150: 1 profile")) << lines[1].toStdString();
    EXPECT_TRUE(lines[2].contains("manual")) << lines[2].toStdString();
    const QJsonArray all = Json({"backups"})["snapshots"].toArray();
    ASSERT_EQ(all.size(), 2);
    EXPECT_EQ(all[0]["kind"], "change");
    EXPECT_EQ(all[1]["number"], 2);
    EXPECT_EQ(all[1]["counts"]["profiles"], 1);
    EXPECT_GT(all[1]["bytes"].toInteger(), 0);
}

TEST_F(KeepTest, RestoreBringsBackAndTellsHowToTakeThatBack) {
    Command({"backup"});
    Weigh(150);
    const Run run = Command({"restore", "2"});
    EXPECT_EQ(run.code, Done) << run.error.toStdString();
    EXPECT_TRUE(run.out.startsWith("Brought back the snapshot of ")) << run.out.toStdString();
    EXPECT_TRUE(run.out.contains("`restore 1` brings that back.")) << run.out.toStdString();
    EXPECT_EQ(Weight(), 0);
    EXPECT_EQ(Json({"restore", "1"})["replaced"]["kind"], "replaced");
    EXPECT_EQ(Weight(), 150);
}

TEST_F(KeepTest, RestoreLatestBringsBackTheNewest) {
    Weigh(150);
    Command({"backup"});
    Weigh(160);
    Weigh(170);
    EXPECT_EQ(Command({"restore", "latest"}).code, Done);
    EXPECT_EQ(Weight(), 160);
}

TEST_F(KeepTest, RestoreOfWhatIsNotThereSaysHowToFindOne) {
    const Run run = Command({"restore", "7"});
    EXPECT_EQ(run.code, Cannot);
    EXPECT_TRUE(run.error.contains("There is no snapshot \"7\"")) << run.error.toStdString();
    EXPECT_EQ(Command({"restore"}).code, Usage);
}

TEST_F(KeepTest, UndoTakesBackOneChangeAfterTheOther) {
    Weigh(150);
    Weigh(160);
    const Run run = Command({"undo"});
    EXPECT_EQ(run.code, Done) << run.error.toStdString();
    EXPECT_EQ(run.out, "Took back \"weigh 160\". `restore 1` brings it back.\n");
    EXPECT_EQ(Weight(), 150);
    EXPECT_EQ(Json({"undo"})["change"], "weigh 150");
    EXPECT_EQ(Weight(), 0);
    const Run third = Command({"undo"});
    EXPECT_EQ(third.code, Cannot);
    EXPECT_EQ(third.error, "halvane-data: There is no change of a command to take back.\n");
    EXPECT_EQ(Command({"restore", "2"}).code, Done);
    EXPECT_EQ(Weight(), 160);
}

TEST_F(KeepTest, AnUndoWhoseSnapshotCannotBeRemovedHasTakenTheChangeBack) {
    Weigh(150);
    const QString place = Snapshots(Records()).Place();
    const Snapshot change = Snapshots(Records()).All().first();
    for (const QString& name : QDir(change.path).entryList(QDir::Files))
        QFile::setPermissions(change.path + '/' + name, QFile::Permissions(0x7444));
    HandOver({Folder(), Records().Users(), Records().Foods(), place + "/folder.txt"});
    ASSERT_EQ(chmod(QFile::encodeName(place), 01777), 0); // each removes only what is his
    const auto prepare = [] {
        if (geteuid() == 0 && (setgid(Nobody) != 0 || setuid(Nobody) != 0))
            _exit(99);
    };
    QString said;
    EXPECT_EQ(Process({"undo", "--folder", Folder()}, prepare, &said), Done) << said.toStdString();
    EXPECT_EQ(Weight(), 0);
}

TEST_F(KeepTest, EachHelpShowsAnExample) {
    for (const QString command : {"backup", "backups", "check", "restore", "undo"})
        EXPECT_TRUE(Command({command, "--help"}).out.contains("Example: halvane-data " + command))
            << command.toStdString();
}

TEST_F(KeepTest, AFullDiskLeavesNoHalfSnapshotAndChangesNothing) {
    Command({"backup"});
    Weigh(150);
    UserDB().Open(Records().Users(), DatabaseKind::Users);
    UserDB().Raw().exec("UPDATE profiles SET UserName = 'Zoe'");
    CloseDatabases();
    const auto full = [] {
        signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{20'000, 20'000};
        setrlimit(RLIMIT_FSIZE, &limit);
    };
    const qsizetype before = Snapshots(Records()).All().size();
    for (const QStringList& command : {QStringList{"backup"}, QStringList{"restore", "2"}}) {
        QString said;
        EXPECT_EQ(Process(command + QStringList{"--folder", Folder()}, full, &said), Cannot);
        EXPECT_EQ(said.count('\n'), 1) << said.toStdString();
    }
    EXPECT_EQ(Snapshots(Records()).All().size(), before);
    EXPECT_EQ(Weight(), 150);
    EXPECT_FALSE(QDir(Folder()).entryList(QDir::Files).contains("users.mdb.new"));
}

TEST_F(KeepTest, AReadOnlyFolderCanBeBackedUpButNotRestored) {
    const QTemporaryDir data;
    HandOver({data.path(), Folder(), Records().Users(), Records().Foods()});
    QFile::setPermissions(Folder(), QFile::ReadOwner | QFile::ExeOwner);
    const auto prepare = [home = QFile::encodeName(data.path())] {
        setenv("XDG_DATA_HOME", home.constData(), 1);
        if (geteuid() == 0 && (setgid(Nobody) != 0 || setuid(Nobody) != 0))
            _exit(99);
    };
    QString said;
    EXPECT_EQ(Process({"backup", "--folder", Folder()}, prepare, &said), Done)
        << said.toStdString();
    EXPECT_EQ(Process({"restore", "1", "--folder", Folder()}, prepare, &said), Cannot);
    EXPECT_TRUE(said.contains("its folder must allow writing")) << said.toStdString();
    QFile::setPermissions(Folder(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

TEST_F(KeepTest, CheckOfSoundFilesEndsWithDone) {
    const Run run = Command({"check"});
    EXPECT_EQ(run.code, Done);
    EXPECT_TRUE(run.out.startsWith("Both files are sound: 1 profile, ")) << run.out.toStdString();
    EXPECT_EQ(Json({"check"})["sound"], true);
}

TEST_F(KeepTest, CheckEndsWithFoundUntilItIsRepaired) {
    UserDB().Open(Records().Users(), DatabaseKind::Users);
    UserDB().Raw().exec("INSERT INTO Ingredients (RecipeID) VALUES (9)");
    CloseDatabases();
    const Run run = Command({"check"});
    EXPECT_EQ(run.code, Found);
    EXPECT_EQ(run.out.count('\n'), 1) << run.out.toStdString();
    const QJsonObject facts = Json({"check"})["findings"][0].toObject();
    EXPECT_EQ(facts["where"], "Ingredients");
    EXPECT_EQ(facts["rows"], 1);
    EXPECT_EQ(facts["repairable"], true);
    const Run repaired = Command({"check", "--repair"});
    EXPECT_EQ(repaired.code, Done) << repaired.error.toStdString();
    EXPECT_TRUE(repaired.out.startsWith("Repaired: Ingredients: ")) << repaired.out.toStdString();
}
