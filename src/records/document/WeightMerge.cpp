#include "records/document/WeightMerge.h"

#include "records/document/DocumentAdder.h"
#include "records/document/DocumentRows.h"
#include "store/Connection.h"

#include <unordered_map>
#include <unordered_set>

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
constexpr int PersonAndDay = 2; ///< the first fields of a weight
const DocumentSection& Section = DocumentSections::Weights;

/// The weights of the records: by person and day, and each with its value.
struct WeightsThere {
    WeightsThere() {
        for (DocumentRows rows(Section, DocumentRows::From::Records); rows.Next();) {
            days.emplace(rows.Start(PersonAndDay), rows.Row());
            weights.insert(rows.Identity());
        }
    }

    std::unordered_map<std::string, std::int64_t> days; ///< the row of the first one
    std::unordered_set<std::string> weights;
};

/// What tells a person which weight stays. The weight of the document is the staged row's.
QString Kept(std::int64_t row, std::int64_t stagedRow) {
    SQLite::Statement both(
        UserDB().Raw(), "SELECT ifnull(UserName, here.UID), here.UDate, here.Weight, file.Weight "
                        "FROM USER_WEIGHTS here, temp.staged_weights file "
                        "LEFT JOIN profiles ON profiles.UID = here.UID "
                        "WHERE here.rowid = ?1 AND file.rowid = ?2");
    both.bind(1, row);
    both.bind(2, stagedRow);
    both.executeStep();
    const auto text = [&both](int column) {
        return QString::fromStdString(both.getColumn(column));
    };
    return QStringLiteral("%1 weighs %3 on %2; the file says %4. It stays as it is.")
        .arg(text(0), text(1), text(2), text(3));
}
} // namespace

void WeightMerge::Run(ImportReport& report) {
    const WeightsThere there;
    DocumentAdder adder(Section);
    ImportReport::Count& count = report.counts[Section.name];
    for (DocumentRows staged(Section, DocumentRows::From::Stage); staged.Next();) {
        const auto day = there.days.find(staged.Start(PersonAndDay));
        if (there.weights.contains(staged.Identity())) {
            ++count.there;
        } else if (day != there.days.end()) {
            report.kept.push_back(Kept(day->second, staged.Row()));
        } else {
            adder.Add(staged.Row());
            ++count.added;
        }
    }
}
