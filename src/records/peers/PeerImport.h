#pragma once

#include "records/peers/Imported.h"
#include "records/peers/PeerChoices.h"
#include "records/peers/RecordsMerge.h"

#include <functional>

class RecordsFolder;

/// Brings in what another program has exported.
namespace PeerImport {
struct Options {
    QString from;      ///< one of Names()
    QStringList files; ///< CSV, JSON, or zip files that hold them
    QString map;       ///< a TOML file, for "table"
    QString rejects; ///< where the rows that are not taken are listed; empty: beside the first file
    bool dryRun = false;
    PeerChoices choices;
    std::function<void()> choosePerson; ///< makes somebody of the open records the current user
};

struct Result {
    RecordsMerge::Count entries, weights, foods, recipes;
    std::vector<Reject> rejects;
    QString rejectsFile;         ///< empty where none was written
    QMap<QString, int> remarks;  ///< on how the files were read, and how often each applies
    QMap<Nutrient, int> unknown; ///< in how many of the entries an amount is unknown
    int read = 0;                ///< entries in the files
    int CountOf(Reject::Kind kind) const;
};

QStringList Names(); ///< "cronometer", ..., and "table"

/// In one change of the records, or none: a failure changes nothing. A dry run opens them for
/// reading alone, and lists no rows in a file unless `rejects` names one.
Result Run(const RecordsFolder& folder, const Options& options);
} // namespace PeerImport
