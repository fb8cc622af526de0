#include "exchange/Moderation.h"

#include "exchange/Moment.h"
#include "exchange/RecipeStore.h"
#include "exchange/Reports.h"
#include "exchange/ShownText.h"
#include "exchange/StoredText.h"

#include <vector>

namespace exchange {
namespace {
using soci::into;
using soci::use;

struct Reported {
    int id = 0;
    std::string name;
    long long hiddenAt = 0;
    int count = 0;
};

/// The recipes with the newest reports, by the index of the reports.
constexpr const char* SelectReported =
    "SELECT r.RecipeID, COALESCE(r.RecipeName, ''), r.HiddenAt, s.Count"
    " FROM (SELECT RecipeID, COUNT(*) AS Count, MAX(ReportedAt) AS Newest FROM reports"
    " GROUP BY RecipeID ORDER BY MAX(ReportedAt) DESC LIMIT :most) s"
    " JOIN recipes r ON r.RecipeID = s.RecipeID ORDER BY s.Newest DESC";

std::vector<Reported> Select(Connection& connection) {
    std::vector<Reported> all;
    Reported row;
    const auto keep = [&] { all.push_back(row); };
    const int most = Moderation::MostListed;
    connection.Each(SelectReported, keep, use(most), into(row.id), into(row.name),
                    into(row.hiddenAt), into(row.count));
    return all;
}

std::string_view LabelOf(const std::string& complaint) {
    for (const auto& known : Reports::Complaints())
        if (known.name == complaint)
            return known.label;
    return complaint;
}

std::string LineOf(const Report& report) {
    std::string line = "    " + Moment::Written("%Y-%m-%d", report.at) + "  ";
    line.append(LabelOf(report.complaint));
    if (!report.words.empty())
        line += ": " + ShownText::Line(report.words, Reports::LongestWords);
    return line + "\n";
}

std::string HeadOf(const Reported& recipe) {
    return std::to_string(recipe.id) + "  " +
           ShownText::Name(StoredText::Read(recipe.name), ShownText::InList) + " (" +
           std::to_string(recipe.count) + (recipe.count == 1 ? " report" : " reports") +
           (recipe.hiddenAt != 0 ? ", hidden" : "") + ")\n";
}
} // namespace

std::string Moderation::Reported() {
    std::string text;
    for (const auto& recipe : Select(connection_)) {
        text += HeadOf(recipe);
        for (const auto& report : Reports(connection_).Of(recipe.id))
            text += LineOf(report);
    }
    return text.empty() ? "No recipe has been reported.\n" : text;
}

bool Moderation::Hide(int recipeID) {
    return RecipeStore(connection_).Hide(recipeID);
}

bool Moderation::Show(int recipeID) {
    return RecipeStore(connection_).Show(recipeID);
}

bool Moderation::Remove(int recipeID) {
    return RecipeStore(connection_).Remove(recipeID);
}

bool Moderation::Dismiss(int recipeID) {
    return Reports(connection_).Forget(recipeID);
}

} // namespace exchange
