#include "runtime/InputHold.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>
#include <iterator>

namespace {

constexpr QEvent::Type Inputs[] = {
    QEvent::KeyPress,
    QEvent::KeyRelease,
    QEvent::ShortcutOverride,
    QEvent::Shortcut,
    QEvent::InputMethod,
    QEvent::MouseButtonPress,
    QEvent::MouseButtonRelease,
    QEvent::MouseButtonDblClick,
    QEvent::MouseMove,
    QEvent::Wheel,
    QEvent::ContextMenu,
    QEvent::TouchBegin,
    QEvent::TouchUpdate,
    QEvent::TouchEnd,
    QEvent::TabletPress,
    QEvent::TabletMove,
    QEvent::TabletRelease,
    QEvent::NativeGesture,
    QEvent::DragEnter,
    QEvent::Drop,
    QEvent::Close,
};

} // namespace

InputHold::InputHold() {
    QCoreApplication::instance()->installEventFilter(this);
}

/// An accepted close event would still close the window.
bool InputHold::eventFilter(QObject*, QEvent* event) {
    if (std::find(std::begin(Inputs), std::end(Inputs), event->type()) == std::end(Inputs))
        return false;
    if (event->type() == QEvent::Close)
        event->ignore();
    return true;
}
