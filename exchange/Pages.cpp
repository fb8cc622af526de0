#include "exchange/Pages.h"

#include "exchange/Assets.h"
#include "exchange/Numbers.h"
#include "exchange/Reports.h"
#include "exchange/ShownText.h"
#include "exchange/Target.h"
#include "exchange/Template.h"
#include "exchange/Text.h"

#include <chrono>
#include <cmath>

namespace exchange::Pages {
namespace {
enum class Place { Front, List, Elsewhere };

std::string Page(const std::string& title, Place place, bool unlisted, const Template& content,
                 Values contentValues) {
    static const Template layout(Assets::Layout);
    Values values;
    values.Set("title", title);
    values.Show("unlisted", unlisted);
    values.Show("onFront", place == Place::Front);
    values.Show("onList", place == Place::List);
    values.Insert("content", content, std::move(contentValues));
    return layout.Filled(values);
}

std::string Day(long long moment) {
    constexpr const char* months[] = {"January",   "February", "March",    "April",
                                      "May",       "June",     "July",     "August",
                                      "September", "October",  "November", "December"};
    const std::chrono::sys_time since{std::chrono::microseconds(moment)};
    const std::chrono::year_month_day day(std::chrono::floor<std::chrono::days>(since));
    return std::to_string(unsigned{day.day()}) + " " + months[unsigned{day.month()} - 1] + " " +
           std::to_string(int{day.year()});
}

std::string Calories(const std::optional<double>& calories) {
    return calories ? Numbers::Whole(*calories) : "--";
}

std::string CountOf(const std::optional<double>& number, const std::string& one) {
    return number ? Numbers::Counted(*number, one) : "--";
}

std::string NoteOf(const Listed& recipe) {
    std::vector<std::string> parts;
    const auto serving = ShownText::Line(recipe.servingName, ShownText::InList);
    if (!serving.empty())
        parts.push_back(serving);
    if (recipe.calories)
        parts.push_back(Numbers::Counted(std::nearbyint(*recipe.calories), "calorie") +
                        " per serving");
    if (recipe.prepTime)
        parts.push_back(Numbers::Counted(*recipe.prepTime, "minute"));
    return Join(parts, ", ");
}

Values LineOf(const Listed& recipe) {
    Values line;
    line.Set("id", std::to_string(recipe.id));
    line.Set("name", ShownText::Name(recipe.name, ShownText::InList));
    line.Set("note", NoteOf(recipe));
    line.Set("date", Day(recipe.listedAt));
    return line;
}

std::string AddressOf(const ListPage& list, int page, std::optional<long long> from) {
    std::string address = "/halvane/community.asp?page=" + std::to_string(page);
    if (from)
        address += "&from=" + std::to_string(*from);
    if (!list.query.empty())
        address += "&q=" + Target::Encoded(list.query);
    return address;
}

std::string HeadingOf(const ListPage& list) {
    if (list.query.empty())
        return "Newest recipes";
    return list.found.recipes.empty() ? "Nothing found" : "Recipes found";
}

std::string EmptyText(const ListPage& list) {
    if (list.found.next > 0)
        return "None of the recipes searched so far has all of these words.";
    if (!list.query.empty())
        return "No recipe has all of these words in its name or ingredients.";
    return list.page > 1 ? "There are no older recipes." : "No recipe has been shared yet.";
}

void SetPager(Values& values, const ListPage& list, bool more) {
    const bool older = more && list.page < LastPage;
    values.Show("pager", older || list.page > 1);
    values.Set("page", std::to_string(list.page));
    if (list.page > 1)
        values.Set("newer", AddressOf(list, list.page - 1, list.from));
    if (older)
        values.Set("older", AddressOf(list, list.page + 1, list.from));
}

Values::List IngredientsOf(const Recipe& recipe) {
    Values::List lines;
    for (const auto& ingredient : recipe.ingredients) {
        const auto serving = ingredient.Portion().value_or("");
        Values line;
        line.Set("food", ShownText::Name(ingredient.foodName.value_or(""), ShownText::InCard));
        line.Set("serving", ShownText::Line(serving, ShownText::InCard));
        lines.push_back(std::move(line));
    }
    return lines;
}

std::string AmountOf(const Recipe& recipe, int nutrient) {
    const auto amount = recipe.PerServing(nutrient);
    if (!amount)
        return "--";
    if (nutrient == CaloriesPosition - 1)
        return Numbers::Whole(*amount);
    const auto unit = NutrientColumns()[static_cast<size_t>(nutrient)].unit;
    return Numbers::Short(*amount) + " " + std::string(unit);
}

Values::List NutritionOf(const Recipe& recipe, bool large) {
    Values::List lines;
    for (const int i : LabelOrder()) {
        const auto& column = NutrientColumns()[static_cast<size_t>(i)];
        if (column.large != large)
            continue;
        Values line;
        line.Set("label", std::string(column.label));
        line.Set("amount", AmountOf(recipe, i));
        lines.push_back(std::move(line));
    }
    return lines;
}

void InsertReportForm(Values& page, int id, const std::string& token) {
    static const Template form(Assets::Report);
    Values::List complaints;
    for (const auto& complaint : Reports::Complaints()) {
        Values option;
        option.Set("name", std::string(complaint.name));
        option.Set("label", std::string(complaint.label));
        complaints.push_back(std::move(option));
    }
    Values values;
    values.Set("id", std::to_string(id));
    values.Set("token", token);
    values.Set("most", std::to_string(Reports::LongestWords));
    values.Each("complaints", std::move(complaints));
    page.Insert("report", form, std::move(values));
}

std::string HeadingOf(int status) {
    switch (status) {
    case 404:
        return "Not found";
    case 429:
        return "Too many requests";
    case 503:
        return "Not available";
    default:
        return "Not possible";
    }
}
} // namespace

std::string Front() {
    static const Template content(Assets::Front);
    return Page("Recipes and nutrition", Place::Front, false, content, {});
}

std::string Community(const ListPage& list) {
    static const Template content(Assets::Community);
    const auto& recipes = list.found.recipes;
    const bool more = recipes.size() > static_cast<size_t>(RecipeStore::PageSize);
    Values::List lines;
    for (size_t i = 0; i < recipes.size() - (more ? 1 : 0); ++i)
        lines.push_back(LineOf(recipes[i]));
    Values values;
    values.Set("query", ShownText::Line(list.query, list.query.size()));
    values.Show("searched", !list.query.empty());
    values.Set("heading", HeadingOf(list));
    values.Show("any", !recipes.empty());
    values.Each("lines", std::move(lines));
    values.Set("empty", EmptyText(list));
    if (list.found.next > 0)
        values.Set("searchOn", AddressOf(list, 1, list.found.next));
    SetPager(values, list, more);
    return Page("Online Community", Place::List, false, content, std::move(values));
}

std::string RecipePage(const Recipe& recipe, const std::string& token) {
    static const Template content(Assets::Recipe);
    const auto serving = ShownText::Line(recipe.servingName.value_or(""), ShownText::InCard);
    const auto instructions = ShownText::Lines(recipe.instructions.value_or(""));
    const auto name = recipe.name.value_or("");
    Values values;
    values.Set("name", ShownText::Name(name, ShownText::InCard));
    values.Set("id", std::to_string(recipe.id));
    values.Set("yield", CountOf(recipe.yield, "serving"));
    values.Set("time", CountOf(recipe.prepTime, "minute"));
    values.Set("serving", serving);
    values.Set("calories", Calories(recipe.PerServing(CaloriesPosition - 1)));
    values.Show("hasInstructions", !Trimmed(instructions).empty());
    values.Set("instructions", instructions);
    values.Show("any", !recipe.ingredients.empty());
    values.Each("ingredients", IngredientsOf(recipe));
    values.Each("large", NutritionOf(recipe, true));
    values.Each("small", NutritionOf(recipe, false));
    InsertReportForm(values, recipe.id, token);
    return Page(ShownText::Name(name, ShownText::InList), Place::Elsewhere, !recipe.isPublic,
                content, std::move(values));
}

std::string NoMail(const std::string& token) {
    static const Template content(Assets::Nomail);
    Values values;
    values.Set("token", token);
    return Page("No more mail", Place::Elsewhere, true, content, std::move(values));
}

std::string Notice(const std::string& heading, const std::string& text) {
    static const Template content(Assets::Problem);
    Values values;
    values.Set("heading", heading);
    values.Set("reason", text);
    return Page(heading, Place::Elsewhere, true, content, std::move(values));
}

std::string Problem(int status, const std::string& reason) {
    return Notice(HeadingOf(status), reason);
}

} // namespace exchange::Pages
