#pragma once

#include <QObject>
#include <QPointer>

class ucMenu;
class QKeyEvent;
class QWidget;

/// The menu bar's keyboard. F10 or Alt alone moves the focus to the titles and back; Alt with a
/// title's first letter opens its menu. An open menu takes all keys but does not move the focus.
class MenuKeys : public QObject {
    Q_OBJECT

public:
    explicit MenuKeys(ucMenu* bar);

    bool OnOpenKey(int key); ///< a key while a menu is open; true if it was used
    void GiveFocusBack();    ///< to the control that had it before

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
    QPointer<QWidget> cameFrom_; ///< had the focus before the titles got it
    bool altAlone_ = false;      ///< Alt is down, and no other key was pressed with it
};
