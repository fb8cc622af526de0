#include "core/Screens.h"

#include "analysis/frmReport.h"
#include "core/Navigation.h"
#include "core/ScreenNames.h"
#include "core/frmMain.h"
#include "foods/frmFoodList.h"
#include "intake/frmDay.h"
#include "model/frmProfile.h"
#include "recipes/frmRecipeManager.h"

void RegisterScreens(Navigation& navigation) {
    navigation.Register<frmMain>(ScreenNames::Home);
    navigation.Register<frmDay>(ScreenNames::Day);
    navigation.Register<frmReport>(ScreenNames::Report);
    navigation.Register<frmFoodList>(ScreenNames::CustomFoods);
    navigation.Register<frmRecipeManager>(ScreenNames::Recipes);
    navigation.Register<frmProfile>(ScreenNames::Profile);
}
