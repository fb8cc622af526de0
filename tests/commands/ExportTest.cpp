#include "CommandTest.h"

#include "commands/Session.h"
#include "records/RecordsLock.h"
#include "records/Snapshots.h"
#include "store/Connection.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <SQLiteCpp/SQLiteCpp.h>

class ExportTest : public CommandTest {
protected:
    void SetUp() override {
        CommandTest::SetUp();
        SQLite::Database users(UsersFile(), SQLite::OPEN_READWRITE);
        users.exec("INSERT INTO profiles (UserName) VALUES ('Anna');"
                   "INSERT INTO USER_WEIGHTS VALUES (1, '2026-03-02', 150)");
    }
    std::string UsersFile() const { return QString(Folder() + "/users.mdb").toStdString(); }
    QString File() const { return Folder() + "/records.json"; }
    QByteArray Bytes(const QString& path) const {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
        return file.readAll();
    }
    void Put(const QString& path, const QByteArray& bytes) const {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    int Weights() const {
        SQLite::Database users(UsersFile(), SQLite::OPEN_READONLY);
        return users.execAndGet("SELECT count(*) FROM USER_WEIGHTS").getInt();
    }
};

TEST_F(ExportTest, WritesTheFileAndTellsWhatIsInIt) {
    const Run run = Command({"export", File()});
    EXPECT_EQ(run.code, Done) << run.error.toStdString();
    EXPECT_TRUE(run.out.endsWith(": 1 profile, 1 weight.\n")) << run.out.toStdString();
    EXPECT_TRUE(Bytes(File()).startsWith("{\"format\":\"halvane-records\""));
}

TEST_F(ExportTest, WritesToStandardOutputAlone) {
    Command({"export", File()});
    const Run run = Command({"export", "-"});
    EXPECT_EQ(run.code, Done);
    EXPECT_EQ(run.out.toUtf8(), Bytes(File()));
}

TEST_F(ExportTest, TellsItsFactsAsJson) {
    const Run run = Command({"export", "--json", File()});
    const QJsonObject facts = QJsonDocument::fromJson(run.out.toUtf8()).object();
    EXPECT_EQ(facts["file"], File());
    EXPECT_EQ(facts["exported"]["weights"], 1);
    EXPECT_EQ(facts["exported"]["log"], 0);
}

TEST_F(ExportTest, ReplacesAnEarlierExportButNoOtherFile) {
    EXPECT_EQ(Command({"export", File()}).code, Done);
    EXPECT_EQ(Command({"export", File()}).code, Done);
    Put(Folder() + "/letter.txt", "Dear Anna");
    const Run run = Command({"export", Folder() + "/letter.txt"});
    EXPECT_EQ(run.code, Cannot);
    EXPECT_TRUE(run.error.contains("is there already and is not an export"))
        << run.error.toStdString();
    EXPECT_EQ(Bytes(Folder() + "/letter.txt"), "Dear Anna");
    EXPECT_EQ(Command({"export", Folder() + "/users.mdb"}).code, Cannot);
}

TEST_F(ExportTest, WhereTheFileCannotBeWrittenItSaysSoAndLeavesNothing) {
    const QStringList before = QDir(Folder()).entryList();
    const Run run = Command({"export", Folder() + "/missing/records.json"});
    EXPECT_EQ(run.code, Cannot);
    EXPECT_TRUE(run.error.contains("missing/records.json cannot be written"))
        << run.error.toStdString();
    EXPECT_EQ(QDir(Folder()).entryList(), before);
}

TEST_F(ExportTest, ReadsWhileTheWindowIsOpen) {
    const RecordsLock window{RecordsFolder(Folder())};
    EXPECT_EQ(Command({"export", File()}).code, Done);
}

TEST_F(ExportTest, ShowsAnExampleInItsHelp) {
    EXPECT_TRUE(Command({"export", "--help"}).out.contains("Example: halvane-data export"));
    EXPECT_EQ(Command({"export"}).code, Usage);
}

class ImportTest : public ExportTest {
protected:
    void SetUp() override {
        ExportTest::SetUp();
        Command({"export", File()});
    }
    void Clear() const {
        SQLite::Database users(UsersFile(), SQLite::OPEN_READWRITE);
        users.exec("DELETE FROM profiles; DELETE FROM USER_WEIGHTS");
    }
};

TEST_F(ImportTest, TakesInWhatIsMissingAndTellsIt) {
    Clear();
    const Run run = Command({"import", File()});
    EXPECT_EQ(run.code, Done) << run.error.toStdString();
    EXPECT_EQ(run.out.toStdString(), "1 profile added, 0 there already\n"
                                     "1 weight added, 0 there already\n"
                                     "The settings are now those of the file.\n");
    EXPECT_EQ(Weights(), 1);
}

TEST_F(ImportTest, AddsNothingTheSecondTime) {
    const Run run = Command({"import", File()});
    EXPECT_EQ(run.code, Done);
    EXPECT_EQ(run.out.toStdString(), "0 profiles added, 1 there already\n"
                                     "0 weights added, 1 there already\n");
    EXPECT_EQ(Weights(), 1);
}

TEST_F(ImportTest, ADryRunChangesNothing) {
    Clear();
    const Run run = Command({"import", "--dry-run", File()});
    EXPECT_EQ(run.code, Done);
    EXPECT_TRUE(run.out.startsWith("1 profile would be added")) << run.out.toStdString();
    EXPECT_EQ(Weights(), 0);
}

TEST_F(ImportTest, ADryRunOnlyReadsSoItWorksWhileTheWindowIsOpen) {
    Clear();
    const RecordsFolder records(Folder());
    const RecordsLock window{records};
    const QStringList before = QDir(Folder()).entryList();
    const Run run = Command({"import", "--dry-run", File()});
    EXPECT_EQ(run.code, Done) << run.error.toStdString();
    EXPECT_TRUE(run.out.startsWith("1 profile would be added")) << run.out.toStdString();
    EXPECT_FALSE(QDir(Snapshots(records).Place()).exists()) << "no snapshot was made";
    EXPECT_EQ(QDir(Folder()).entryList(), before);
}

TEST_F(ImportTest, EndsWithFoundWhereRowsDiffer) {
    SQLite::Database users(UsersFile(), SQLite::OPEN_READWRITE);
    users.exec("UPDATE USER_WEIGHTS SET Weight = 140");
    const Run run = Command({"import", "--json", File()});
    EXPECT_EQ(run.code, Found);
    const QJsonObject facts = QJsonDocument::fromJson(run.out.toUtf8()).object();
    EXPECT_EQ(facts["kept"].toArray().size(), 1);
    EXPECT_EQ(facts["added"]["weights"], 0);
    EXPECT_EQ(facts["alreadyThere"]["profiles"], 1);
    EXPECT_EQ(facts["settingsTaken"], false);
}

TEST_F(ImportTest, AFileThatIsNoExportChangesNothing) {
    Put(Folder() + "/letter.txt", "Dear Anna");
    const QByteArray before = Bytes(Folder() + "/users.mdb");
    const Run run = Command({"import", Folder() + "/letter.txt"});
    EXPECT_EQ(run.code, Cannot);
    EXPECT_TRUE(run.error.contains("letter.txt, line 1, column 1: this is not JSON"))
        << run.error.toStdString();
    EXPECT_EQ(Bytes(Folder() + "/users.mdb"), before);
    EXPECT_EQ(Command({"import", Folder() + "/missing.json"}).code, Cannot);
    EXPECT_EQ(Command({"import", Folder()}).code, Cannot);
}

TEST_F(ImportTest, RefusesWhileTheWindowIsOpen) {
    Clear();
    const RecordsLock window{RecordsFolder(Folder())};
    const Run run = Command({"import", File()});
    EXPECT_EQ(run.code, Cannot);
    EXPECT_NE(run.error, "");
    EXPECT_EQ(Weights(), 0);
}

TEST_F(ImportTest, ShowsAnExampleInItsHelp) {
    EXPECT_TRUE(Command({"import", "--help"}).out.contains("Example: halvane-data import"));
}
