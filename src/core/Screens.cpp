#include "core/Screens.h"

#include "analysis/ui/frmReport.h"
#include "core/Navigation.h"
#include "core/frmMain.h"
#include "foods/ui/frmFoodList.h"
#include "intake/ui/frmDay.h"
#include "model/ui/frmProfile.h"
#include "recipes/ui/frmRecipeManager.h"
#include "runtime/ScreenTable.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace {

struct Registration {
    const ScreenRow& screen;
    ScreenForm* (*make)(QWidget* parent);
};

template <class T> ScreenForm* Make(QWidget* parent) {
    return new T(parent);
}

constexpr Registration Registrations[] = {
    {Screens::Main, Make<frmMain>},
    {Screens::Day, Make<frmDay>},
    {Screens::Report, Make<frmReport>},
    {Screens::FoodList, Make<frmFoodList>},
    {Screens::RecipeManager, Make<frmRecipeManager>},
    {Screens::Profile, Make<frmProfile>},
};

constexpr bool HasClass(const ScreenRow* screen) {
    return std::ranges::count(
               Registrations, std::string_view(screen->name),
               [](const Registration& row) { return std::string_view(row.screen.name); }) == 1;
}
static_assert(std::ranges::all_of(Screens::All, HasClass), "a screen has no class");
static_assert(std::size(Registrations) == std::size(Screens::All), "a screen is not in All");

} // namespace

void RegisterScreens(Navigation& navigation) {
    for (const Registration& row : Registrations)
        navigation.Register(QString::fromLatin1(row.screen.name), row.make);
}
