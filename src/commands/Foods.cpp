#include "commands/Command.h"
#include "commands/Commands.h"
#include "commands/Progress.h"
#include "commands/Session.h"
#include "records/OutputFile.h"
#include "records/fooddata/FoodImport.h"

#include <QJsonArray>
#include <QJsonObject>

#include <optional>

namespace {
struct Wanted {
    std::string folder;
    QStringList only;
    std::string rejects;
    bool dryRun = false;
};

constexpr qsizetype MostShown = 20;

QJsonArray Refused(const FoodTally& tally) {
    QJsonArray all;
    for (const FoodTally::Refusal& refusal : tally.Refusals())
        all.append(QJsonObject{
            {"place", refusal.place}, {"food", refusal.food}, {"reason", refusal.reason}});
    return all;
}

QJsonObject Facts(const FoodTally& tally) {
    QJsonObject notes;
    for (const auto& [what, times] : tally.Notes().asKeyValueRange())
        notes[what] = times;
    return {{"added", tally.added},
            {"updated", tally.updated},
            {"unchanged", tally.unchanged},
            {"notes", notes},
            {"refused", Refused(tally)}};
}

void Tell(const Session& session, const FoodTally& tally, bool dryRun) {
    session.Print(QStringLiteral("%1%2 foods added, %3 updated, %4 unchanged, %5 refused.")
                      .arg(QLatin1String(dryRun ? "It would be: " : ""))
                      .arg(tally.added)
                      .arg(tally.updated)
                      .arg(tally.unchanged)
                      .arg(tally.Refusals().size()));
    for (const auto& [what, times] : tally.Notes().asKeyValueRange())
        session.Print(u"  " + what + u": " + QString::number(times));
}

void TellRefusals(const Session& session, const FoodTally& tally) {
    const auto& refusals = tally.Refusals();
    for (const FoodTally::Refusal& refusal : refusals.first(std::min(refusals.size(), MostShown)))
        session.Tell(refusal.place + u": " + refusal.food + u" was refused: " + refusal.reason +
                     u'.');
    if (refusals.size() > MostShown)
        session.Tell(QStringLiteral("%1 more were refused. --rejects FILE lists them all.")
                         .arg(refusals.size() - MostShown));
}

void WriteRejects(OutputFile& file, const FoodTally& tally) {
    file.Write(tally.RefusalTable());
    file.Keep();
}

int Import(const Session& session, const Wanted& wanted) {
    FoodImport::Options options{QString::fromStdString(wanted.folder), {}, wanted.dryRun, {}};
    for (const QString& one : wanted.only)
        options.filter.Add(one);
    std::optional<OutputFile> rejects; // nothing changes if it cannot be opened
    if (!wanted.rejects.empty())
        rejects.emplace(QString::fromStdString(wanted.rejects));
    Progress progress(session, QStringLiteral("Reading"));
    options.step = [&](qint64 done, qint64 total) { progress.Step(done, total); };
    const FoodTally tally = FoodImport::Run(session.Records(), options);
    session.json ? session.Print(Facts(tally)) : Tell(session, tally, wanted.dryRun);
    if (rejects)
        WriteRejects(*rejects, tally);
    else if (!session.json)
        TellRefusals(session, tally);
    return tally.Refusals().isEmpty() ? Done : Found;
}

/// Empty: the restriction can be used.
std::string RestrictionProblem(const std::string& text) {
    return FoodFilter().Add(QString::fromStdString(text))
               ? std::string()
               : '"' + text + "\" is not type=" +
                     FoodFilter::Types().join(QLatin1String("|")).toStdString() +
                     ", category=NAME or words=WORDS";
}

void AddFoodImport(const Command& foods, Session& session) {
    const Command command = foods.Add(
        "import", "Brings the foods of a FoodData Central download or a USDA release into your own "
                  "foods. A newer download updates them.");
    const auto wanted = std::make_shared<Wanted>();
    command.Take("FOLDER", wanted->folder, "The folder of the unpacked download").Required();
    command
        .TakeEach("--only", wanted->only,
                  "Only foods of a type (type=sr, foundation, survey or branded), of a category "
                  "(category=Snacks) or with words in their name (words=\"rye bread\"); several "
                  "are possible")
        .Check(RestrictionProblem);
    command.Take("--rejects", wanted->rejects, "Write the foods that were refused to a file")
        .Value("FILE");
    command.Flag("--dry-run", wanted->dryRun, "Tell what would happen, and change nothing");
    command.Footer("Example: halvane-data foods import FoodData_Central_branded_food_csv "
                   "--only category=Snacks");
    command.Does([&session, wanted] { return Import(session, *wanted); });
}
} // namespace

void Commands::AddFoods(const Command& program, Session& session) {
    const Command foods = program.Add("foods", "Brings in foods of other sources");
    foods.NeedsOneOfItsCommands();
    foods.Footer("Example: halvane-data foods import FOLDER --dry-run");
    AddFoodImport(foods, session);
}
