#include "CommandTest.h"

#include "commands/Session.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {
class ImportFromTest : public CommandTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        OpenDatabases();
        AddUser();
        CloseDatabases();
        Write("servings.csv", "Day,Group,Food Name,Amount,Energy (kcal)\n"
                              "2026-03-02,Lunch,Bread,2.00 slice,160\n"
                              "2026-03-02,Brunch,Bun,1.00 piece,90\n"
                              "yesterday,Lunch,Bread,1.00 slice,80\n");
    }
    QString Write(const QString& name, const QByteArray& content) const {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return Path(name);
    }
    QString Path(const QString& name) const { return Folder() + u'/' + name; }
    Run Import(const QStringList& options) const {
        return Command(QStringList{"import", "--from", "cronometer", Path("servings.csv")} +
                       options);
    }
};
} // namespace

TEST_F(ImportFromTest, TellsWhatWasAddedAndListsWhatWasNot) {
    const Run run = Import({});
    EXPECT_EQ(run.code, Found);
    EXPECT_EQ(run.error, "");
    EXPECT_TRUE(run.out.startsWith("2 entries of the log added, 0 there already\n"
                                   "1 row refused\n"
                                   "They are listed in " +
                                   Path("servings.csv.rejects.csv") + ".\n"))
        << run.out.toStdString();
    EXPECT_TRUE(QFile::exists(Path("servings.csv.rejects.csv")));
    EXPECT_TRUE(Import({}).out.startsWith("0 entries of the log added, 2 there already\n"));
}

TEST_F(ImportFromTest, ADryRunPrintsTheRowsAndAddsNothing) {
    const Run run = Import({"--dry-run"});
    EXPECT_TRUE(run.out.contains("2 entries of the log would be added, 0 there already\n"));
    EXPECT_TRUE(run.out.contains("servings.csv line 4, refused: \"yesterday\" is not a date.\n"))
        << run.out.toStdString();
    EXPECT_FALSE(QFile::exists(Path("servings.csv.rejects.csv")));
    EXPECT_TRUE(Import({}).out.startsWith("2 entries of the log added"));
}

TEST_F(ImportFromTest, PrintsFactsAsJson) {
    const Run run = Import({"--json", "--dry-run", "--meal", "Brunch=lunch"});
    const QJsonObject facts = QJsonDocument::fromJson(run.out.toUtf8()).object();
    EXPECT_EQ(facts["entries"]["added"], 2);
    EXPECT_EQ(facts["refused"], 1);
    EXPECT_EQ(facts["unknown"]["Iron"], 2);
    EXPECT_EQ(facts["rejects"].toArray().size(), 1);
    EXPECT_TRUE(facts["remarks"].toArray().isEmpty());
}

TEST_F(ImportFromTest, EndsWithDoneWhereEveryRowIsTaken) {
    Write("servings.csv", "Day,Group,Food Name,Amount\n2026-03-02,Lunch,Bread,2.00 slice\n");
    EXPECT_EQ(Import({}).code, Done);
}

TEST_F(ImportFromTest, WhatItCannotReadIsNamed) {
    Write("servings.csv", "a,b\n1,2\n");
    const Run run = Import({});
    EXPECT_EQ(run.code, Cannot);
    EXPECT_TRUE(run.error.contains("servings.csv is not a table that Cronometer exports"));
}

TEST_F(ImportFromTest, WrongOptionsAreUsageErrors) {
    EXPECT_EQ(Command({"import", "--from", "nobody", Path("servings.csv")}).code, Usage);
    EXPECT_EQ(Import({"--weight-unit", "stone"}).code, Usage);
    EXPECT_EQ(Import({"--meal", "Brunch"}).code, Usage);
    EXPECT_EQ(Import({"--meal", "Brunch=Tea"}).code, Usage);
    EXPECT_EQ(Import({"--map", "a.toml"}).code, Usage);
    EXPECT_EQ(Command({"import", "--from", "table", Path("servings.csv")}).code, Usage);
    EXPECT_EQ(Command({"import", "--rejects", "a", Path("servings.csv")}).code, Usage);
    EXPECT_EQ(Command({"import", "a.json", "b.json"}).code, Usage);
}

TEST_F(ImportFromTest, EachPersonHasALogOfTheirOwn) {
    EXPECT_EQ(Import({"--profile", "Nobody"}).code, Cannot);
    EXPECT_TRUE(Import({"--profile", "anna"}).out.startsWith("2 entries of the log added"));
}

TEST_F(ImportFromTest, ATableIsReadByItsMap) {
    const QString table = Write("table.csv", "Day;Food;kcal\n2.3.2026;Brot;80,5\n");
    const QString map = Write("map.toml", "kind = \"log\"\n[file]\nseparator = \";\"\n"
                                          "decimal = \",\"\ndate = \"d.M.yyyy\"\n[columns]\n"
                                          "date = \"Day\"\nname = \"Food\"\n[nutrients]\n"
                                          "Calories = { column = \"kcal\", unit = \"kcal\" }\n");
    const Run run = Command({"import", "--from", "table", "--map", map, table});
    EXPECT_EQ(run.code, Done) << run.error.toStdString();
    EXPECT_TRUE(run.out.startsWith("1 entry of the log added")) << run.out.toStdString();
}
