#include "records/peers/PeerImport.h"

#include "records/RecordsChange.h"
#include "records/RecordsReading.h"
#include "records/peers/Cronometer.h"
#include "records/peers/LoseIt.h"
#include "records/peers/MappedTable.h"
#include "records/peers/MealNames.h"
#include "records/peers/MyFitnessPal.h"
#include "records/peers/OpenNutriTracker.h"
#include "records/peers/OwnTexts.h"
#include "records/peers/PeerFile.h"
#include "records/peers/RejectsFile.h"
#include "records/peers/TableMap.h"
#include "records/peers/Waistline.h"
#include "runtime/RuntimeError.h"

#include <algorithm>

namespace {
using PeerImport::Options;
using PeerImport::Result;
using Files = std::vector<PeerFile>;

struct Peer {
    const char* name;
    void (*read)(const Files& files, const PeerChoices& choices, Imported& into);
};
constexpr Peer Peers[] = {
    {"cronometer", Cronometer::Read},     {"loseit", LoseIt::Read},
    {"myfitnesspal", MyFitnessPal::Read}, {"opennutritracker", OpenNutriTracker::Read},
    {"waistline", Waistline::Read},
};
constexpr auto Table = "table";

/// A choice on the command line goes before the map's.
void ReadByMap(const Files& files, const QString& path, PeerChoices& choices, Imported& into) {
    const TableMap map = TableMap::Of(path);
    for (auto meal = map.meals.cbegin(); meal != map.meals.cend(); ++meal)
        if (!choices.meals.contains(meal.key()))
            choices.meals[meal.key()] = meal.value();
    MappedTable::Read(files, map, choices, into);
}

void ReadFiles(const Files& files, const Options& options, PeerChoices& choices, Imported& into) {
    if (options.from == QLatin1String(Table))
        return ReadByMap(files, options.map, choices, into);
    for (const Peer& peer : Peers)
        if (options.from == QLatin1String(peer.name))
            return peer.read(files, choices, into);
    throw RuntimeError(ErrorNumber::NoSuchKey, "No export of \"" + options.from + "\" is known.");
}

Imported ReadAll(const Options& options) {
    Imported into;
    PeerChoices choices = options.choices;
    ReadFiles(PeerFile::Of(options.files, into), options, choices, into);
    for (ImportedEntry& entry : into.entries)
        MealNames::Place(entry, choices, into);
    OwnTexts::Adapt(into);
    return into;
}

QMap<Nutrient, int> UnknownIn(const std::vector<ImportedEntry>& entries) {
    QMap<Nutrient, int> unknown;
    for (const ImportedEntry& entry : entries)
        for (const Nutrient id : CanonicalOrder())
            if (!entry.food.amounts[id])
                ++unknown[id];
    return unknown;
}

/// Before the records change, so that no row is lost without a trace.
QString ListRejects(const std::vector<Reject>& rejects, const Options& options) {
    if (rejects.empty() || (options.dryRun && options.rejects.isEmpty()))
        return {};
    const QString path =
        options.rejects.isEmpty() ? options.files.first() + ".rejects.csv" : options.rejects;
    RejectsFile::Write(path, rejects);
    return path;
}

Result Merge(Imported& imported, const Options& options, RecordsChange* change) {
    options.choosePerson();
    Result result;
    result.read = static_cast<int>(imported.entries.size());
    result.unknown = UnknownIn(imported.entries);
    const RecordsMerge merge(imported);
    result.rejectsFile = ListRejects(imported.rejects, options);
    if (change && !merge.AddsNothing()) {
        merge.Write();
        change->Commit();
    }
    result.entries = merge.Entries();
    result.weights = merge.Weights();
    result.foods = merge.Foods();
    result.recipes = merge.Recipes();
    result.rejects = std::move(imported.rejects);
    result.remarks = std::move(imported.remarks);
    return result;
}
} // namespace

int PeerImport::Result::CountOf(Reject::Kind kind) const {
    return static_cast<int>(std::ranges::count(rejects, kind, &Reject::kind));
}

QStringList PeerImport::Names() {
    QStringList names;
    for (const Peer& peer : Peers)
        names << QLatin1String(peer.name);
    return names << QLatin1String(Table);
}

Result PeerImport::Run(const RecordsFolder& folder, const Options& options) {
    Imported imported = ReadAll(options);
    if (options.dryRun) {
        const RecordsReading records(folder);
        return Merge(imported, options, nullptr);
    }
    RecordsChange change(folder, "import --from " + options.from);
    return Merge(imported, options, &change);
}
