#include "CommandTest.h"

#include "commands/Program.h"
#include "commands/Session.h"
#include "records/RecordsLock.h"
#include "support/Places.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <fcntl.h>
#include <unistd.h>

#include <sstream>

class RecipeCommandsTest : public CommandTest {
protected:
    void SetUp() override {
        CommandTest::SetUp();
        QFile file(Soup);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(R"({"@type": "Recipe", "name": "Soup", "recipeYield": "2",
            "recipeIngredient": ["1 cup lentils", "1 onion"], "recipeInstructions": "Boil."})");
    }
    Run Import(const QStringList& more = {}) const { return Command(ImportSoup + more); }
    const QString Soup = Folder() + "/soup.json";
    const QStringList ImportSoup{"recipes", "import", Soup};
};

TEST_F(RecipeCommandsTest, ImportShowsTheFoodsAndAsksForADecision) {
    const Run run = Import();
    EXPECT_EQ(run.code, Found);
    EXPECT_TRUE(run.out.contains("20704:A:1, Lentils, raw: ")) << run.out.toStdString();
    EXPECT_TRUE(run.out.contains("its servings cannot express this amount"));
    EXPECT_TRUE(run.error.contains("Nothing was changed.")) << run.error.toStdString();
    EXPECT_EQ(Command({"search", "soup", "--json"}).out.count("\"recipe\""), 0);
}

TEST_F(RecipeCommandsTest, ImportTakesWhatIsAcceptedOrChosen) {
    const Run run = Import({"--accept", "--choose", "1.2=19122:A:0.5"});
    EXPECT_EQ(run.code, Done) << run.error.toStdString();
    EXPECT_TRUE(run.out.endsWith("1 recipe added.\n")) << run.out.toStdString();
    EXPECT_TRUE(
        Command({"recipes", "export", "-", "--format", "markdown"}).out.contains("Onions, raw"));
}

TEST_F(RecipeCommandsTest, APersonChoosesAFoodForEachLine) {
    const Run run = Command(ImportSoup, "1\n\n");
    EXPECT_EQ(run.code, Done) << run.error.toStdString();
    EXPECT_TRUE(run.error.contains("\nSoup, line 1.1: 1 cup lentils\n  1  1 x 1 cup, Lentils, raw: "
                                   "678 kcal\n  2  "))
        << run.error.toStdString();
    EXPECT_TRUE(run.error.contains("\nSoup, line 1.2: 1 onion\n")) << run.error.toStdString();
    EXPECT_TRUE(run.out.endsWith("1 recipe added.\n")) << run.out.toStdString();
    const QString written = Command({"recipes", "export", "-", "--format", "markdown"}).out;
    EXPECT_TRUE(written.contains("Lentils, raw")) << written.toStdString();
    EXPECT_TRUE(written.contains("- 1 onion")) << "it stays as text";
}

TEST_F(RecipeCommandsTest, APersonNamesAnotherFoodByItsKey) {
    const Run run = Command(ImportSoup, "\n19122:A:0.5\n");
    EXPECT_EQ(run.code, Done) << run.error.toStdString();
    EXPECT_FALSE(Command({"recipes", "export", "-"}).out.contains("Lentils, raw"));
}

TEST_F(RecipeCommandsTest, AnAnswerThatIsNoneIsAskedForAgain) {
    const Run run = Command(ImportSoup, "99\n0\nlentils\n1\n\n");
    EXPECT_EQ(run.code, Done);
    EXPECT_EQ(run.error.count("That is not one of the answers."), 3);
}

TEST_F(RecipeCommandsTest, WhoStopsOrEndsTheInputChangesNothing) {
    for (const char* answers : {"1\nq\n", "1\n", ""}) {
        const Run run = Command(ImportSoup, answers);
        EXPECT_EQ(run.code, Found);
        EXPECT_TRUE(run.error.endsWith("halvane-data: Stopped. Nothing was changed.\n"));
        EXPECT_EQ(run.out, "");
    }
    EXPECT_EQ(Command({"search", "soup", "--json"}).out.count("\"recipe\""), 0);
}

TEST_F(RecipeCommandsTest, WhoHasDecidedIsNotAsked) {
    for (const char* said : {"--dry-run", "--json", "--accept"})
        EXPECT_FALSE(Command(ImportSoup + QStringList{said}, "q\n").error.contains("q stops"))
            << said;
}

/// The program itself, with a terminal of its own as standard input.
TEST_F(RecipeCommandsTest, AtATerminalItAsks) {
    const int keyboard = posix_openpt(O_RDWR | O_NOCTTY);
    ASSERT_TRUE(keyboard >= 0 && grantpt(keyboard) == 0 && unlockpt(keyboard) == 0);
    ASSERT_EQ(write(keyboard, "1\n\n", 3), 3);
    QProcess process;
    process.setStandardInputFile(QString::fromLocal8Bit(ptsname(keyboard)));
    process.start(Places::Build(QStringLiteral("/src/halvane-data")),
                  ImportSoup + QStringList{"--folder", Folder()});
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), Done) << process.readAllStandardError().constData();
    EXPECT_TRUE(process.readAllStandardOutput().endsWith("1 recipe added.\n"));
    close(keyboard);
}

TEST_F(RecipeCommandsTest, ImportPrintsFactsAsJson) {
    const QJsonObject facts =
        QJsonDocument::fromJson(Import({"--json", "--accept"}).out.toUtf8()).object();
    EXPECT_EQ(facts["added"], 1);
    EXPECT_EQ(facts["recipes"][0]["lines"][0]["food"], 20704);
    EXPECT_EQ(facts["recipes"][0]["lines"][0]["taken"], true);
    EXPECT_EQ(facts["recipes"][0]["lines"][1]["taken"], false);
}

TEST_F(RecipeCommandsTest, ExportWritesAFileThatComesBack) {
    Import({"--accept"});
    const QString file = Folder() + "/out.md";
    EXPECT_EQ(Command({"recipes", "export", file, "soup"}).out, "1 recipe exported.\n");
    EXPECT_TRUE(Command({"recipes", "import", file}).out.endsWith("0 recipes added.\n"));
}

TEST_F(RecipeCommandsTest, ExportOfAnUnknownNameFails) {
    const Run run = Command({"recipes", "export", "-", "nothing"});
    EXPECT_EQ(run.code, Cannot);
    EXPECT_TRUE(run.error.contains("There is no recipe \"nothing\".")) << run.error.toStdString();
}

TEST_F(RecipeCommandsTest, AFileThatCannotBeWrittenIsTold) {
    const Run run = Command({"recipes", "export", Folder() + "/no/such/out.md"});
    EXPECT_EQ(run.code, Cannot);
    EXPECT_TRUE(run.error.contains("out.md")) << run.error.toStdString();
}

TEST_F(RecipeCommandsTest, ExportFailsIfStandardOutputCannotBeWritten) {
    std::ostringstream full;
    full.setstate(std::ios::badbit);
    std::ostringstream error;
    EXPECT_EQ(RunCommand({"halvane-data", "recipes", "export", "-"}, full, error), Cannot);
    EXPECT_EQ(error.str(), "halvane-data: Standard output cannot be written.\n");
}

TEST_F(RecipeCommandsTest, WrongOptionsAreUsageErrors) {
    EXPECT_EQ(Import({"--choose", "first"}).code, Usage);
    EXPECT_EQ(Command({"recipes"}).code, Usage);
    EXPECT_EQ(Command({"recipes", "import"}).code, Usage);
    EXPECT_EQ(Command({"recipes", "export", "-", "--format", "pdf"}).code, Usage);
}

TEST_F(RecipeCommandsTest, WhileTheWindowIsOpenNothingIsImportedButFoodsAreShown) {
    const RecordsLock window{RecordsFolder(Folder())};
    EXPECT_EQ(Import({"--accept"}).code, Cannot);
    EXPECT_EQ(Import({"--accept", "--dry-run"}).code, Done);
    EXPECT_EQ(Command({"recipes", "export", "-"}).code, Done);
}

TEST_F(RecipeCommandsTest, EachHasAnExampleInItsHelp) {
    for (const char* one : {"import", "export"})
        EXPECT_TRUE(
            Command({"recipes", one, "--help"}).out.contains("Example: halvane-data recipes"));
}
