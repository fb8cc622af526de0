#include "intake/ui/DayMenu.h"

#include "foods/Meals.h"
#include "intake/ui/ucMyFood.h"
#include "runtime/Clock.h"
#include "toolkit/ucAte.h"

#include <QMenu>

namespace {

/// The letter behind the & chooses the item.
QAction* Item(QMenu& menu, const char* name, const char* caption,
              const std::function<void()>& chosen, bool enabled = true) {
    QAction* item = menu.addAction(QLatin1String(caption), &menu, chosen);
    item->setObjectName(QLatin1String(name));
    item->setEnabled(enabled);
    return item;
}

} // namespace

DayMenu::DayMenu(ucMyFood* list)
    : QObject(list)
    , list_(list) {}

void DayMenu::Fill(QMenu& menu, QWidget* target) {
    const std::optional<int> meal = list_->MealAt(target);
    if (ucAte* line = list_->LineAt(target))
        AddLine(menu, line);
    else if (meal)
        AddMeal(menu, *meal);
    else
        AddDay(menu);
    menu.addSeparator();
    AddUndo(menu);
}

void DayMenu::AddLine(QMenu& menu, ucAte* line) {
    const LoggedEntries food = LoggedEntries::One(ucMyFood::KeyOf(line));
    menu.setAccessibleName(line->Caption());
    Item(menu, "changeQuantity", "Change &quantity", [this, line] {
        list_->EditQuantity(line);
    })->setShortcut(Qt::Key_F2);
    AddCopies(menu, food, true);
    AddMoves(menu, food, list_->MealOf(line), true);
    Item(menu, "remove", "&Remove", [line] { line->Remove(); })->setShortcut(Qt::Key_Delete);
}

void DayMenu::AddMeal(QMenu& menu, int meal) {
    const LoggedEntries foods = LoggedEntries::Of(list_->Date(), meal);
    const bool any = list_->HasFoods(meal);
    menu.setAccessibleName(Meals::NameOf(meal));
    Item(menu, "add", "&Add food...", [this, meal] { Q_EMIT AddAsked(meal); });
    AddCopies(menu, foods, any);
    AddMoves(menu, foods, meal, any);
    if (!any)
        Item(menu, "copyFromYesterday", "Copy from &yesterday", [this, meal] {
            const QDate day = list_->Date();
            list_->Copy(LoggedEntries::Of(day.addDays(-1), meal), day.addDays(-1), day);
        });
}

void DayMenu::AddDay(QMenu& menu) {
    menu.setAccessibleName(list_->accessibleName());
    Item(menu, "add", "&Add food...", [this] { Q_EMIT AddAsked(-1); });
    AddCopies(menu, LoggedEntries::Of(list_->Date()), list_->HasFoods());
}

void DayMenu::AddCopies(QMenu& menu, const LoggedEntries& foods, bool any) {
    const QDate today = Clock::Today();
    Item(
        menu, "copyToToday", "Copy to &today",
        [this, foods, today] { list_->Copy(foods, list_->Date(), today); },
        any && list_->Date() != today);
    Item(
        menu, "copyToDay", "Copy to &day...", [this, foods] { Q_EMIT CopyDayAsked(foods); }, any);
}

void DayMenu::AddMoves(QMenu& menu, const LoggedEntries& foods, int meal, bool any) {
    QMenu* moves = menu.addMenu(QStringLiteral("&Move to meal"));
    moves->setObjectName(QStringLiteral("moveToMeal"));
    moves->setEnabled(any);
    for (int to = 0; to < int(Meals::Names.size()); ++to)
        Item(
            *moves, Meals::Names[static_cast<size_t>(to)], qPrintable(u'&' + Meals::NameOf(to)),
            [this, foods, to] { list_->Move(foods, to); }, to != meal);
}

void DayMenu::AddUndo(QMenu& menu) {
    Item(
        menu, "undo", "&Undo", [this] { list_->Undo(); }, list_->CanUndo())
        ->setShortcut(QKeySequence::Undo);
}
