#include "core/Screens.h"

#include "core/Navigation.h"
#include "core/ScreenNames.h"
#include "foods/frmFoodList.h"
#include "intake/frmDay.h"
#include "model/frmProfile.h"
#include "recipes/frmRecipeManager.h"

void RegisterScreens(Navigation& navigation) {
    navigation.Register<frmDay>(ScreenNames::Day);
    navigation.Register<frmFoodList>(ScreenNames::CustomFoods);
    navigation.Register<frmRecipeManager>(ScreenNames::Recipes);
    navigation.Register<frmProfile>(ScreenNames::Profile);
}
