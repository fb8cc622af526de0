#include "core/ucMenu.h"

#include "core/MenuKeys.h"
#include "core/MenuLabel.h"
#include "core/MenuPanel.h"
#include "toolkit/SpokenRole.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>

namespace {

constexpr int BarLeft = 8; // pixels

} // namespace

ucMenu::ucMenu(QWidget* parent)
    : QWidget(parent) {
    SetSpokenRole(this, QAccessible::MenuBar);
    setObjectName(QStringLiteral("ucMenu"));
    setAccessibleName(QStringLiteral("Menus"));
    setMouseTracking(true);
    int left = BarLeft;
    for (int menu = 0; menu < MenuItems::MenuCount; ++menu) {
        AddMenu(menu, left);
        left = Title(menu)->geometry().right() + 1;
    }
    resize(left, Title(0)->height());
    keys_ = new MenuKeys(this);
}

void ucMenu::AddMenu(int menu, int left) {
    const MenuItems::Title& row = MenuItems::Titles()[menu];
    auto* title = new MenuLabel(MenuLabel::Kind::Title, QLatin1String(row.name),
                                QLatin1String(row.caption), this);
    title->move(left, 0);
    connect(title, &MenuLabel::Click, this, [this, menu] { OnTitlePress(menu); });
    connect(title, &MenuLabel::MouseMove, this, [this, menu] { OnTitleMove(menu); });
    auto* panel = new MenuPanel(static_cast<MenuItems::Menu>(menu), window());
    connect(panel, &MenuPanel::Chosen, this, &ucMenu::Run);
    menus_[menu] = {title, panel};
}

int ucMenu::Shown() const {
    for (int menu = 0; menu < MenuItems::MenuCount; ++menu)
        if (Panel(menu)->isVisible())
            return menu;
    return -1;
}

void ucMenu::resetHilites() {
    for (const Entry& menu : menus_) {
        menu.title->SetHilited(false);
        menu.panel->Hilite(nullptr);
    }
}

void ucMenu::ResetMenu() {
    resetHilites();
    for (const Entry& menu : menus_) {
        menu.panel->hide();
        menu.title->SetOpen(false);
    }
    open_ = false;
    qApp->removeEventFilter(this);
}

void ucMenu::OnTitlePress(int menu) {
    if (open_)
        ResetMenu();
    else
        Open(menu);
}

void ucMenu::OnTitleMove(int menu) {
    if (open_ && Shown() != menu)
        Open(menu);
    for (const Entry& other : menus_)
        other.title->SetHilited(other.title == Title(menu));
}

void ucMenu::Open(int menu) {
    Panel(menu)->move(mapTo(window(), Title(menu)->geometry().bottomLeft() + QPoint(0, 1)));
    Panel(menu)->raise();
    for (int other = 0; other < MenuItems::MenuCount; ++other) {
        Panel(other)->setVisible(other == menu);
        Title(other)->SetOpen(other == menu);
    }
    resetHilites();
    open_ = true;
    qApp->installEventFilter(this);
}

/// The action may end the program and destroy this bar.
void ucMenu::Run(int index) {
    const QPointer<ucMenu> alive(this);
    Q_EMIT Chosen(index);
    if (alive) {
        ResetMenu();
        keys_->GiveFocusBack();
    }
}

bool ucMenu::IsOwn(const QWidget* control) const {
    return isAncestorOf(control) || (open_ && Panel(Shown())->isAncestorOf(control)) ||
           (open_ && Panel(Shown()) == control);
}

/// Installed while a menu is open. The pressed control still gets its press.
bool ucMenu::eventFilter(QObject* watched, QEvent* event) {
    auto* control = qobject_cast<QWidget*>(watched);
    if (!control || control->window() != window())
        return false;
    if (event->type() == QEvent::KeyPress)
        return keys_->OnOpenKey(static_cast<QKeyEvent*>(event)->key());
    const bool pressedElsewhere = event->type() == QEvent::MouseButtonPress && !IsOwn(control);
    if (pressedElsewhere || event->type() == QEvent::WindowDeactivate)
        ResetMenu();
    return false;
}
