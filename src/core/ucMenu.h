#pragma once

#include "core/MenuItems.h"

#include <QWidget>

class MenuKeys;
class MenuLabel;
class MenuPanel;

/// The menu bar: three titles on the band, and a panel below each that drops over the screens. The
/// panels are children of the window. While one is open, a press anywhere else in the window closes
/// it, and so does the loss of the input.
class ucMenu : public QWidget {
    Q_OBJECT

public:
    explicit ucMenu(QWidget* parent);

    bool IsOpen() const { return open_; }
    int Shown() const; ///< the menu whose panel is showing, or -1
    MenuLabel* Title(int menu) const { return menus_[menu].title; }
    MenuPanel* Panel(int menu) const { return menus_[menu].panel; }

    void Open(int menu);
    void resetHilites();
    void ResetMenu();

Q_SIGNALS:
    void Chosen(int index); ///< the menu stays open until the receivers have done their work

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Entry {
        MenuLabel* title = nullptr;
        MenuPanel* panel = nullptr;
    };

    void AddMenu(int menu, int left);
    void OnTitlePress(int menu);
    void OnTitleMove(int menu);
    void Run(int index);
    bool IsOwn(const QWidget* control) const;

    std::array<Entry, MenuItems::MenuCount> menus_;
    MenuKeys* keys_;
    bool open_ = false;
};
