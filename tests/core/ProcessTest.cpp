#include "support/HalvaneTest.h"
#include "support/Places.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTest>

#include <memory>

#include <unistd.h>

/// Starts the built program in a folder with its own files, settings and run-time folder.
class ProcessTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        for (const char* name : {"users.mdb", "foods.mdb", "tips.txt", "agreement.txt"})
            ASSERT_TRUE(
                QFile::copy(Places::Build(QStringLiteral("/delivered/")) + name, Path(name)));
        ASSERT_TRUE(QFile::copy(Places::Build(QStringLiteral("/src/halvane")), Path("halvane")));
        QDir().mkpath(Path("run"));
        QFile::setPermissions(Path("run"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QDir().mkpath(Path("config/Brindlewick"));
        WriteSettings("[General]\nEULA=YES\n");
    }
    QString Path(const char* name) const { return Folder() + u'/' + QLatin1String(name); }
    void WriteSettings(const QByteArray& text) {
        QFile file(Path("config/Brindlewick/HALVANE.ini"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    QByteArray Settings() const {
        QFile file(Path("config/Brindlewick/HALVANE.ini"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// Root may write everywhere, so the tests of missing permissions run as `nobody`.
    void HandOverToNobody() {
        if (geteuid() != 0)
            return;
        QDirIterator files(Folder(), QDir::AllEntries | QDir::NoDotAndDotDot,
                           QDirIterator::Subdirectories);
        while (files.hasNext())
            ASSERT_EQ(chown(QFile::encodeName(files.next()), nobody, nobody), 0);
        ASSERT_EQ(chown(QFile::encodeName(Folder()), nobody, nobody), 0);
        user_ = nobody;
    }
    void ExpectOneLineAbout(QProcess& process, const char* file) {
        ASSERT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitCode(), 1);
        const QByteArray said = process.readAllStandardError();
        EXPECT_EQ(said.count('\n'), 1) << said.toStdString();
        EXPECT_TRUE(said.contains(file)) << said.toStdString();
    }
    std::unique_ptr<QProcess> Start() const {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), Path("config"));
        environment.insert(QStringLiteral("XDG_DATA_HOME"), Path("data"));
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), Path("run"));
        environment.insert(QStringLiteral("HOME"), Folder());
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        // In a coverage build `nobody` may not write the counts beside the build.
        if (user_ != 0)
            environment.insert(QStringLiteral("GCOV_PREFIX"), Path("run"));
        auto process = std::make_unique<QProcess>();
        process->setProcessEnvironment(environment);
        if (user_ != 0)
            process->setChildProcessModifier([user = user_] {
                if (setgid(user) != 0 || setuid(user) != 0)
                    _exit(99);
            });
        process->start(Path("halvane"), QStringList());
        EXPECT_TRUE(process->waitForStarted());
        return process;
    }
    /// The start has passed the tip of the day, which follows the splash.
    bool ReachesItsFirstWindow(const QProcess& process) const {
        return QTest::qWaitFor([&] { return Settings().contains("TIPNUM=1"); }, 20000) &&
               process.state() == QProcess::Running;
    }
    static constexpr uid_t nobody = 65534;
    uid_t user_ = 0;
};

TEST_F(ProcessTest, AReadOnlyUsersFileEndsWithOneLineAndStaysAsItIs) {
    HandOverToNobody();
    QFile file(Path("users.mdb"));
    ASSERT_TRUE(file.setPermissions(QFile::ReadOwner | QFile::ReadUser));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray before = file.readAll();
    ExpectOneLineAbout(*Start(), "users.mdb");
    file.seek(0);
    EXPECT_EQ(file.readAll(), before);
}

TEST_F(ProcessTest, AReadOnlyFoodsFileEndsWithOneLine) {
    HandOverToNobody();
    ASSERT_TRUE(QFile::setPermissions(Path("foods.mdb"), QFile::ReadOwner | QFile::ReadUser));
    ExpectOneLineAbout(*Start(), "foods.mdb");
}

TEST_F(ProcessTest, AFolderWithoutWritePermissionEndsWithOneLineAndKeepsItsFiles) {
    HandOverToNobody();
    const QStringList before = QDir(Folder()).entryList(QDir::AllEntries, QDir::Name);
    ASSERT_TRUE(QFile::setPermissions(Folder(), QFile::ReadOwner | QFile::ExeOwner));
    ExpectOneLineAbout(*Start(), "users.mdb");
    EXPECT_EQ(QDir(Folder()).entryList(QDir::AllEntries, QDir::Name), before);
    QFile::setPermissions(Folder(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

TEST_F(ProcessTest, AStartThatFailsEndsWithOneLineAndAnExitCode) {
    QFile::remove(Path("users.mdb"));
    const auto process = Start();
    ExpectOneLineAbout(*process, "halvane: could not start: users.mdb: ");
    EXPECT_FALSE(QFile::exists(Path("users.mdb")));
}

TEST_F(ProcessTest, ASecondStartEndsAtOnceAndTheFirstRunsOn) {
    const auto first = Start();
    ASSERT_TRUE(ReachesItsFirstWindow(*first)) << first->readAllStandardError().toStdString();
    const QByteArray settings = Settings();
    const auto second = Start();
    ASSERT_TRUE(second->waitForFinished());
    EXPECT_EQ(second->exitCode(), 0);
    EXPECT_TRUE(second->readAllStandardError().isEmpty());
    EXPECT_EQ(first->state(), QProcess::Running);
    EXPECT_EQ(Settings(), settings);
    first->kill();
    ASSERT_TRUE(first->waitForFinished());
}

TEST_F(ProcessTest, OfTwoStartsAtOnceOneRuns) {
    const auto one = Start();
    const auto other = Start();
    ASSERT_TRUE(QTest::qWaitFor([&] {
        return one->state() == QProcess::NotRunning || other->state() == QProcess::NotRunning;
    }));
    const bool oneEnded = one->state() == QProcess::NotRunning;
    QProcess& runs = oneEnded ? *other : *one;
    EXPECT_EQ((oneEnded ? *one : *other).exitCode(), 0);
    EXPECT_TRUE(ReachesItsFirstWindow(runs));
    runs.kill();
    ASSERT_TRUE(runs.waitForFinished());
}

TEST_F(ProcessTest, AKilledStartLeavesNothingThatKeepsTheNextOneOut) {
    const auto killed = Start();
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(Path("run/halvane.lock")); }));
    killed->kill();
    ASSERT_TRUE(killed->waitForFinished());
    const auto next = Start();
    EXPECT_TRUE(ReachesItsFirstWindow(*next));
    next->kill();
    ASSERT_TRUE(next->waitForFinished());
}

TEST_F(ProcessTest, AProgramPathWithOddLettersWorks) {
    const QString odd = Folder() + QString::fromUtf8("/It's 100% odd [é] folder");
    QDir().mkpath(odd);
    for (const char* name : {"halvane", "users.mdb", "foods.mdb", "tips.txt", "agreement.txt"})
        ASSERT_TRUE(QFile::copy(Path(name), odd + u'/' + QLatin1String(name)));
    QFile::remove(Path("users.mdb"));
    QFile::remove(Path("halvane"));
    ASSERT_TRUE(QFile::link(odd + "/halvane", Path("halvane")));
    const auto process = Start();
    EXPECT_TRUE(ReachesItsFirstWindow(*process)) << process->readAllStandardError().toStdString();
    process->kill();
    ASSERT_TRUE(process->waitForFinished());
}
