#include "monkey/Monkey.h"

#include <QApplication>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QThread>
#include <QTimer>
#include <QWindow>

#include <cstdlib>

namespace {
constexpr int Pause = 1;          ///< millisecond between two inputs: the program paints
constexpr int MostClosings = 100; ///< then it is ended as by a kill

/// Its dialog for printing is not ours, and would write files anywhere.
bool IsOfThePlatform(const QWidget* window) {
    return window->objectName() == u"printDialog";
}
} // namespace

Monkey::Monkey(quint32 seed, int inputs, Trail& trail, RowWatch& rows)
    : input_(seed)
    , left_(inputs)
    , trail_(trail)
    , rows_(rows) {
    Schedule();
}

/// Each timer is a new one: a timer does not fire again within its own call, and an input may open
/// a window that has an event loop of its own.
void Monkey::Schedule() {
    QTimer::singleShot(Pause, this, &Monkey::Wake);
}

/// An input that is not done yet lets events through. The next one waits, unless a window has
/// opened.
void Monkey::Wake() {
    Schedule();
    const int level = QThread::currentThread()->loopLevel();
    if (acting_ && level <= level_)
        return;
    const QScopedValueRollback<bool> acting(acting_, true);
    const QScopedValueRollback<int> own(level_, level);
    Act();
}

void Monkey::Act() {
    rows_.Begin();
    QWidget* window = RandomInput::Window();
    if (!window || !window->windowHandle())
        return;
    if (IsOfThePlatform(window)) {
        window->windowHandle()->close();
        return;
    }
    LookAt(window);
    if (--left_ < 0)
        return Leave(window);
    const RandomInput::Input input = input_.Next();
    trail_.Add(input.told);
    input.perform();
}

void Monkey::Leave(QWidget* window) {
    if (left_ < -MostClosings)
        std::_Exit(EXIT_SUCCESS);
    trail_.Add({Action::Close, QStringLiteral("at the end"), window->objectName(), {}, {}});
    window->windowHandle()->close();
}

/// The library's own message tells of a failure that no routine handled, and that ends the program.
void Monkey::LookAt(QWidget* window) {
    const auto* message = qobject_cast<QMessageBox*>(window);
    if (!message || seen_ == window)
        return;
    seen_ = window;
    trail_.Report("a failure that nobody handles: " + message->text());
}
