#pragma once

/// Names under which the screens of the nest are registered.
namespace ScreenNames {
inline constexpr auto Home = "frmMain";
inline constexpr auto Day = "frmDay";
inline constexpr auto Report = "frmReport";
inline constexpr auto CustomFoods = "frmFoodList";
inline constexpr auto Recipes = "frmRecipeManager";
inline constexpr auto Profile = "frmProfile";
} // namespace ScreenNames
