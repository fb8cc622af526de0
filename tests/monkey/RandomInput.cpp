#include "monkey/RandomInput.h"

#include "monkey/Keyboard.h"

#include "core/Navigation.h"
#include "core/frmHOME.h"
#include "runtime/Clock.h"
#include "toolkit/DrawnControl.h"

#include <QAbstractButton>
#include <QApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPointer>
#include <QTest>
#include <QWindow>

#include <algorithm>
#include <numeric>

namespace {

void AddChain(QStringList& names, const QWidget* control) {
    for (; control && !control->isWindow(); control = control->parentWidget())
        if (!control->objectName().isEmpty())
            names << control->objectName();
}

/// An alert is told with its message: the same button answers every question.
QString NameOf(const QWidget* window) {
    QString name = window->objectName();
    if (name == u"frmAlert")
        name += u' ' + window->accessibleDescription();
    return name.isEmpty() ? QString::fromLatin1(window->metaObject()->className()) : name;
}

Action Told(Action::Kind kind, const QString& detail, const QWidget* window,
            const QWidget* control) {
    Action action{kind, detail, NameOf(window), {}, {}};
    if (const ScreenForm* front = TheNavigation().Front())
        action.screen = front->objectName();
    AddChain(action.controls, control);
    AddChain(action.controls, window->focusWidget());
    if (TheNavigation().HasFrame())
        AddChain(action.controls, TheNavigation().Frame()->focusWidget());
    return action;
}

QWidget* ControlAt(QWidget* window, QPoint place) {
    QWidget* control = window->childAt(place);
    return control ? control : window;
}

QString Text(QPoint place) {
    return QStringLiteral("%1,%2").arg(place.x()).arg(place.y());
}

bool IsForUse(const QWidget* control) {
    return qobject_cast<const DrawnControl*>(control) || qobject_cast<const QLineEdit*>(control) ||
           qobject_cast<const QAbstractButton*>(control);
}

bool CanBePressed(const QWidget* control) {
    return control->isVisible() && control->isEnabled() && !control->visibleRegion().isEmpty();
}

/// A start would soon be over if these were pressed as often as the others.
bool EndsTheProgram(const QWidget* control) {
    static const QStringList names{"cmdQuit", "lblMenuItem4", "cmdNO"};
    return names.contains(control->objectName());
}

QWidget* FirstVisible() {
    QWidgetList windows = QApplication::topLevelWidgets();
    windows.removeIf([](const QWidget* window) { return !window->isVisible(); });
    const auto byName = [](const QWidget* window) { return window->objectName(); };
    const auto first = std::ranges::min_element(windows, {}, byName);
    return first == windows.end() ? nullptr : *first;
}

/// An input before may have closed the window.
bool TakesInput(const QPointer<QWindow>& window) {
    return window && window->isVisible();
}

void PressAndRelease(const QPointer<QWindow>& window, Qt::MouseButton button, QPoint place) {
    if (TakesInput(window))
        QTest::mousePress(window, button, {}, place);
    if (TakesInput(window))
        QTest::mouseRelease(window, button, {}, place);
}

QList<Qt::Key> KeysOf(Qt::KeyboardModifiers modifiers) {
    QList<Qt::Key> keys;
    for (const auto& [modifier, key] :
         {std::pair{Qt::ShiftModifier, Qt::Key_Shift},
          std::pair{Qt::ControlModifier, Qt::Key_Control}, std::pair{Qt::AltModifier, Qt::Key_Alt}})
        if (modifiers.testFlag(modifier))
            keys << key;
    return keys;
}

void SendKey(const QPointer<QWindow>& window, bool press, Qt::Key key, Qt::KeyboardModifiers with) {
    const char text = QTest::keyToAscii(key);
    if (TakesInput(window))
        QTest::simulateEvent(window, press, key, with,
                             text ? QString(QLatin1Char(text)) : QString(), false);
}

/// Each of the keys may close the window, also a modifier: QTest::keyPress would go on using it.
void PressAndRelease(const QPointer<QWindow>& window, Qt::Key key, Qt::KeyboardModifiers with) {
    QList<Qt::Key> keys = KeysOf(with) << key;
    for (const bool press : {true, false}) {
        for (const Qt::Key next : std::as_const(keys))
            SendKey(window, press, next, next == key ? with : Qt::NoModifier);
        std::ranges::reverse(keys);
    }
}

/// A character that no key of this keyboard gives comes from an input method. A character before
/// may have closed the window, and a dialog of its own may be over, too.
void Type(const QPointer<QWidget>& window, QChar character) {
    if (!window || !window->isVisible() || !window->windowHandle())
        return;
    if (character.unicode() >= ' ' && character.unicode() < 0x7f)
        return QTest::keyClick(window->windowHandle(), char(character.unicode()));
    QInputMethodEvent composed;
    composed.setCommitString(character);
    if (QWidget* field = window->focusWidget())
        QCoreApplication::sendEvent(field, &composed);
}

} // namespace

struct RandomInput::Way {
    int weight;
    Input (RandomInput::*choose)(QWidget* window);
};

const RandomInput::Way RandomInput::Ways[] = {
    {460, &RandomInput::PressControl}, {60, &RandomInput::PressAnywhere},
    {170, &RandomInput::PressKey},     {140, &RandomInput::TypeText},
    {40, &RandomInput::Drag},          {50, &RandomInput::TurnWheel},
    {70, &RandomInput::MovePointer},   {3, &RandomInput::Minimise},
    {4, &RandomInput::CloseWindow},    {3, &RandomInput::PassMidnight},
};

QWidget* RandomInput::Window() {
    if (QWidget* popup = QApplication::activePopupWidget())
        return popup;
    if (QWidget* dialog = QApplication::activeModalWidget())
        return dialog;
    if (TheNavigation().HasFrame() && TheNavigation().Frame()->isVisible())
        return TheNavigation().Frame();
    return FirstVisible();
}

RandomInput::Input RandomInput::Next() {
    QWidget* window = Window();
    const int all = std::accumulate(std::begin(Ways), std::end(Ways), 0,
                                    [](int sum, const Way& way) { return sum + way.weight; });
    int drawn = random_.bounded(all);
    const auto* way = std::begin(Ways);
    for (; drawn >= way->weight; ++way)
        drawn -= way->weight;
    return (this->*way->choose)(window);
}

QPoint RandomInput::PlaceIn(const QRect& area) {
    return {area.left() + random_.bounded(qMax(1, area.width())),
            area.top() + random_.bounded(qMax(1, area.height()))};
}

QPoint RandomInput::PlaceOn(QWidget* control, QWidget* window) {
    return control->mapTo(window, PlaceIn(control->visibleRegion().boundingRect()));
}

QWidget* RandomInput::AnyControl(QWidget* window) {
    const bool forUse = Chance(85);
    const bool mayEnd = Chance(2);
    QWidgetList controls = window->findChildren<QWidget*>();
    controls.removeIf([=](const QWidget* control) {
        return !CanBePressed(control) || (forUse && !IsForUse(control)) ||
               (!mayEnd && EndsTheProgram(control));
    });
    return controls.isEmpty() ? window : OneOf(controls);
}

RandomInput::Input RandomInput::PressControl(QWidget* window) {
    return PressAt(window, PlaceOn(AnyControl(window), window));
}

RandomInput::Input RandomInput::PressAnywhere(QWidget* window) {
    return PressAt(window, PlaceIn(window->rect()));
}

RandomInput::Input RandomInput::PressAt(QWidget* window, QPoint place) {
    const bool left = Chance(95);
    const bool twice = Chance(5);
    const auto perform = [window = QPointer(window->windowHandle()), place, left, twice] {
        const Qt::MouseButton button = left ? Qt::LeftButton : Qt::RightButton;
        QTest::mouseMove(window, place);
        for (int i = 0; i < (twice ? 2 : 1); ++i)
            PressAndRelease(window, button, place);
    };
    const QString detail = Text(place) + (left ? "" : " right") + (twice ? " twice" : "");
    return {Told(Action::Press, detail, window, ControlAt(window, place)), perform};
}

RandomInput::Input RandomInput::PressKey(QWidget* window) {
    const Keyboard::Pressed pressed =
        OneOf(Chance(75) ? Keyboard::OftenPressed() : Keyboard::SometimesPressed());
    const auto perform = [window = QPointer(window->windowHandle()), pressed] {
        PressAndRelease(window, Qt::Key(pressed.key), pressed.modifiers);
    };
    const QString keys = QKeySequence(pressed.key | pressed.modifiers.toInt()).toString();
    Action told = Told(Action::Key, keys, window, nullptr);
    told.controls << keys;
    return {told, perform};
}

RandomInput::Input RandomInput::TypeText(QWidget* window) {
    const QString text = OneOf(Keyboard::Texts());
    const bool instead = Chance(70);
    const auto perform = [window = QPointer(window), text, instead] {
        if (instead)
            PressAndRelease(window->windowHandle(), Qt::Key_A, Qt::ControlModifier);
        for (const QChar character : text)
            Type(window, character);
    };
    return {Told(Action::Text, text.left(40), window, nullptr), perform};
}

RandomInput::Input RandomInput::Drag(QWidget* window) {
    const QPoint from = PlaceOn(AnyControl(window), window);
    const QPoint to = PlaceIn(window->rect().adjusted(-20, -20, 20, 20));
    const auto perform = [window = QPointer(window->windowHandle()), from, to] {
        QTest::mousePress(window, Qt::LeftButton, {}, from);
        for (int step = 1; step <= 3 && window; ++step)
            QTest::mouseMove(window, from + (to - from) * step / 3);
        if (window)
            QTest::mouseRelease(window, Qt::LeftButton, {}, to);
    };
    return {Told(Action::Drag, Text(from) + " to " + Text(to), window, ControlAt(window, from)),
            perform};
}

RandomInput::Input RandomInput::TurnWheel(QWidget* window) {
    const QPoint place = PlaceOn(AnyControl(window), window);
    const QPoint turn(0, 120 * (random_.bounded(9) - 4));
    QWidget* control = ControlAt(window, place);
    const auto perform = [control, place = QPointF(control->mapFrom(window, place)), turn] {
        QWheelEvent wheel(place, control->mapToGlobal(place), {}, turn, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(control, &wheel);
    };
    return {Told(Action::Wheel, Text(turn), window, control), perform};
}

RandomInput::Input RandomInput::MovePointer(QWidget* window) {
    const QPoint place = PlaceOn(AnyControl(window), window);
    const auto perform = [window, place] { QTest::mouseMove(window->windowHandle(), place); };
    return {Told(Action::Move, Text(place), window, ControlAt(window, place)), perform};
}

RandomInput::Input RandomInput::Minimise(QWidget* window) {
    if (window->windowType() == Qt::Popup)
        return MovePointer(window);
    const auto perform = [window = QPointer(window)] {
        window->showMinimized();
        QCoreApplication::processEvents();
        if (window)
            window->showNormal();
    };
    return {Told(Action::Wait, QStringLiteral("minimised"), window, nullptr), perform};
}

RandomInput::Input RandomInput::CloseWindow(QWidget* window) {
    const auto perform = [window] { window->windowHandle()->close(); };
    return {Told(Action::Close, QString(), window, nullptr), perform};
}

RandomInput::Input RandomInput::PassMidnight(QWidget* window) {
    const auto perform = [] { Clock::SetToday(Clock::Today().addDays(1)); };
    return {Told(Action::Wait, QStringLiteral("midnight"), window, nullptr), perform};
}
