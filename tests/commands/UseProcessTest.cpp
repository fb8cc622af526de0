#include "UseTest.h"

#include "commands/Session.h"
#include "records/RecordsLock.h"
#include "support/Places.h"

#include <QFile>
#include <QProcess>

#include <unistd.h>

/// The program itself, as a script starts it.
class UseProcessTest : public UseTest {
protected:
    Run Start(const QStringList& arguments) {
        QProcess process;
        if (asNobody_)
            process.setChildProcessModifier([] { std::ignore = setgid(Nobody) + setuid(Nobody); });
        process.start(Places::Build("/src/halvane-data"),
                      QStringList{"--folder", Folder()} + arguments);
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return {process.exitCode(), process.readAllStandardOutput(),
                process.readAllStandardError()};
    }

    static constexpr int Nobody = 65534;
    bool asNobody_ = false;
};

TEST_F(UseProcessTest, ALoggedFoodIsShown) {
    EXPECT_EQ(Start({"log", Butter, "-m", "lunch", "-d", "2026-03-02"}).code, Done);
    const Run run = Start({"show", "2026-03-02"});
    EXPECT_EQ(run.code, Done);
    EXPECT_TRUE(run.out.contains("Butter, salted")) << run.out.toStdString();
    EXPECT_EQ(run.error, "");
}

TEST_F(UseProcessTest, WhileTheWindowIsOpenReadingWorksAndWritingIsRefusedInOneSentence) {
    const RecordsLock window{RecordsFolder(Folder())};
    EXPECT_EQ(Start({"show"}).code, Done);
    EXPECT_EQ(Start({"search", "lentils"}).code, Done);
    for (const QStringList& writing : {QStringList{"log", Butter, "-m", "lunch"},
                                       {"weigh", "150"},
                                       {"copy-day", "2026-03-01"},
                                       {"copy-meal", "lunch", "2026-03-01"}}) {
        const Run run = Start(writing);
        EXPECT_EQ(run.code, Cannot);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.error.count('\n'), 1) << run.error.toStdString();
    }
    EXPECT_EQ(Logged(), 0);
}

TEST_F(UseProcessTest, AReadOnlyFolderIsReadAndNotWritten) {
    constexpr auto readable = QFile::ReadOwner | QFile::ReadOther;
    for (const char* file : {"/users.mdb", "/foods.mdb"})
        ASSERT_TRUE(QFile::setPermissions(Folder() + file, readable));
    ASSERT_TRUE(QFile::setPermissions(Folder(), readable | QFile::ExeOwner | QFile::ExeOther));
    asNobody_ = geteuid() == 0; // root may write anywhere
    EXPECT_EQ(Start({"show"}).code, Done);
    const Run run = Start({"weigh", "150"});
    EXPECT_EQ(run.code, Cannot);
    EXPECT_NE(run.error, "");
    ASSERT_TRUE(QFile::setPermissions(Folder(), readable | QFile::WriteOwner | QFile::ExeOwner));
}

TEST_F(UseProcessTest, AReportWithoutASessionWarnsOfNothing) {
    qunsetenv("XDG_RUNTIME_DIR");
    const Run run = Start({"report", Folder() + "/report.pdf"});
    EXPECT_EQ(run.code, Done);
    EXPECT_EQ(run.error, "");
}

TEST_F(UseProcessTest, AWrongCommandIsAUsageError) {
    EXPECT_EQ(Start({"eat"}).code, Usage);
    EXPECT_EQ(Start({}).code, Usage);
}
