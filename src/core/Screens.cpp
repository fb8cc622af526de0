#include "core/Screens.h"

#include "analysis/ui/frmReport.h"
#include "core/Navigation.h"
#include "core/ScreenNames.h"
#include "core/frmMain.h"
#include "foods/ui/frmFoodList.h"
#include "intake/ui/frmDay.h"
#include "model/ui/frmProfile.h"
#include "recipes/ui/frmRecipeManager.h"

void RegisterScreens(Navigation& navigation) {
    navigation.Register<frmMain>(ScreenNames::Home);
    navigation.Register<frmDay>(ScreenNames::Day);
    navigation.Register<frmReport>(ScreenNames::Report);
    navigation.Register<frmFoodList>(ScreenNames::CustomFoods);
    navigation.Register<frmRecipeManager>(ScreenNames::Recipes);
    navigation.Register<frmProfile>(ScreenNames::Profile);
}
