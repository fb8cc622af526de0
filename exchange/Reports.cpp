#include "exchange/Reports.h"

#include "exchange/StoredText.h"

#include <algorithm>

namespace exchange {
namespace {
using soci::into;
using soci::use;

constexpr Complaint Table[] = {
    {"advertising", "It is advertising or a scam"},
    {"offence", "It insults or threatens somebody"},
    {"private", "It contains private information about somebody"},
    {"rights", "It is copied without permission"},
    {"danger", "It is dangerous to cook or to eat"},
    {"other", "Something else"},
};
} // namespace

std::span<const Complaint> Reports::Complaints() {
    return Table;
}

bool Reports::IsComplaint(std::string_view name) {
    return std::any_of(std::begin(Table), std::end(Table),
                       [&](const Complaint& complaint) { return complaint.name == name; });
}

void Reports::Add(int recipeID, const Report& report) {
    const auto words = StoredText::Of(report.words);
    connection_.Change("INSERT INTO reports (RecipeID, ReportedAt, Complaint, Words)"
                       " SELECT d.RecipeID, CAST(:at AS BIGINT), CAST(:complaint AS TEXT),"
                       " CAST(:words AS TEXT) FROM documents d WHERE d.RecipeID = :id AND"
                       " (SELECT COUNT(*) FROM reports r WHERE r.RecipeID = d.RecipeID) < :most"
                       " ON CONFLICT DO NOTHING",
                       use(report.at), use(report.complaint), use(words), use(recipeID),
                       use(MostOfARecipe));
}

std::vector<Report> Reports::Of(int recipeID) {
    std::vector<Report> reports;
    Report row;
    const auto keep = [&] {
        reports.push_back({row.at, row.complaint, StoredText::Read(row.words)});
    };
    connection_.Each("SELECT ReportedAt, Complaint, Words FROM reports WHERE RecipeID = :id"
                     " ORDER BY ReportedAt DESC",
                     keep, use(recipeID), into(row.at), into(row.complaint), into(row.words));
    return reports;
}

bool Reports::Forget(int recipeID) {
    return connection_.Change("DELETE FROM reports WHERE RecipeID = :id", use(recipeID)) > 0;
}

} // namespace exchange
