#include "core/CoreTest.h"

#include "core/Application.h"
#include "core/FailureText.h"
#include "runtime/RuntimeError.h"
#include "store/Connection.h"
#include "toolkit/MousePointer.h"

#include <QTimer>

#include <new>

class ApplicationTest : public CoreTest {
protected:
    QString MessageOfFailure(const std::function<void()>& fail) {
        return MessageOf([&] { InEvent(fail); });
    }
};

TEST_F(ApplicationTest, AnUnhandledFailureSaysWhatFailedWithItsNumberAndEndsTheProcess) {
    const QString text =
        MessageOfFailure([] { throw RuntimeError(13, QStringLiteral("Type mismatch")); });
    EXPECT_TRUE(text.contains(QStringLiteral("Type mismatch")));
    EXPECT_TRUE(text.contains(QStringLiteral("enter a plain number")));
    EXPECT_TRUE(text.endsWith(QStringLiteral("Error 13")));
    EXPECT_EQ(endings, QList<int>{1});
    EXPECT_TRUE(stderrText.startsWith(QStringLiteral("halvane: Type mismatch (13)\n")));
}

TEST_F(ApplicationTest, EachKindOfFailureSaysWhatThePersonCanDo) {
    const auto text = [](int number) {
        return FailureText::Unhandled(RuntimeError(number, QStringLiteral("why")));
    };
    EXPECT_TRUE(text(6).contains(QStringLiteral("smaller")));
    EXPECT_TRUE(text(53).contains(QStringLiteral("put it back")));
    EXPECT_TRUE(text(94).contains(QStringLiteral("no value")));
    EXPECT_TRUE(text(-1).contains(QStringLiteral("apostrophe")));
    EXPECT_TRUE(text(3021).contains(QStringLiteral("start Halvane again")));
    EXPECT_TRUE(text(438).contains(QStringLiteral("start Halvane again")));
}

TEST_F(ApplicationTest, RunningOutOfMemoryTakesTheSamePath) {
    const QString text = MessageOfFailure([] { throw std::bad_alloc(); });
    EXPECT_TRUE(text.contains(QStringLiteral("out of memory")));
    EXPECT_TRUE(text.endsWith(QStringLiteral("Error 7")));
    EXPECT_EQ(endings, QList<int>{1});
}

TEST_F(ApplicationTest, AFailureWhileTheMessageStandsStaysUnsaid) {
    int messages = 0;
    testing::internal::CaptureStderr();
    WithModal(
        [&](QWidget* box) {
            ++messages;
            InEvent([] { throw RuntimeError(94, QStringLiteral("Invalid use of Null")); });
            EXPECT_EQ(QApplication::activeModalWidget(), box);
            box->close();
        },
        [] { InEvent([] { throw RuntimeError(6, QStringLiteral("Overflow")); }); });
    testing::internal::GetCapturedStderr();
    EXPECT_EQ(messages, 1);
    EXPECT_EQ(endings, QList<int>{1});
}

TEST_F(ApplicationTest, TheBusyPointerDoesNotStayOverTheMessage) {
    MousePointer::SetBusy();
    bool busy = true;
    testing::internal::CaptureStderr();
    WithModal([&](QWidget*) { busy = MousePointer::IsBusy(); },
              [] { InEvent([] { throw RuntimeError(6, QStringLiteral("Overflow")); }); });
    testing::internal::GetCapturedStderr();
    EXPECT_FALSE(busy);
}

TEST_F(ApplicationTest, WhatWasCommittedBeforeAFailureStays) {
    OpenDatabases();
    const qint32 uid = AddUser(QStringLiteral("Anna"));
    MessageOfFailure([this] {
        Users(QStringLiteral("INSERT INTO USER_WEIGHTS (UID, UDate, Weight) "
                             "VALUES (1, '2026-11-21', 150)"));
        throw RuntimeError(-1, QStringLiteral("syntax error"));
    });
    EXPECT_EQ(uid, 1);
    EXPECT_EQ(Users(QStringLiteral("SELECT Weight FROM USER_WEIGHTS")).toDouble(), 150);
}

TEST_F(ApplicationTest, EventsThatDoNotFailPassThrough) {
    bool met = false;
    InEvent([&] { met = true; });
    EXPECT_TRUE(met);
    EXPECT_TRUE(endings.isEmpty());
}
