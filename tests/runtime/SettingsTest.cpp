#include "runtime/Settings.h"

#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {
class Settings : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(folder_.isValid());
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder_.path());
    }

    QString FileName() const { return folder_.path() + QStringLiteral("/Brindlewick/HALVANE.ini"); }

    void WriteFile(const QByteArray& content) {
        QDir().mkpath(QFileInfo(FileName()).path());
        QFile file(FileName());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(content);
    }

    QTemporaryDir folder_;
};

std::string Value(const char* name) {
    return GetRegValue(QString::fromLatin1(name)).toStdString();
}
} // namespace

TEST_F(Settings, AValueIsReadBack) {
    SetRegValue("EULA", "YES");
    EXPECT_EQ(Value("EULA"), "YES");
    SetRegValue("EULA", "NO");
    EXPECT_EQ(Value("EULA"), "NO");
}

TEST_F(Settings, StandInOneFileOfTheUser) {
    SetRegValue("FAST", "True");
    QFile file(FileName());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("FAST=True"));
}

TEST_F(Settings, AMissingValueIsEmpty) {
    EXPECT_EQ(Value("FAST"), "");
}

TEST_F(Settings, AValueOfAnotherProgramIsNotTaken) {
    SetRegValue("FAST", "True");
    ASSERT_TRUE(QFile::rename(FileName(), folder_.filePath("Brindlewick.ini")));
    EXPECT_EQ(Value("FAST"), "");
}

TEST_F(Settings, AWriteByAnotherProcessIsSeen) {
    SetRegValue("FAST", "True");
    WriteFile("[General]\nFAST=changed elsewhere\n");
    EXPECT_EQ(Value("FAST"), "changed elsewhere");
    ASSERT_TRUE(QFile::remove(FileName()));
    EXPECT_EQ(Value("FAST"), "");
}

TEST_F(Settings, WritingOneValueLeavesTheOthers) {
    SetRegValue("FAST", "True");
    SetRegValue("LIMIT50", "False");
    SetRegValue("FAST", "");
    EXPECT_EQ(Value("FAST"), "");
    EXPECT_EQ(Value("LIMIT50"), "False");
}

TEST_F(Settings, ALongTextIsCutAt255) {
    SetRegValue("SEARCH_STRING", QString(255, u'a'));
    EXPECT_EQ(GetRegValue("SEARCH_STRING"), QString(255, u'a'));
    SetRegValue("SEARCH_STRING", QString(10000, u'b'));
    EXPECT_EQ(GetRegValue("SEARCH_STRING"), QString(255, u'b'));
}

TEST_F(Settings, TheCutNeverSplitsACharacter) {
    const QString apple = QStringLiteral("\U0001F34E");
    for (const QString& end : QStringList{apple, apple + u'b'}) {
        SetRegValue("SEARCH_STRING", QString(254, u'a') + end);
        EXPECT_EQ(GetRegValue("SEARCH_STRING"), QString(254, u'a'));
    }
    SetRegValue("SEARCH_STRING", QString(253, u'a') + apple + u'b');
    EXPECT_EQ(GetRegValue("SEARCH_STRING"), QString(253, u'a') + apple);
}

TEST_F(Settings, ATextEndsAtItsFirstNul) {
    const QString text = QStringLiteral("egg") + QChar::Null + QStringLiteral("plant");
    SetRegValue("SEARCH_STRING", text);
    EXPECT_EQ(Value("SEARCH_STRING"), "egg");
    SetRegValue("SEARCH_STRING", QString(QChar::Null));
    EXPECT_EQ(Value("SEARCH_STRING"), "");
}

TEST_F(Settings, EveryTextComesBackAsItWas) {
    for (const char* text :
         {"a,b", "a;b", "50% \"fat\" = [x]", "@home", "@Invalid()", "  blanks  ",
          "cr\u00e8me br\u00fbl\u00e9e", "\U0001F35E", "a\\b\nc\td", "it's", "%", "_"}) {
        SetRegValue("SEARCH_STRING", QString::fromUtf8(text));
        EXPECT_EQ(Value("SEARCH_STRING"), text);
    }
}

TEST_F(Settings, AFileOfNonsenseGivesEmptyTexts) {
    WriteFile("\xff\xfe\x01[[[[\n===\n\x80\x80\nFAST\n;;; \n[General\nEULA");
    EXPECT_EQ(Value("EULA"), "");
    EXPECT_EQ(Value("LIMIT50"), "");
}

TEST_F(Settings, AFileOfNonsenseCanBeWrittenTo) {
    WriteFile("\xff\xfe\x01[[[[\n===\n");
    SetRegValue("FAST", "True");
    EXPECT_EQ(Value("FAST"), "True");
}

TEST_F(Settings, ValuesThatAreNoTextsGiveEmptyTexts) {
    WriteFile("[General]\nUITOP=@Invalid()\nUILEFT=@Variant(\\0\\0)\nFAST=@Size(1 2)\n");
    EXPECT_EQ(Value("UITOP"), "");
    EXPECT_EQ(Value("UILEFT"), "");
    EXPECT_EQ(Value("FAST"), "");
}

TEST_F(Settings, AnUnreadableStoreGivesEmptyTextsAndIgnoresWrites) {
    ASSERT_TRUE(QDir().mkpath(FileName()));
    EXPECT_EQ(Value("FAST"), "");
    SetRegValue("FAST", "True");
    EXPECT_EQ(Value("FAST"), "");
    EXPECT_TRUE(QFileInfo(FileName()).isDir());
}

TEST_F(Settings, AFolderThatCannotBeMadeIgnoresWrites) {
    WriteFile("");
    const QString file = FileName();
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, file);
    SetRegValue("FAST", "True");
    EXPECT_EQ(Value("FAST"), "");
}

TEST_F(Settings, ALockThatAKilledProcessDidNotSignDelaysNobody) {
    SetRegValue("FAST", "False");
    QFile lock(FileName() + ".lock");
    ASSERT_TRUE(lock.open(QIODevice::WriteOnly));
    lock.setFileTime(QDateTime::currentDateTime().addSecs(-3), QFile::FileModificationTime);
    lock.close();
    QElapsedTimer clock;
    clock.start();
    SetRegValue("FAST", "True");
    EXPECT_EQ(Value("FAST"), "True");
    EXPECT_LT(clock.elapsed(), 20'000); // the library waits for 30 seconds
}

TEST_F(Settings, AnOldLockThatIsSignedIsLeftToItsProcess) {
    SetRegValue("FAST", "False");
    QLockFile lock(FileName() + ".lock");
    lock.setStaleLockTime(0);
    ASSERT_TRUE(lock.tryLock(0));
    QFile file(lock.fileName());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.setFileTime(QDateTime::currentDateTime().addSecs(-3), QFile::FileModificationTime);
    file.close();
    Value("FAST");
    EXPECT_TRUE(file.exists());
}

TEST_F(Settings, ALockThatWasJustMadeIsLeftToItsProcess) {
    SetRegValue("FAST", "False");
    QFile lock(FileName() + ".lock");
    ASSERT_TRUE(lock.open(QIODevice::WriteOnly));
    lock.close();
    Value("FAST");
    EXPECT_TRUE(lock.exists());
}
