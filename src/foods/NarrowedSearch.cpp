#include "foods/NarrowedSearch.h"

#include "foods/NameTrigrams.h"
#include "foods/SearchTerms.h"
#include "store/Connection.h"
#include "store/NameIndex.h"
#include "store/RowReader.h"
#include "store/StoreError.h"

#include <SQLiteCpp/Database.h>

#include <algorithm>
#include <cmath>

namespace {
/// Measured: to look up and to sort a food takes as long as to read so many names in order.
constexpr double NamesAFood = 16;
/// A statement that reads names in order ends when it has so many.
constexpr double RowsWanted = 300;
/// However many foods the keys make believe there are.
constexpr double MostFoods = 4000;

/// Names that are equal come in the order of FOODS_Name. Without it no search is narrowed.
constexpr auto KeySpan = "SELECT ((SELECT max(ID) FROM FOODS) - (SELECT min(ID) FROM FOODS)) * "
                         "(SELECT count(*) FROM pragma_index_list('FOODS') WHERE name = "
                         "'FOODS_Name')";
constexpr auto Unindexed = "SELECT ID FROM FOODS WHERE instr(FoodName, char(0)) > 0";

/// If n of all names match, the statement reads all * RowsWanted / n names. Looking up is quicker
/// if n * NamesAFood is less than that.
int MostCandidates() {
    return StoreError::Guarded(FoodDB().Path(), [] {
        const double all = FoodDB().Raw().execAndGet(KeySpan).getDouble();
        return int(std::min(std::sqrt(std::max(all, 0.0) * RowsWanted / NamesAFood), MostFoods));
    });
}

QString Candidates(const QString& question, NarrowedSearch::Part part) {
    return u"FROM FOODS_Trigrams WHERE FOODS_Trigrams MATCH " + question +
           (part == NarrowedSearch::Part::Own ? u" AND rowid > 23508" : u" AND rowid <= 23508");
}

bool AreAtMost(int most, const QString& candidates) {
    RowReader rows(FoodDB(), QStringLiteral("SELECT TOP %1 rowid ").arg(most + 1) + candidates);
    int count = 0;
    while (rows.Next())
        ++count;
    return count <= most;
}

/// The first WHERE is that of the statement, and its end is the order.
QString Narrowed(QString statement, const QString& candidates) {
    const QString where = QStringLiteral(" WHERE ");
    const QString condition = u" NOT INDEXED WHERE ID IN (SELECT rowid " + candidates +
                              u" UNION ALL " + QLatin1String(Unindexed) + u") AND ";
    statement.replace(statement.indexOf(where), where.size(), condition);
    return statement + u", Serv_Desc_A, Serv_Desc_B, ID";
}
} // namespace

NarrowedSearch::NarrowedSearch(const SearchTerms& terms)
    : terms_(&terms)
    , question_(NameTrigrams::Question(terms.Words())) {
    if (!question_.isEmpty() && NameIndex::Answers(FoodDB().Raw()))
        most_ = MostCandidates();
}

QString NarrowedSearch::Statement(Part part) const {
    if (most_ == 0)
        return {};
    const QString candidates = Candidates(question_, part);
    if (!AreAtMost(most_, candidates))
        return {};
    return Narrowed(part == Part::Own ? terms_->CustomSQL() : terms_->StockSQL(), candidates);
}
