#include "tour/KeyWalk.h"

#include "tour/Guide.h"

#include "runtime/Clock.h"
#include "runtime/Format.h"
#include "store/Connection.h"

#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QToolTip>

namespace {
const QString Logged = QStringLiteral("SELECT count(*) FROM USER_FOODS");
}

KeyWalk::KeyWalk(Guide& guide)
    : guide_(guide) {}

void KeyWalk::Go() {
    guide_.TakeInput(Frame());
    LookAtMenus();
    CopyAFood();
    MoveAFood();
    ChangeAQuantity();
    BringADayBack();
    LogWithKeys();
    LookAtTips();
}

QWidget* KeyWalk::Frame() {
    return guide_.Window(QStringLiteral("frmHOME"));
}

QWidget* KeyWalk::Day() {
    return guide_.Window(QStringLiteral("frmDay"));
}

/// What the next key goes to.
QWidget* KeyWalk::Focus() {
    if (QWidget* popup = QApplication::activePopupWidget())
        return popup;
    return QApplication::focusWidget() ? QApplication::focusWidget() : Frame();
}

void KeyWalk::Press(int key, Qt::KeyboardModifiers held) {
    ++keys_;
    QTest::keyClick(Focus(), Qt::Key(key), held);
    guide_.Settle();
}

void KeyWalk::FocusFood(const char* line) {
    guide_.Find(guide_.Find(Day(), QLatin1String(line)), QStringLiteral("imgTrash"))
        ->setFocus(Qt::TabFocusReason);
}

void KeyWalk::OpenMenu() {
    Press(Qt::Key_F10, Qt::ShiftModifier);
    guide_.Check(QApplication::activePopupWidget() != nullptr, QStringLiteral("a menu is open"));
}

/// They open a moment after their key.
void KeyWalk::OpenMeals() {
    Press(Qt::Key_M);
    guide_.Check(QTest::qWaitFor([] {
                     const QWidget* menu = QApplication::activePopupWidget();
                     return menu && menu->objectName() == QStringLiteral("moveToMeal");
                 }),
                 QStringLiteral("the menu of meals is open"));
}

void KeyWalk::ExpectStatus(const QString& text) {
    const auto* status = guide_.Find<QLabel>(Day(), QStringLiteral("lblStatus"));
    guide_.Check(status->isVisible() && status->text() == text,
                 QString("the status " + text + ", found " + status->text()));
}

void KeyWalk::Undo(const QString& status) {
    Press(Qt::Key_Z, Qt::ControlModifier);
    ExpectStatus(status);
}

void KeyWalk::LookAtMenus() {
    FocusFood("ucAte1");
    OpenMenu();
    guide_.PictureWithPopups(Frame(), QStringLiteral("menu-of-a-food"));
    OpenMeals();
    guide_.PictureWithPopups(Frame(), QStringLiteral("menu-of-meals"));
    Press(Qt::Key_Escape);
    Press(Qt::Key_Escape);
    guide_.Find(Day(), QStringLiteral("lblLunch"))->setFocus(Qt::TabFocusReason);
    OpenMenu();
    guide_.PictureWithPopups(Frame(), QStringLiteral("menu-of-a-meal"));
    Press(Qt::Key_Escape);
    Day()->setFocus();
    OpenMenu();
    guide_.PictureWithPopups(Frame(), QStringLiteral("menu-of-the-day"));
    Press(Qt::Key_Escape);
}

void KeyWalk::CopyAFood() {
    const QDate next = Clock::Today().addDays(1);
    const QString tomorrow = FormatShortDate(next);
    const QString copied = Logged + " WHERE UDate = '" + next.toString(Qt::ISODate) + u'\'';
    const QString food =
        guide_.Find(Day(), QStringLiteral("ucAte1"))->property("FoodName").toString();
    FocusFood("ucAte1");
    OpenMenu();
    Press(Qt::Key_D);
    guide_.Picture(Frame(), QStringLiteral("copy-calendar"));
    Press(Qt::Key_Right);
    Press(Qt::Key_Return);
    guide_.Picture(Frame(), QStringLiteral("copied"));
    guide_.CheckValue(UserDB(), copied, 1);
    Press(Qt::Key_Z, Qt::ControlModifier);
    guide_.Picture(Frame(), QStringLiteral("copy-taken-back"));
    guide_.CheckValue(UserDB(), copied, 0);
    const auto* status = guide_.Find<QLabel>(Day(), QStringLiteral("lblStatus"));
    guide_.Check(status->text().startsWith(QString("Took back the copy on " + tomorrow)) &&
                     status->text().contains(food.left(10)),
                 QString("the status " + status->text()));
}

void KeyWalk::MoveAFood() {
    FocusFood("ucAte1");
    OpenMenu();
    OpenMeals();
    Press(Qt::Key_S);
    guide_.Picture(Frame(), QStringLiteral("moved"));
    guide_.CheckValue(UserDB(), Logged + " WHERE Meal = 'Snacks'", 3);
    Press(Qt::Key_Z, Qt::ControlModifier);
    guide_.CheckValue(UserDB(), Logged + " WHERE Meal = 'Snacks'", 2);
}

void KeyWalk::ChangeAQuantity() {
    FocusFood("ucAte1");
    Press(Qt::Key_F2);
    guide_.Picture(Frame(), QStringLiteral("quantity-field"));
    guide_.Foresee(QStringLiteral("frmAlert"), [this](QWidget* alert) {
        guide_.Picture(alert, QStringLiteral("alert-quantity-in-place"));
        guide_.Press(alert, QStringLiteral("cmdOK"));
    });
    QTest::keyClicks(Focus(), QStringLiteral("100"));
    Press(Qt::Key_Return);
    guide_.TakeInput(Frame());
    QTest::keyClicks(Focus(), QStringLiteral("2.5"));
    Press(Qt::Key_Return);
    guide_.Picture(Frame(), QStringLiteral("quantity-changed"));
    guide_.CheckValue(UserDB(), Logged + " WHERE QTY = 2.5", 1);
    Press(Qt::Key_Z, Qt::ControlModifier);
    guide_.CheckValue(UserDB(), Logged + " WHERE QTY = 2.5", 0);
}

void KeyWalk::BringADayBack() {
    guide_.Foresee(QStringLiteral("frmAlert"),
                   [this](QWidget* alert) { guide_.Press(alert, QStringLiteral("cmdOK")); });
    guide_.Press(Day(), QStringLiteral("cmdClear"));
    guide_.TakeInput(Frame());
    guide_.CheckValue(UserDB(), Logged, 0);
    Undo(QStringLiteral("Brought back: 10 foods."));
    guide_.Picture(Frame(), QStringLiteral("day-brought-back"));
    guide_.CheckValue(UserDB(), Logged, 10);
}

/// From another screen: the shortcut, the words, Enter and Enter.
void KeyWalk::LogWithKeys() {
    Press(Qt::Key_4, Qt::ControlModifier);
    guide_.Window(QStringLiteral("frmFoodList"));
    keys_ = 0;
    guide_.Foresee(QStringLiteral("frmFoodSearch"),
                   [this](QWidget* search) { SearchWithKeys(search); });
    Press(Qt::Key_F, Qt::ControlModifier);
    guide_.TakeInput(Frame());
    guide_.CheckValue(UserDB(), Logged, 11);
    Undo(QStringLiteral("Removed again: Apples, raw, with skin."));
    guide_.CheckValue(UserDB(), Logged, 10);
}

void KeyWalk::SearchWithKeys(QWidget* search) {
    guide_.TakeInput(search);
    guide_.Settle();
    QTest::keyClick(Focus(), Qt::Key_Delete);
    QTest::keyClick(Focus(), Qt::Key_Down);
    guide_.PictureWithPopups(search, QStringLiteral("search-habits"));
    QTest::keyClick(Focus(), Qt::Key_Escape);
    const QString words = QStringLiteral("apples raw with skin");
    QTest::keyClicks(Focus(), words);
    Press(Qt::Key_Return);
    guide_.Picture(search, QStringLiteral("search-by-key"));
    Press(Qt::Key_Return);
    guide_.Check(keys_ == 3, QStringLiteral("a shortcut, words, Enter and Enter log a food"));
    Press(Qt::Key_Escape);
}

void KeyWalk::LookAtTips() {
    QWidget* bar = guide_.Find(Day(), QStringLiteral("imgBar1"));
    QHelpEvent asked(QEvent::ToolTip, QPoint(20, 4), bar->mapToGlobal(QPoint(20, 4)));
    QApplication::sendEvent(bar, &asked);
    guide_.PictureWithPopups(Frame(), QStringLiteral("day-bar-tip"));
    QToolTip::hideText();
}
