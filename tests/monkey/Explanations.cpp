#include "monkey/Explanations.h"

#include <algorithm>

namespace {

using Explanations::Change;
using enum Explanations::Change;

/// In that window or screen, an input at one of the controls (all, if none is named) may do that to
/// the tables.
struct Rule {
    const char* window;
    const char* controls; ///< beginnings of their names, or a key
    Change change;
    const char* tables;
};

constexpr auto AddButtons = "cmdEAT_ txtQTY_ lblServ";
constexpr Rule Rules[] = {
    {"frmFoodSearch", AddButtons, Added, "USER_FOODS"},
    {"frmRecSearch", AddButtons, Added, "Ingredients"},
    {"frmDay", "imgTrash ucAte", Removed, "USER_FOODS"},
    {"frmAlert Are you sure you wish to remove all foods", "cmdOK", Removed, "USER_FOODS"},
    {"contextMenu", "", Added, "USER_FOODS"},
    {"contextMenu", "", Changed, "USER_FOODS"},
    {"contextMenu", "", Removed, "USER_FOODS"},
    {"moveToMeal", "", Changed, "USER_FOODS"},
    {"frmDay", "smCal qt_calendar", Added, "USER_FOODS"}, // a copy to the chosen day
    {"frmDay", "txtQTY", Changed, "USER_FOODS"},
    {"frmDay", "Ctrl+Z", Added, "USER_FOODS"},
    {"frmDay", "Ctrl+Z", Changed, "USER_FOODS"},
    {"frmDay", "Ctrl+Z", Removed, "USER_FOODS"},
    {"frmDay", "txtWeight", Added, "USER_WEIGHTS"},
    {"frmDay", "txtWeight", Changed, "USER_WEIGHTS profiles"},
    {"frmDay", "", Changed, "profiles"},           // its weight becomes the current one
    {"frmReport", "", Changed, "profiles"},        // the average does, until the report stands
    {"", "cmdReport Ctrl+3", Changed, "profiles"}, // the screen does it while it is made
    {"frmFoodList", "cmdSave", Added, "FOODS"},
    {"frmFoodList", "cmdSave", Changed, "FOODS"},
    {"frmAlert Are you sure you want to delete this custom food?", "cmdOK", Removed, "FOODS"},
    {"frmRecipeManager", "cmdNew", Added, "Recipes"},
    {"frmRecipeManager", "cmdEdit", Changed, "Recipes"},
    {"frmRecipeManager", "imgTrash ucAte", Removed, "Ingredients"},
    {"frmAlert Are you sure you want to delete this recipe?", "cmdOK", Removed,
     "Recipes Ingredients"},
    {"frmImport", "cmdGo txtRecID", Added, "Recipes Ingredients"},
    {"frmProfile", "cmdSave", Added, "profiles"},
    {"frmProfile", "cmdSave", Changed, "profiles"},
};

bool Names(const char* list, const QString& name) {
    return QLatin1String(list).toString().split(u' ').contains(name);
}

bool IsAt(const QStringList& controls, const char* beginnings) {
    if (*beginnings == '\0')
        return true;
    const QStringList known = QLatin1String(beginnings).toString().split(u' ');
    return std::ranges::any_of(controls, [&](const QString& control) {
        return std::ranges::any_of(
            known, [&](const QString& beginning) { return control.startsWith(beginning); });
    });
}

} // namespace

bool Explanations::Covers(const Action& action, const QString& front, Change change,
                          const QString& table) {
    return action.CanChange() && std::ranges::any_of(Rules, [&](const Rule& rule) {
               const QLatin1String window(rule.window);
               const bool there =
                   action.window.startsWith(window) || action.screen == window || front == window;
               return there && rule.change == change && Names(rule.tables, table) &&
                      IsAt(action.controls, rule.controls);
           });
}
