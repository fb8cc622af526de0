#include "core/MenuKeys.h"

#include "core/MenuLabel.h"
#include "core/MenuPanel.h"
#include "core/ucMenu.h"
#include "toolkit/Accessible.h"

#include <QApplication>
#include <QKeyEvent>
#include <QShortcut>

namespace {

int Neighbour(int menu, int step) {
    return (menu + step + MenuItems::MenuCount) % MenuItems::MenuCount;
}

bool IsPress(int key) {
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
}

/// -1, 1, or 0 for any other key.
int Step(int key, Qt::Key back, Qt::Key forth) {
    return key == back ? -1 : key == forth ? 1 : 0;
}

} // namespace

MenuKeys::MenuKeys(ucMenu* bar)
    : QObject(bar)
    , bar_(bar) {
    for (int menu = 0; menu < MenuItems::MenuCount; ++menu) {
        bar_->Title(menu)->setFocusPolicy(Qt::TabFocus);
        bar_->Title(menu)->installEventFilter(this);
    }
    bar_->window()->installEventFilter(this);
    AddShortcuts();
}

void MenuKeys::AddShortcuts() {
    QWidget* window = bar_->window();
    connect(new QShortcut(Qt::Key_F10, window), &QShortcut::activated, this, &MenuKeys::OnBarKey);
    for (int menu = 0; menu < MenuItems::MenuCount; ++menu) {
        const QKeySequence keys(QString("Alt+" + bar_->Title(menu)->Caption().left(1)));
        connect(new QShortcut(keys, window), &QShortcut::activated, this,
                [this, menu] { Open(menu, 1); });
    }
}

int MenuKeys::FocusedTitle() const {
    for (int menu = 0; menu < MenuItems::MenuCount; ++menu)
        if (bar_->Title(menu)->hasFocus())
            return menu;
    return -1;
}

/// Moves the focus to the first title, or back.
void MenuKeys::OnBarKey() {
    altAlone_ = false;
    const bool within = bar_->IsOpen() || FocusedTitle() >= 0;
    bar_->ResetMenu();
    if (within)
        return GiveFocusBack();
    cameFrom_ = QApplication::focusWidget();
    bar_->Title(MenuItems::File)->setFocus(Qt::ShortcutFocusReason);
}

void MenuKeys::GiveFocusBack() {
    const QPointer<QWidget> back = std::exchange(cameFrom_, nullptr);
    const int title = FocusedTitle();
    if (title < 0)
        return;
    if (back && back->isVisible())
        back->setFocus(Qt::OtherFocusReason);
    else
        bar_->Title(title)->clearFocus();
}

void MenuKeys::Open(int menu, int step) {
    altAlone_ = false;
    bar_->Open(menu);
    if (FocusedTitle() >= 0)
        bar_->Title(menu)->setFocus(Qt::ShortcutFocusReason);
    MoveHilite(step);
}

void MenuKeys::MoveHilite(int step) {
    MenuPanel* panel = bar_->Panel(bar_->Shown());
    MenuLabel* item = panel->Next(panel->Hilited(), step);
    panel->Hilite(item);
    TellCurrent(item);
}

bool MenuKeys::OnOpenKey(int key) {
    const int menu = bar_->Shown();
    MenuLabel* item = bar_->Panel(menu)->Hilited();
    if (const int across = Step(key, Qt::Key_Left, Qt::Key_Right))
        Open(Neighbour(menu, across), 1);
    else if (const int down = Step(key, Qt::Key_Up, Qt::Key_Down))
        MoveHilite(down);
    else if (IsPress(key) && item)
        item->Activate();
    else if (key == Qt::Key_Escape || key == Qt::Key_Alt)
        bar_->ResetMenu();
    else if (key == Qt::Key_Tab || key == Qt::Key_Backtab)
        return bar_->ResetMenu(), false;
    return true;
}

bool MenuKeys::OnTitleKey(int menu, int key) {
    if (const int across = Step(key, Qt::Key_Left, Qt::Key_Right))
        bar_->Title(Neighbour(menu, across))->setFocus(Qt::ShortcutFocusReason);
    else if (const int down = Step(key, Qt::Key_Up, Qt::Key_Down))
        Open(menu, down);
    else if (IsPress(key))
        Open(menu, 1);
    else if (key == Qt::Key_Escape)
        GiveFocusBack();
    else
        return false;
    return true;
}

/// Alt counts on release, because it may be held for another key.
void MenuKeys::OnWindowKey(const QEvent* event) {
    const auto* key = static_cast<const QKeyEvent*>(event);
    const bool isAlt = key->key() == Qt::Key_Alt;
    if (event->type() == QEvent::KeyPress)
        altAlone_ = isAlt && key->modifiers() == Qt::AltModifier;
    else if (isAlt && altAlone_)
        OnBarKey();
}

bool MenuKeys::eventFilter(QObject* watched, QEvent* event) {
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    if (watched == bar_->window()) {
        if (isKey)
            OnWindowKey(event);
        else if (event->type() == QEvent::WindowDeactivate)
            altAlone_ = false;
        return false;
    }
    return event->type() == QEvent::KeyPress && FocusedTitle() >= 0 &&
           OnTitleKey(FocusedTitle(), static_cast<QKeyEvent*>(event)->key());
}
