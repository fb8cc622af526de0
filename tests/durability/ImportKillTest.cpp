#include "records/RecordsFolder.h"
#include "records/document/RecordsDocument.h"
#include "store/Connection.h"
#include "store/NameIndex.h"
#include "support/HalvaneTest.h"
#include "support/Places.h"
#include "support/RunSize.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>

#include <SQLiteCpp/SQLiteCpp.h>

#include <algorithm>
#include <iostream>

#include <unistd.h>

namespace {
constexpr int OrdinaryKills = 12; ///< of each import
constexpr unsigned Seed = 20261122;
constexpr int Entries = 4000;
constexpr int Foods = 2000;
constexpr int Recipes = 300;

/// The environment variable HALVANE_KILLS asks for more kills than an ordinary run.
int Kills() {
    return RunSize("HALVANE_KILLS", OrdinaryKills);
}

QByteArray ExportOf(const QString& folder) {
    QByteArray document;
    RecordsDocument::Export(
        RecordsFolder(folder),
        [&](std::string_view piece) { document.append(piece.data(), qsizetype(piece.size())); },
        [](qint64, qint64) {});
    return document;
}

/// The row so often; % is its number.
QByteArray Rows(int count, const QByteArray& row, const char* separator = "\n") {
    QByteArrayList rows;
    for (int i = 1; i <= count; ++i)
        rows << QByteArray(row).replace("%", QByteArray::number(i));
    return rows.join(separator);
}

QString Write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    return path;
}

/// Rows for both files.
QStringList ADocument(const QString& folder) {
    return {
        "import",
        Write(folder + "/document.json",
              R"({"format":"halvane-records","version":1,"nutrients":[{"name":"Calories",)"
              R"("unit":"kcal"}],"profiles":[{"key":1,"name":"Zoe"}],"foods":[)" +
                  Rows(300, R"({"name":"Food %","amounts":[%]})", ",") + R"(],"recipes":[)" +
                  Rows(100, R"({"name":"Pie %","ingredients":[{"food":"Egg %"}]})", ",") +
                  R"(],"log":[)" +
                  Rows(Entries,
                       R"({"profile":1,"date":"2026-03-02","food":"Oats %","amounts":[%]})", ",") +
                  "]}")};
}

QStringList ALogOfAnotherProgram(const QString& folder) {
    return {
        "import", "--from", "cronometer",
        Write(folder + "/servings.csv", "Day,Food Name,Amount,Group,Energy (kcal)\n" +
                                            Rows(Entries, "2026-03-02,Oats %,% g,Breakfast,%.5"))};
}

QStringList FoodsOfADownload(const QString& folder) {
    const QString download = folder + "/download";
    EXPECT_TRUE(QDir().mkpath(download));
    Write(download + "/nutrient.csv", "id,name,unit_name\n1008,Energy,KCAL\n");
    Write(download + "/food.csv",
          "fdc_id,data_type,description,food_category_id,publication_date\n" +
              Rows(Foods, "%,branded_food,Crisps %,,2026-04-30"));
    Write(download + "/branded_food.csv",
          "fdc_id,brand_owner,gtin_upc,serving_size,serving_size_unit\n" +
              Rows(Foods, "%,Invented Foods Inc.,%,28,g"));
    Write(download + "/food_nutrient.csv",
          "id,fdc_id,nutrient_id,amount\n" + Rows(Foods, "%,%,1008,500"));
    return {"foods", "import", download};
}

QStringList RecipesOfAFile(const QString& folder) {
    return {"recipes", "import", "--text",
            Write(folder + "/recipes.json",
                  '[' +
                      Rows(Recipes,
                           R"({"@type":"Recipe","name":"Soup %","recipeYield":"2",)"
                           R"("recipeIngredient":["1 cup lentils"],)"
                           R"("recipeInstructions":"Boil % hours.)" +
                               QByteArray(2000, '.') + "\"}",
                           ",") +
                      ']')};
}

struct Import {
    const char* name;
    QStringList (*make)(const QString& folder); ///< writes what is imported; gives the arguments
};
constexpr Import Imports[] = {{"Document", ADocument},
                              {"Foreign", ALogOfAnotherProgram},
                              {"Foods", FoodsOfADownload},
                              {"Recipes", RecipesOfAFile}};
} // namespace

/// halvane-data as a process of its own, with a home of its own, on records of one person with a
/// few stock foods.
class ImportKillTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        OpenDatabases();
        AddUser();
        FoodDB().Raw().exec("DELETE FROM FOODS WHERE ID < 23000");
        FoodDB().Raw().exec(NameIndex::Compaction);
        FoodDB().Raw().exec("VACUUM");
        CloseDatabases();
    }
    static void CopyTo(const QString& from, const QString& to) {
        for (const char* file : {"/users.mdb", "/foods.mdb"})
            ASSERT_TRUE(QFile::copy(from + QLatin1String(file), to + QLatin1String(file)));
    }
    void Prepare(QProcess& process) const {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* home : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})
            environment.insert(QLatin1String(home), Folder() + "/home");
        process.setProcessEnvironment(environment);
    }
    void Start(QProcess& process, const QString& folder, const QStringList& import) const {
        Prepare(process);
        process.start(Places::Build("/src/halvane-data"), import + QStringList{"--folder", folder});
    }
    /// Runs halvane-data in a shell, behind a line that sets its limits. Gives its exit code.
    int RunBehind(const QString& line, const QStringList& arguments, QByteArray& error) const {
        QProcess process;
        Prepare(process);
        process.start("/bin/bash", QStringList{"-c", line + "; exec \"$0\" \"$@\"",
                                               Places::Build("/src/halvane-data")} +
                                       arguments);
        EXPECT_TRUE(process.waitForFinished(-1));
        error = process.readAllStandardError();
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }
    /// How long an import takes that nobody kills.
    int Milliseconds(const QString& folder, const QStringList& import) const {
        QElapsedTimer timer;
        timer.start();
        QProcess process;
        Start(process, folder, import);
        EXPECT_TRUE(process.waitForFinished(-1));
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
        return int(timer.elapsed());
    }
};

class EachImportKillTest : public ImportKillTest, public testing::WithParamInterface<Import> {};

TEST_P(EachImportKillTest, AfterAKillTheRecordsAreAsBeforeOrAsAfter) {
    const QStringList import = GetParam().make(Folder());
    const QTemporaryDir whole;
    CopyTo(Folder(), whole.path());
    const QByteArray before = ExportOf(whole.path());
    const int milliseconds = Milliseconds(whole.path(), import);
    const QByteArray after = ExportOf(whole.path());
    ASSERT_NE(after, before);
    QRandomGenerator random(Seed);
    int done = 0;
    for (int i = 0; i < Kills() && !HasFailure(); ++i) {
        const QTemporaryDir folder;
        CopyTo(Folder(), folder.path());
        QProcess process;
        Start(process, folder.path(), import);
        process.waitForFinished(i == 0 ? 0 : random.bounded(milliseconds + 1));
        process.kill();
        process.waitForFinished();
        const QByteArray left = ExportOf(folder.path());
        EXPECT_TRUE(left == before || left == after);
        done += left == after ? 1 : 0;
    }
    EXPECT_LT(done, Kills());
    std::cout << Kills() << " kills within " << milliseconds << " ms; " << done
              << " imports were done\n";
}

TEST_P(EachImportKillTest, AFullDiskLeavesTheRecordsAsTheyWere) {
    const QStringList import = GetParam().make(Folder());
    const QByteArray before = ExportOf(Folder());
    const qint64 bytes = std::max(QFileInfo(Folder() + "/foods.mdb").size(),
                                  QFileInfo(Folder() + "/users.mdb").size());
    QByteArray error;
    EXPECT_EQ(RunBehind(QStringLiteral("trap '' XFSZ; ulimit -f %1").arg(bytes / 1024 + 8),
                        import + QStringList{"--folder", Folder()}, error),
              3);
    EXPECT_TRUE(error.startsWith("halvane-data: The file ")) << error.constData();
    EXPECT_TRUE(ExportOf(Folder()) == before);
}

INSTANTIATE_TEST_SUITE_P(Each, EachImportKillTest, testing::ValuesIn(Imports),
                         [](const auto& import) { return std::string(import.param.name); });

TEST_F(ImportKillTest, AnExportToAFullDiskLeavesTheEarlierExport) {
    const QString path = Folder() + "/export.json";
    QByteArray error;
    ASSERT_EQ(RunBehind("true", {"export", "--folder", Folder(), path}, error), 0);
    const QStringList files = QDir(Folder()).entryList();
    EXPECT_EQ(RunBehind("trap '' XFSZ; ulimit -f 1", {"export", "--folder", Folder(), path}, error),
              3);
    EXPECT_TRUE(error.contains("export.json cannot be written")) << error.constData();
    EXPECT_EQ(QDir(Folder()).entryList(), files);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll() == ExportOf(Folder()));
}

TEST_F(ImportKillTest, AFolderThatCannotBeWrittenIsReadAndNotChanged) {
    const QStringList import = ADocument(Folder());
    const QByteArray before = ExportOf(Folder());
    const char* locked = geteuid() == 0 ? "setpriv --reuid=65534 --regid=65534 --clear-groups "
                                          "--inh-caps=-all \"$0\" \"$@\"; exit $?"
                                        : "true";
    for (const char* file : {"/users.mdb", "/foods.mdb"})
        QFile::setPermissions(Folder() + QLatin1String(file),
                              QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    QFile::setPermissions(Folder(), QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup |
                                        QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther);
    QByteArray error;
    EXPECT_EQ(RunBehind(QLatin1String(locked), import + QStringList{"--folder", Folder()}, error),
              3);
    EXPECT_TRUE(error.contains("Allow writing")) << error.constData();
    EXPECT_EQ(RunBehind(QLatin1String(locked), {"export", "--folder", Folder(), "-"}, error), 0)
        << error.constData();
    QFile::setPermissions(Folder(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_TRUE(ExportOf(Folder()) == before);
}
