#include "support/Places.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <SQLiteCpp/SQLiteCpp.h>

#include <gtest/gtest.h>

namespace {

class InstallTest : public ::testing::Test {
protected:
    void Install() {
        const int code = QProcess::execute(QStringLiteral(HALVANE_CMAKE),
                                           {QStringLiteral("--install"), Places::Build(QString()),
                                            QStringLiteral("--prefix"), folder_.path()});
        ASSERT_EQ(code, 0);
    }
    QStringList Files() const { return QDir(folder_.path()).entryList(QDir::Files); }
    std::string File(const char* name) const {
        return folder_.filePath(QLatin1String(name)).toStdString();
    }
    int Number(const char* name, const char* sql) {
        SQLite::Database database(File(name), SQLite::OPEN_READONLY);
        return database.execAndGet(sql).getInt();
    }
    void Change(const char* name, const char* sql) {
        SQLite::Database(File(name), SQLite::OPEN_READWRITE).exec(sql);
    }
    QTemporaryDir folder_;
};

int RunTool(const char* tool, const QStringList& arguments) {
    QProcess process;
    process.start(Places::Build(QStringLiteral("/tools/")) + QLatin1String(tool), arguments);
    process.waitForFinished();
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

} // namespace

TEST_F(InstallTest, EverythingStandsBesideTheProgram) {
    Install();
    const QStringList files = Files();
    for (const char* name :
         {"halvane", "halvane-data", "users.mdb", "foods.mdb", "tips.txt", "agreement.txt",
          "licences.txt", "food-sources.json", "records-format.schema.json"})
        EXPECT_TRUE(files.contains(QLatin1String(name))) << name;
    for (const char* program : {"halvane", "halvane-data"})
        EXPECT_TRUE(QFileInfo(folder_.filePath(QLatin1String(program))).isExecutable()) << program;
    for (const char* text : {"halvane-data.1", "halvane-data.bash", "_halvane-data"})
        EXPECT_TRUE(QFileInfo(folder_.filePath(QLatin1String("shell/") + text)).isFile()) << text;
    EXPECT_TRUE(QFileInfo(folder_.filePath(QStringLiteral("help/index.html"))).isFile());
    for (const char* font : {"Inter-Regular.otf", "Inter-Medium.otf", "Inter-SemiBold.otf",
                             "Inter-Bold.otf", "OFL.txt"})
        EXPECT_TRUE(QFileInfo(folder_.filePath(QLatin1String("fonts/") + font)).isFile()) << font;
    for (const QString& file : files)
        EXPECT_FALSE(file.contains(QStringLiteral(".mdb-"))) << file.toStdString();
}

TEST_F(InstallTest, WhatOnlyThePackagesHoldIsNotInTheFolder) {
    Install();
    for (const char* name : {"usr", "etc", "foods.tsv", "delivery.id"})
        EXPECT_FALSE(QFileInfo::exists(folder_.filePath(QLatin1String(name)))) << name;
}

TEST_F(InstallTest, InstallingAgainLosesNothing) {
    Install();
    Change("users.mdb", "INSERT INTO profiles (UserName) VALUES ('Anna')");
    Change("foods.mdb", "INSERT INTO FOODS (ID, FoodName) VALUES (23509, 'My soup');"
                        "DELETE FROM FOODS WHERE ID = 20000");
    Install();
    EXPECT_EQ(Number("users.mdb", "SELECT COUNT(*) FROM profiles WHERE UserName = 'Anna'"), 1);
    EXPECT_EQ(Number("foods.mdb", "SELECT COUNT(*) FROM FOODS WHERE ID = 23509"), 1);
    EXPECT_EQ(Number("foods.mdb", "SELECT COUNT(*) FROM FOODS WHERE ID <= 23508"), 7412);
}

TEST(Tools, WrongArgumentsGiveTheUsageAndChangeNothing) {
    QTemporaryDir folder;
    EXPECT_EQ(RunTool("make_databases", {}), 2);
    EXPECT_EQ(RunTool("make_databases", {QStringLiteral("--clear"), folder.path(), folder.path()}),
              2);
    EXPECT_EQ(RunTool("make_catalogue", {folder.path()}), 2);
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST(Tools, FailureGivesAnExitCodeAndNoFile) {
    QTemporaryDir folder;
    const QString foods = folder.filePath(QStringLiteral("foods.tsv"));
    EXPECT_EQ(RunTool("make_catalogue", {folder.path(), QStringLiteral("a release"), foods,
                                         folder.filePath(QStringLiteral("sources.json")),
                                         folder.filePath(QStringLiteral("report.md"))}),
              1);
    EXPECT_EQ(RunTool("make_databases", {QStringLiteral("--update"), folder.path(), folder.path()}),
              1);
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}
