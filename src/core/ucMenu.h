#pragma once

#include "core/MenuItems.h"

#include <QWidget>

class MenuKeys;
class MenuLabel;
class MenuPanel;

/// The menu bar: three titles, each with a panel that opens over the screens. The panels are
/// children of the window. An open panel closes at a press elsewhere in the window, or when the
/// window loses the input.
class ucMenu : public QWidget {
    Q_OBJECT

public:
    explicit ucMenu(QWidget* parent);

    bool IsOpen() const { return open_; }
    int Shown() const; ///< the open menu, or -1
    MenuLabel* Title(int menu) const { return menus_[menu].title; }
    MenuPanel* Panel(int menu) const { return menus_[menu].panel; }

    void Open(int menu);
    void resetHilites();
    void ResetMenu();

Q_SIGNALS:
    void Chosen(int index); ///< the menu closes after the receivers return

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
