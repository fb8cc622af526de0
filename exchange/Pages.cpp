#include "exchange/Pages.h"

#include "exchange/Assets.h"
#include "exchange/Moment.h"
#include "exchange/Numbers.h"
#include "exchange/Reports.h"
#include "exchange/ShownText.h"
#include "exchange/Target.h"
#include "exchange/Text.h"

#include <kainjow/mustache.hpp>

#include <cmath>

namespace exchange::Pages {
namespace {
using kainjow::mustache::data;
using kainjow::mustache::mustache;

/// A template of this thread: one is not made to be used by two at once. What a template takes
/// unescaped, in three braces, is what another template has filled.
struct Template {
    mustache text;
    explicit Template(const std::string& asset)
        : text(asset) {}
    std::string Fill(const data& values) {
        std::string filled;
        text.render(values, [&](const std::string& piece) { filled += piece; });
        return filled;
    }
};

enum class Place { Front, List, Elsewhere };

std::string Page(const std::string& title, Place place, bool unlisted, const std::string& content) {
    thread_local Template layout(Assets::layout);
    data values;
    values.set("title", title);
    values.set("unlisted", unlisted);
    values.set("onFront", place == Place::Front);
    values.set("onList", place == Place::List);
    values.set("content", content);
    return layout.Fill(values);
}

std::string Day(long long moment) {
    const auto day = Moment::Written("%d %B %Y", moment);
    return day.front() == '0' ? day.substr(1) : day;
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

std::string LineOf(const Listed& recipe) {
    thread_local Template line(Assets::line);
    data values;
    values.set("id", std::to_string(recipe.id));
    values.set("name", ShownText::Name(recipe.name, ShownText::InList));
    values.set("note", NoteOf(recipe));
    values.set("date", Day(recipe.listedAt));
    return line.Fill(values);
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
        return "None of the recipes that were looked at has all of these words.";
    if (!list.query.empty())
        return "No recipe has all of these words in its name or ingredients.";
    return list.page > 1 ? "There are no older recipes." : "No recipe has been shared yet.";
}

void SetPager(data& values, const ListPage& list, bool more) {
    const bool older = more && list.page < LastPage;
    values.set("pager", older || list.page > 1);
    values.set("page", std::to_string(list.page));
    if (list.page > 1)
        values.set("newer", AddressOf(list, list.page - 1, list.from));
    if (older)
        values.set("older", AddressOf(list, list.page + 1, list.from));
}

data IngredientsOf(const Recipe& recipe) {
    data lines(data::type::list);
    for (const auto& ingredient : recipe.ingredients) {
        const auto serving = ShownText::Line(ingredient.Portion().value_or(""), ShownText::InCard);
        data line;
        line.set("food", ShownText::Name(ingredient.foodName.value_or(""), ShownText::InCard));
        line.set("hasServing", !serving.empty());
        line.set("serving", serving);
        lines.push_back(line);
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

data NutritionOf(const Recipe& recipe, bool large) {
    data lines(data::type::list);
    for (const int i : LabelOrder()) {
        const auto& column = NutrientColumns()[static_cast<size_t>(i)];
        if (column.large != large)
            continue;
        data line;
        line.set("label", std::string(column.label));
        line.set("amount", AmountOf(recipe, i));
        lines.push_back(line);
    }
    return lines;
}

std::string ReportForm(int id, const std::string& token) {
    thread_local Template form(Assets::report);
    data complaints(data::type::list);
    for (const auto& complaint : Reports::Complaints()) {
        data option;
        option.set("name", std::string(complaint.name));
        option.set("label", std::string(complaint.label));
        complaints.push_back(option);
    }
    data values;
    values.set("id", std::to_string(id));
    values.set("token", token);
    values.set("most", std::to_string(Reports::LongestWords));
    values.set("complaints", complaints);
    return form.Fill(values);
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
    thread_local Template content(Assets::front);
    return Page("Recipes and nutrition", Place::Front, false, content.Fill({}));
}

std::string Community(const ListPage& list) {
    thread_local Template content(Assets::community);
    const auto& recipes = list.found.recipes;
    const bool more = recipes.size() > static_cast<size_t>(RecipeStore::PageSize);
    std::string lines;
    for (size_t i = 0; i < recipes.size() - (more ? 1 : 0); ++i)
        lines += LineOf(recipes[i]);
    data values;
    values.set("query", ShownText::Line(list.query, list.query.size()));
    values.set("searched", !list.query.empty());
    values.set("heading", HeadingOf(list));
    values.set("any", !recipes.empty());
    values.set("lines", lines);
    values.set("empty", EmptyText(list));
    if (list.found.next > 0)
        values.set("searchOn", AddressOf(list, 1, list.found.next));
    SetPager(values, list, more);
    return Page("Online Community", Place::List, false, content.Fill(values));
}

std::string RecipePage(const Recipe& recipe, const std::string& token) {
    thread_local Template content(Assets::recipe);
    const auto serving = ShownText::Line(recipe.servingName.value_or(""), ShownText::InCard);
    const auto instructions = ShownText::Lines(recipe.instructions.value_or(""));
    const auto name = recipe.name.value_or("");
    data values;
    values.set("name", ShownText::Name(name, ShownText::InCard));
    values.set("id", std::to_string(recipe.id));
    values.set("yield", CountOf(recipe.yield, "serving"));
    values.set("time", CountOf(recipe.prepTime, "minute"));
    values.set("hasServing", !serving.empty());
    values.set("serving", serving);
    values.set("calories", Calories(recipe.PerServing(CaloriesPosition - 1)));
    values.set("hasInstructions", !Trimmed(instructions).empty());
    values.set("instructions", instructions);
    values.set("any", !recipe.ingredients.empty());
    values.set("ingredients", IngredientsOf(recipe));
    values.set("large", NutritionOf(recipe, true));
    values.set("small", NutritionOf(recipe, false));
    values.set("report", ReportForm(recipe.id, token));
    return Page(ShownText::Name(name, ShownText::InList), Place::Elsewhere, !recipe.isPublic,
                content.Fill(values));
}

std::string NoMail(const std::string& token) {
    thread_local Template content(Assets::nomail);
    data values;
    values.set("token", token);
    return Page("No more mails", Place::Elsewhere, true, content.Fill(values));
}

std::string Notice(const std::string& heading, const std::string& text) {
    thread_local Template content(Assets::problem);
    data values;
    values.set("heading", heading);
    values.set("reason", text);
    return Page(heading, Place::Elsewhere, true, content.Fill(values));
}

std::string Problem(int status, const std::string& reason) {
    return Notice(HeadingOf(status), reason);
}

} // namespace exchange::Pages
