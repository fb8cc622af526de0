#pragma once

#include <QObject>
#include <QPointer>

class ucMenu;
class QKeyEvent;
class QWidget;

/// How the menu bar is worked from the keyboard. F10, or Alt by itself, leads to its titles and
/// away again; Alt with a title's first letter opens that menu. An open menu takes every key, and
/// leaves the focus where it is.
class MenuKeys : public QObject {
    Q_OBJECT

public:
    explicit MenuKeys(ucMenu* bar);

    bool OnOpenKey(int key); ///< a key while a menu is open; true where it is used up
    void GiveFocusBack();    ///< to the control that had it before the titles

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void AddShortcuts();
    void OnBarKey();
    void Open(int menu, int step);
    void MoveHilite(int step);
    bool OnTitleKey(int menu, int key);
    void OnWindowKey(const QEvent* event);
    int FocusedTitle() const;

    ucMenu* bar_;
    QPointer<QWidget> cameFrom_; ///< had the focus before the titles
    bool altAlone_ = false;      ///< Alt is down, and nothing has been pressed with it
};
