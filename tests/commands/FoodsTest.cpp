#include "CommandTest.h"

#include "commands/Session.h"
#include "records/RecordsLock.h"
#include "support/Places.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

class FoodsTest : public CommandTest {
protected:
    const QString Release = Places::Source("/tests/tools/release");

    Run Import(const QStringList& more = {}) const {
        return Command(QStringList{"foods", "import", Release} + more);
    }
};

TEST_F(FoodsTest, ImportTellsWhatItAdded) {
    const Run first = Import({"--only", "words=butter"});
    EXPECT_EQ(first.code, Done) << first.error.toStdString();
    EXPECT_TRUE(first.out.contains("foods added")) << first.out.toStdString();
    EXPECT_TRUE(Import({"--only", "words=butter"}).out.startsWith("0 foods added"));
    EXPECT_EQ(Command({"search", "butter", "salted"}).code, Done);
}

TEST_F(FoodsTest, ImportPrintsFactsAsJson) {
    const Run run = Import({"--json", "--dry-run"});
    const QJsonObject facts = QJsonDocument::fromJson(run.out.toUtf8()).object();
    EXPECT_GT(facts["added"].toInt(), 10);
    EXPECT_EQ(facts["unchanged"], 0);
    EXPECT_TRUE(facts["refused"].isArray());
}

TEST_F(FoodsTest, RestrictionsCanBeRepeated) {
    const auto added = [&](const QStringList& only) {
        const Run run = Import(QStringList{"--dry-run", "--json"} + only);
        return QJsonDocument::fromJson(run.out.toUtf8()).object()["added"].toInt();
    };
    EXPECT_EQ(added({"--only", "words=butter, salted", "--only", "words=egg, whole"}),
              added({"--only", "words=butter, salted"}) + added({"--only", "words=egg, whole"}));
    EXPECT_GT(added({"--only", "words=egg, whole"}), 0);
}

TEST_F(FoodsTest, ADryRunChangesNothing) {
    EXPECT_TRUE(Import({"--dry-run"}).out.startsWith("It would be: "));
    EXPECT_FALSE(Import({"--only", "words=butter"}).out.startsWith("0 foods added"));
}

TEST_F(FoodsTest, RefusedFoodsAreListedAndEndWithFound) {
    QTemporaryDir folder;
    for (const char* file : {"/ABBREV.txt", "/FOOD_DES.txt", "/WEIGHT.txt"})
        QFile::copy(Release + file, folder.path() + file);
    QFile values(folder.filePath("ABBREV.txt"));
    ASSERT_TRUE(values.open(QIODevice::Append));
    values.write("~99999~" + QByteArray(50, '^') + "\r\n");
    values.close();
    const Run run = Command({"foods", "import", folder.path()});
    EXPECT_EQ(run.code, Found);
    EXPECT_TRUE(run.error.contains("99999 was refused: it has no description"))
        << run.error.toStdString();
    EXPECT_EQ(
        Command({"foods", "import", folder.path(), "--rejects", folder.filePath("r.csv")}).error,
        "");
    QFile rejects(folder.filePath("r.csv"));
    ASSERT_TRUE(rejects.open(QIODevice::ReadOnly));
    EXPECT_TRUE(rejects.readAll().contains("99999,it has no description\r\n"));
}

TEST_F(FoodsTest, AListOfRefusedFoodsThatCannotBeWrittenChangesNothing) {
    const QStringList butter{"--only", "words=butter"};
    EXPECT_EQ(Import(butter + QStringList{"--rejects", Folder() + "/no/such/r.csv"}).code, Cannot);
    EXPECT_FALSE(Import(butter).out.startsWith("0 foods added"));
}

TEST_F(FoodsTest, AnUnknownRestrictionIsAUsageError) {
    const Run run = Import({"--only", "colour=green"});
    EXPECT_EQ(run.code, Usage);
    EXPECT_TRUE(run.error.contains("type=sr|foundation|survey|branded")) << run.error.toStdString();
    EXPECT_EQ(Import({"--only", "type=meat"}).code, Usage);
    EXPECT_EQ(Command({"foods", "import"}).code, Usage);
    EXPECT_EQ(Command({"foods"}).code, Usage);
}

TEST_F(FoodsTest, AFolderWithoutFoodsSaysWhatToDo) {
    const Run run = Command({"foods", "import", Folder()});
    EXPECT_EQ(run.code, Cannot);
    EXPECT_TRUE(run.error.contains("Unpack the download first")) << run.error.toStdString();
}

TEST_F(FoodsTest, WhileTheWindowIsOpenNothingIsImported) {
    const RecordsLock window{RecordsFolder(Folder())};
    const Run run = Import();
    EXPECT_EQ(run.code, Cannot);
    EXPECT_TRUE(run.error.contains("Halvane is open on these records")) << run.error.toStdString();
    EXPECT_EQ(Import({"--dry-run", "--only", "words=butter"}).code, Done);
}

TEST_F(FoodsTest, ShowsAnExampleInItsHelp) {
    EXPECT_TRUE(Command({"foods", "import", "--help"}).out.contains("Example: halvane-data foods"));
}
