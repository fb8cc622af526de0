#pragma once

/// A screen of the nest, and the button of the frame that leads to it.
struct ScreenRow {
    const char* name;    ///< its class and object name: ShowScreen finds it by this
    const char* title;   ///< in the frame while the screen stands in front
    const char* button;  ///< name of the navigation button; null: no button leads to this screen
    const char* picture; ///< on the button
    const char* caption; ///< below the picture
    const char* hover;   ///< in place of the title while the pointer is on the button
};

/// The screens. The navigation column shows their buttons in the order of `All`; core/Screens.cpp
/// says which class draws which row.
namespace Screens {
// clang-format off
inline constexpr ScreenRow Main{"frmMain", "Main", "cmdCal", "calendar", "Main", "Main"};
inline constexpr ScreenRow Day{"frmDay", "Daily Details", "cmdDay", "daily", "Daily", "Daily Details"};
inline constexpr ScreenRow Report{"frmReport", "Report", "cmdReport", "reports", "Reports", "Reports"};
inline constexpr ScreenRow FoodList{"frmFoodList", "Custom Foods", "cmdCustomFoods", "apple", "My Foods", "Custom Foods"};
inline constexpr ScreenRow RecipeManager{"frmRecipeManager", "Recipe Manager", "cmdRecipes", "book", "Recipes", "Recipe Manager"};
inline constexpr ScreenRow Profile{"frmProfile", "User Profile", nullptr, nullptr, nullptr, nullptr};
// clang-format on

inline constexpr const ScreenRow* All[] = {&Main,     &Day,           &Report,
                                           &FoodList, &RecipeManager, &Profile};
} // namespace Screens
