#include "runtime/InputHold.h"

#include <QCoreApplication>
#include <QEvent>
#include <QKeyEvent>

#include <gtest/gtest.h>

namespace {
class Counter : public QObject {
public:
    int count = 0;

protected:
    bool event(QEvent* event) override {
        ++count;
        return QObject::event(event);
    }
};

int KeysThatReach(Counter& receiver) {
    QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    QCoreApplication::sendEvent(&receiver, &key);
    return receiver.count;
}

bool Drops(QEvent::Type type) {
    QEvent event(type);
    return InputHold().eventFilter(nullptr, &event);
}
} // namespace

TEST(InputHold, TakesKeysAsLongAsItLives) {
    Counter receiver;
    {
        const InputHold hold;
        EXPECT_EQ(KeysThatReach(receiver), 0);
    }
    EXPECT_EQ(KeysThatReach(receiver), 1);
}

TEST(InputHold, DropsInputAndLetsEverythingElseThrough) {
    for (const auto type : {QEvent::KeyPress, QEvent::ShortcutOverride, QEvent::MouseButtonPress,
                            QEvent::MouseMove, QEvent::Wheel, QEvent::TouchBegin, QEvent::Drop})
        EXPECT_TRUE(Drops(type)) << type;
    for (const auto type : {QEvent::Timer, QEvent::Paint, QEvent::UpdateRequest, QEvent::MetaCall})
        EXPECT_FALSE(Drops(type)) << type;
}

TEST(InputHold, RefusesToCloseAWindow) {
    QEvent close(QEvent::Close);
    close.accept();
    EXPECT_TRUE(InputHold().eventFilter(nullptr, &close));
    EXPECT_FALSE(close.isAccepted());
    QEvent press(QEvent::MouseButtonPress);
    press.accept();
    InputHold().eventFilter(nullptr, &press);
    EXPECT_TRUE(press.isAccepted());
}
