#pragma once

#include <QObject>
#include <QPointer>

#include <functional>

class QMenu;
class QWidget;

/// The context menu of a screen or a dialog: a right click, the menu key and Shift+F10 open it. It
/// is filled each time. Text fields keep the menu of the platform. Its owner is the screen.
class ContextMenu : public QObject {
    Q_OBJECT

public:
    /// Adds the actions for `target`, the control under the pointer or with the focus. A menu that
    /// stays empty does not open.
    using Fill = std::function<void(QMenu& menu, QWidget* target)>;

    ContextMenu(QWidget* owner, Fill fill);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool OpenByKey();
    bool Open(QWidget* target, QPoint globalPlace);

    QWidget* owner_;
    Fill fill_;
    QPointer<QMenu> menu_; ///< the last one
};
