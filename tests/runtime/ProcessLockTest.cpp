#include "runtime/ProcessLock.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

class ProcessLockTest : public ::testing::Test {
protected:
    QString Path() const { return folder_.filePath(QStringLiteral("one.lock")); }
    void Write(const QByteArray& text) const {
        QFile file(Path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    QTemporaryDir folder_;
};

TEST_F(ProcessLockTest, IsHeldOnceAndCanBeTakenAfterItsRelease) {
    ProcessLock first(Path());
    ProcessLock second(Path());
    EXPECT_EQ(first.TryLock(), ProcessLock::Result::Held);
    EXPECT_EQ(first.TryLock(), ProcessLock::Result::Held);
    EXPECT_EQ(second.TryLock(), ProcessLock::Result::HeldByAnother);
    EXPECT_EQ(second.Holder(), "test_runtime");
    EXPECT_TRUE(second.IsHeldByAnother());
    EXPECT_FALSE(first.IsHeldByAnother());
    first.Release();
    EXPECT_EQ(second.Holder(), "");
    EXPECT_EQ(second.TryLock(), ProcessLock::Result::Held);
}

TEST_F(ProcessLockTest, OfAProcessThatIsGoneIsTaken) {
    // No system uses so high a process number.
    Write("2147483646\nhalvane\n" + QSysInfo::machineHostName().toLocal8Bit() + "\n\n\n");
    ProcessLock lock(Path());
    EXPECT_EQ(lock.TryLock(), ProcessLock::Result::Held);
}

TEST_F(ProcessLockTest, OfALivingProcessIsNotTakenHoweverOldItIs) {
    const QString program = QFileInfo(QCoreApplication::applicationFilePath()).fileName();
    Write(QByteArray::number(QCoreApplication::applicationPid()) + '\n' + program.toLocal8Bit() +
          '\n' + QSysInfo::machineHostName().toLocal8Bit() + "\n\n\n");
    QFile file(Path());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.setFileTime(QDateTime::currentDateTime().addYears(-1), QFile::FileModificationTime);
    file.close();
    ProcessLock lock(Path());
    EXPECT_EQ(lock.TryLock(), ProcessLock::Result::HeldByAnother);
}

TEST_F(ProcessLockTest, OfAProcessThatWasKilledBeforeItSignedIsTaken) {
    for (const QByteArray written : {"", "21474", "2147483646\n"}) {
        Write(written);
        ProcessLock lock(Path());
        EXPECT_FALSE(lock.IsHeldByAnother());
        EXPECT_EQ(lock.TryLock(), ProcessLock::Result::Held) << written.toStdString();
    }
}

TEST_F(ProcessLockTest, OfAProcessThatIsGoneIsTakenThoughItsRemovalWasKilledToo) {
    Write("2147483646\nhalvane\n" + QSysInfo::machineHostName().toLocal8Bit() + "\n\n\n");
    const QString guard = Path() + ".rmlock";
    QFile left(guard);
    ASSERT_TRUE(left.open(QIODevice::WriteOnly));
    left.close();
    ProcessLock lock(Path());
    EXPECT_EQ(lock.TryLock(), ProcessLock::Result::Held);
    EXPECT_FALSE(QFile::exists(guard));
}

TEST_F(ProcessLockTest, OfALivingProcessThatHasNotSignedYetIsNotTaken) {
    Write("");
    const int held = open(QFile::encodeName(Path()).constData(), O_RDWR);
    ASSERT_EQ(flock(held, LOCK_EX | LOCK_NB), 0);
    ProcessLock lock(Path());
    EXPECT_EQ(lock.TryLock(), ProcessLock::Result::HeldByAnother);
    EXPECT_TRUE(QFile::exists(Path()));
    close(held);
}

TEST_F(ProcessLockTest, InAFolderThatIsMissingIsNotPossible) {
    ProcessLock lock(folder_.filePath(QStringLiteral("missing/one.lock")));
    EXPECT_FALSE(lock.IsHeldByAnother());
    EXPECT_EQ(lock.TryLock(), ProcessLock::Result::NotPossible);
}
