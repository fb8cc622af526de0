#include "core/CoreTest.h"

#include "core/SingleInstance.h"

#include <QFile>
#include <QLocalSocket>
#include <QLockFile>
#include <QTest>

class SingleInstanceTest : public CoreTest {};

TEST_F(SingleInstanceTest, TheFirstStartClaimsAndTheSecondAsksItForward) {
    SingleInstance first(Folder());
    SingleInstance second(Folder());
    int asked = 0;
    QObject::connect(&first, &SingleInstance::Activated, [&] { ++asked; });
    EXPECT_TRUE(first.Claim());
    EXPECT_FALSE(second.Claim());
    EXPECT_TRUE(QTest::qWaitFor([&] { return asked == 1; }));
    EXPECT_FALSE(second.Claim());
    EXPECT_TRUE(QTest::qWaitFor([&] { return asked == 2; }));
}

TEST_F(SingleInstanceTest, AfterTheFirstHasEndedTheNextOneClaims) {
    {
        SingleInstance first(Folder());
        EXPECT_TRUE(first.Claim());
        EXPECT_TRUE(QFile::exists(Folder() + "/halvane.lock"));
    }
    EXPECT_FALSE(QFile::exists(Folder() + "/halvane.lock"));
    SingleInstance next(Folder());
    EXPECT_TRUE(next.Claim());
}

TEST_F(SingleInstanceTest, ClaimingTwiceIsClaimingOnce) {
    SingleInstance only(Folder());
    EXPECT_TRUE(only.Claim());
    EXPECT_TRUE(only.Claim());
}

TEST_F(SingleInstanceTest, ALockThatACrashHasLeftBehindDoesNotCount) {
    {
        // No system uses so high a process number.
        QFile lock(Folder() + "/halvane.lock");
        ASSERT_TRUE(lock.open(QIODevice::WriteOnly));
        lock.write("2147483646\nhalvane\n" + QSysInfo::machineHostName().toLocal8Bit() + "\n\n\n");
        QFile socket(Folder() + "/halvane.socket");
        ASSERT_TRUE(socket.open(QIODevice::WriteOnly));
    }
    SingleInstance first(Folder());
    EXPECT_TRUE(first.Claim());
    SingleInstance second(Folder());
    EXPECT_FALSE(second.Claim());
}

TEST_F(SingleInstanceTest, AHolderThatDoesNotAnswerIsToldOfOnStandardError) {
    QLockFile holder(Folder() + "/halvane.lock");
    ASSERT_TRUE(holder.tryLock(0));
    SingleInstance next(Folder());
    testing::internal::CaptureStderr();
    EXPECT_FALSE(next.Claim());
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "halvane: another start holds " +
                                                          Folder().toStdString() +
                                                          "/halvane.lock and does not answer\n");
}

TEST_F(SingleInstanceTest, AFolderThatCannotBeUsedKeepsNobodyOut) {
    SingleInstance only(Folder() + "/missing/folder");
    EXPECT_TRUE(only.Claim());
}

TEST_F(SingleInstanceTest, OtherWordsOnTheSocketAreIgnored) {
    SingleInstance first(Folder());
    int asked = 0;
    QObject::connect(&first, &SingleInstance::Activated, [&] { ++asked; });
    ASSERT_TRUE(first.Claim());
    QLocalSocket caller;
    caller.connectToServer(Folder() + "/halvane.socket");
    ASSERT_TRUE(caller.waitForConnected(1000));
    caller.write("hello");
    caller.disconnectFromServer();
    SingleInstance second(Folder());
    EXPECT_FALSE(second.Claim());
    EXPECT_TRUE(QTest::qWaitFor([&] { return asked == 1; }));
}
