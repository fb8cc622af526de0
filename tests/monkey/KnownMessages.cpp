#include "monkey/KnownMessages.h"

#include <algorithm>

namespace {

/// Their beginnings.
constexpr const char* Alerts[] = {
    "Please enter a quantity (QTY) between .1 and 99",
    "Please enter a valid quantity (between .1 and 99)",
    "Please give two different days.",
    "The quantity of this entry cannot be changed.",
    "Please enter a search term.",
    "Please enter a search term of ",
    "Food names cannot contain the special characters",
    "Serving names cannot contain the special characters",
    "Please give your custom food a ",
    "The amount of ",
    "Please select a food from the food list before deleting.",
    "Are you sure you want to delete this custom food?",
    "Recipe name cannot contain the special characters",
    "Recipe yield cannot contain the special characters",
    "Recipe serving description cannot contain the special characters",
    "Recipe preparation instructions cannot contain the special character",
    "Please give your new recipe a ",
    "Are you sure you want to delete this recipe?",
    "You must first search for a recipe to send.",
    "Please enter a User Name.",
    "Please enter your ",
    "Please enter an Inches value of 11 or less.",
    "Please enter a Current Weight of 1,000,000 pounds or less.",
    "Please enter a Desired Weight of 1,000,000 pounds or less.",
    "Please select your ",
    "A user with this name already exists in the database.",
    "You must create a user profile to use Halvane.",
    "Your profile has been created.",
    "Please enter a weight of 1,000,000 pounds or less.",
    "Please enter a valid weight greater than '0'.",
    "Are you sure you wish to remove all foods from your daily intake?",
    "Please enter a valid start date for the report",
    "There is no weight entry from ",
    "Please enter a recipe ID to import.",
    "The recipe could not be imported.",
    "Recipe not found in online database.",
    "The recipe has been successfully imported!",
    "Please enter a recipient email address.",
    "There was an error posting your recipe.",
};

} // namespace

bool KnownMessages::HasAlert(const QString& text) {
    return std::ranges::any_of(
        Alerts, [&](const char* known) { return text.startsWith(QLatin1String(known)); });
}
