#include "support/HalvaneTest.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTest>

#include <memory>

/// Starts the built program itself, in a folder with its own files, settings and run-time folder.
class ProcessTest : public HalvaneTest {
protected:
    void SetUp() override {
        HalvaneTest::SetUp();
        for (const char* name : {"users.mdb", "foods.mdb", "tips.txt", "agreement.txt"})
            ASSERT_TRUE(
                QFile::copy(QStringLiteral(HALVANE_BUILD_DIR "/delivered/") + name, Path(name)));
        ASSERT_TRUE(QFile::copy(QStringLiteral(HALVANE_BUILD_DIR "/src/halvane"), Path("halvane")));
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
    std::unique_ptr<QProcess> Start() const {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), Path("config"));
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), Path("run"));
        environment.insert(QStringLiteral("HOME"), Folder());
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        auto process = std::make_unique<QProcess>();
        process->setProcessEnvironment(environment);
        process->start(Path("halvane"), QStringList());
        EXPECT_TRUE(process->waitForStarted());
        return process;
    }
    /// The start has come past the tip of the day, which is behind the splash.
    bool ReachesItsFirstWindow(const QProcess& process) const {
        return QTest::qWaitFor([&] { return Settings().contains("TIPNUM=1"); }, 20000) &&
               process.state() == QProcess::Running;
    }
};

TEST_F(ProcessTest, AStartThatFailsEndsWithOneLineAndAnExitCode) {
    QFile::remove(Path("users.mdb"));
    const auto process = Start();
    ASSERT_TRUE(process->waitForFinished());
    EXPECT_EQ(process->exitCode(), 1);
    const QByteArray said = process->readAllStandardError();
    EXPECT_EQ(said.count('\n'), 1) << said.toStdString();
    EXPECT_TRUE(said.contains("users.mdb")) << said.toStdString();
    EXPECT_TRUE(said.startsWith("halvane: could not start")) << said.toStdString();
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
