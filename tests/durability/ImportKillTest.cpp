#include "records/RecordsFolder.h"
#include "records/document/RecordsDocument.h"
#include "support/HalvaneTest.h"
#include "support/Places.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>

#include <iostream>

#include <unistd.h>

namespace {
constexpr int OrdinaryKills = 20;
constexpr unsigned Seed = 20261122;
constexpr int Entries = 4000;

/// The environment variable HALVANE_KILLS asks for more kills than an ordinary run.
int Kills() {
    const int asked = qEnvironmentVariableIntValue("HALVANE_KILLS");
    return asked > 0 ? asked : OrdinaryKills;
}

QByteArray ExportOf(const QString& folder) {
    QByteArray document;
    RecordsDocument::Export(
        RecordsFolder(folder),
        [&](std::string_view piece) { document.append(piece.data(), qsizetype(piece.size())); },
        [](qint64, qint64) {});
    return document;
}

QByteArrayList Rows(int count, const QByteArray& row) {
    QByteArrayList rows;
    for (int i = 1; i <= count; ++i)
        rows << QByteArray(row).replace("%", QByteArray::number(i));
    return rows;
}

/// Rows for both files.
QByteArray ADocument() {
    return R"({"format":"halvane-records","version":1,"nutrients":[{"name":"Calories","unit":"kcal"}],
        "profiles":[{"key":1,"name":"Anna"}],"foods":[)" +
           Rows(300, R"({"name":"Food %","amounts":[%]})").join(',') + R"(],"recipes":[)" +
           Rows(100, R"({"name":"Pie %","ingredients":[{"food":"Egg %"}]})").join(',') +
           R"(],"log":[)" +
           Rows(Entries, R"({"profile":1,"date":"2026-03-02","food":"Oats %","amounts":[%]})")
               .join(',') +
           "]}";
}
} // namespace

/// halvane-data as a process of its own, with a home of its own.
class ImportKillTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        OpenDatabases();
        CloseDatabases();
        QFile file(Document());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(ADocument());
    }
    QString Document() const { return Folder() + "/document.json"; }

    /// A copy of the delivered files.
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
    void Start(QProcess& process, const QString& folder) const {
        Prepare(process);
        process.start(Places::Build("/src/halvane-data"),
                      {"import", "--folder", folder, Document()});
    }
    /// Runs halvane-data in a shell, behind a line that sets its limits. Gives its exit code.
    int RunBehind(const QString& line, const QStringList& arguments, QByteArray& error) const {
        QProcess process;
        Prepare(process);
        process.start("/bin/bash", QStringList{"-c", line + "; exec \"$0\" \"$@\"",
                                               Places::Build("/src/halvane-data")} +
                                       arguments);
        EXPECT_TRUE(process.waitForFinished(60000));
        error = process.readAllStandardError();
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }
    /// How long an import takes that nobody kills.
    int Milliseconds(const QString& folder) const {
        QElapsedTimer timer;
        timer.start();
        QProcess process;
        Start(process, folder);
        EXPECT_TRUE(process.waitForFinished(60000));
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
        return int(timer.elapsed());
    }
};

TEST_F(ImportKillTest, AfterAKillTheRecordsAreAsBeforeOrAsAfter) {
    const QTemporaryDir whole;
    CopyTo(Folder(), whole.path());
    const QByteArray before = ExportOf(whole.path());
    const int milliseconds = Milliseconds(whole.path());
    const QByteArray after = ExportOf(whole.path());
    QRandomGenerator random(Seed);
    int done = 0;
    for (int i = 0; i < Kills() && !HasFailure(); ++i) {
        const QTemporaryDir folder;
        CopyTo(Folder(), folder.path());
        QProcess process;
        Start(process, folder.path());
        process.waitForFinished(random.bounded(milliseconds + 1));
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

TEST_F(ImportKillTest, AFullDiskLeavesTheRecordsAsTheyWere) {
    const QByteArray before = ExportOf(Folder());
    const qint64 kilobytes = QFileInfo(Folder() + "/foods.mdb").size() / 1024 + 8;
    QByteArray error;
    EXPECT_EQ(RunBehind(QStringLiteral("trap '' XFSZ; ulimit -f %1").arg(kilobytes),
                        {"import", "--folder", Folder(), Document()}, error),
              3);
    EXPECT_NE(error, "");
    EXPECT_TRUE(ExportOf(Folder()) == before);
}

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
    EXPECT_EQ(RunBehind(QLatin1String(locked), {"import", "--folder", Folder(), Document()}, error),
              3);
    EXPECT_TRUE(error.contains("Allow writing")) << error.constData();
    EXPECT_EQ(RunBehind(QLatin1String(locked), {"export", "--folder", Folder(), "-"}, error), 0)
        << error.constData();
    QFile::setPermissions(Folder(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_TRUE(ExportOf(Folder()) == before);
}
