#include "commands/ImportFrom.h"

#include "commands/Command.h"
#include "commands/Session.h"
#include "commands/UsageError.h"
#include "commands/Waiting.h"
#include "foods/Meals.h"
#include "records/peers/RejectsFile.h"
#include "records/text/CsvHeader.h"
#include "runtime/Counted.h"

#include <QJsonArray>
#include <QJsonObject>

#include <map>

namespace {
using PeerImport::Options;
using PeerImport::Result;
using Kind = Reject::Kind;

/// What a person says, and what it means.
template <class Value>
void AddChoice(const Command& command, const std::string& name,
               const std::map<std::string, Value>& words, const std::string& help,
               std::function<void(Value)> take) {
    std::vector<std::string> known;
    for (const auto& [word, value] : words)
        known.push_back(word);
    command
        .Take(
            name, [words, take](const std::string& word) { take(words.at(word)); }, help)
        .OneOf(known);
}

/// "Second breakfast=Lunch"
void TakeMeal(Options& options, const std::string& text) {
    const QString said = QString::fromStdString(text);
    const qsizetype equals = said.lastIndexOf(u'=');
    const auto meal = Meals::Find(QStringView(said).mid(equals + 1).trimmed());
    if (equals < 0 || !meal)
        throw UsageError("--meal", "Write the name in the file, = and Breakfast, Lunch, Dinner or "
                                   "Snacks.");
    options.choices.meals[CsvHeader::Key(said.left(equals))] = *meal;
}

void AddPaths(const Command& command, Options& options) {
    std::vector<std::string> names;
    for (const QString& name : PeerImport::Names())
        names.push_back(name.toStdString());
    const CommandOption from =
        command.Take("--from", options.from, "The program that has exported the files, or table")
            .OneOf(names);
    command.Take("--map", options.map, "With --from table: a file that tells what its columns mean")
        .Value("FILE")
        .Needs(from);
    command
        .Take("--rejects", options.rejects,
              "Where rows that are not taken are listed; otherwise beside the first file")
        .Value("FILE")
        .Needs(from);
}

void AddChoices(const Command& command, PeerChoices& choices) {
    using enum PeerChoices::DateOrder;
    using enum PeerChoices::Micronutrients;
    AddChoice<WeightUnit>(command, "--weight-unit",
                          {{"kg", WeightUnit::Kilogram}, {"lb", WeightUnit::Pound}},
                          "With --from: the unit of weights in a file that names none",
                          [&choices](WeightUnit unit) { choices.weightUnit = unit; });
    AddChoice<PeerChoices::DateOrder>(
        command, "--date-order", {{"mdy", MonthFirst}, {"dmy", DayFirst}},
        "With --from: whether 3/2/2026 has the month or the day first, where the files do not tell",
        [&choices](PeerChoices::DateOrder order) { choices.dateOrder = order; });
    AddChoice<VitaminASource>(
        command, "--vitamin-a",
        {{"retinol", VitaminASource::Retinol}, {"carotene", VitaminASource::BetaCarotene}},
        "With --from: take vitamin A in micrograms as if it came from this; otherwise it is "
        "unknown",
        [&choices](VitaminASource source) { choices.vitaminA = source; });
    AddChoice<bool>(command, "--zeros", {{"known", true}, {"unknown", false}},
                    "With --from myfitnesspal: what an amount of 0 is; otherwise unknown",
                    [&choices](bool known) { choices.zerosAreKnown = known; });
    AddChoice<PeerChoices::Micronutrients>(
        command, "--old-micronutrients", {{"grams", Grams}, {"as-named", AsNamed}},
        "With --from opennutritracker: what minerals and vitamins of older foods are in; otherwise "
        "they are unknown",
        [&choices](PeerChoices::Micronutrients unit) { choices.oldMicronutrients = unit; });
}

struct Row {
    const char* key;
    const char* one;
    const char* many;
    RecordsMerge::Count Result::*count;
};
constexpr Row Rows[] = {
    {"entries", "entry of the log", "entries of the log", &Result::entries},
    {"weights", "weight", "weights", &Result::weights},
    {"foods", "own food", "own foods", &Result::foods},
    {"recipes", "recipe", "recipes", &Result::recipes},
};

/// "Ash, Water" where no entry has an amount, "Iron in 3" where some have none.
QString Unknown(const Result& result) {
    QStringList texts;
    for (const Nutrient id : PeriodOrder()) {
        const int count = result.unknown.value(id);
        const QString name = QLatin1String(Info(id).chartCaption);
        if (count == result.read)
            texts << name;
        else if (count > 0)
            texts << name + " in " + QString::number(count);
    }
    return texts.join(QLatin1String(", "));
}

void PrintRejects(const Session& session, const Result& result) {
    for (const Reject& reject : result.rejects)
        session.Print(reject.origin.file + u' ' + reject.origin.place + ", " +
                      RejectsFile::Word(reject.kind) + ": " + reject.reason);
}

void PrintRemarks(const Session& session, const Result& result) {
    if (result.read > 0)
        session.Print("Unknown in the " + Counted(result.read, "entry", "entries") +
                      " of the files: " + Unknown(result) + u'.');
    for (const QString& remark : result.remarks.keys())
        session.Print(remark);
}

void Print(const Session& session, const Result& result, bool dryRun) {
    for (const auto& [key, one, many, count] : Rows)
        if (const auto [added, present] = result.*count; added + present > 0)
            session.Print(Counted(added, one, many) +
                          QLatin1String(dryRun ? " would be added, " : " added, ") +
                          QString::number(present) + " there already");
    for (const Kind kind : {Kind::Refused, Kind::LeftOut, Kind::Changed})
        if (const int count = result.CountOf(kind); count > 0)
            session.Print(Counted(count, "row ", "rows ") + RejectsFile::Word(kind));
    if (dryRun)
        PrintRejects(session, result);
    if (!result.rejectsFile.isEmpty())
        session.Print("They are listed in " + result.rejectsFile + u'.');
    PrintRemarks(session, result);
}

QJsonArray RejectFacts(const Result& result) {
    QJsonArray all;
    for (const Reject& reject : result.rejects)
        all.append(QJsonObject{{"file", reject.origin.file},
                               {"place", reject.origin.place},
                               {"what", RejectsFile::Word(reject.kind)},
                               {"reason", reject.reason},
                               {"row", reject.origin.text}});
    return all;
}

QJsonObject UnknownFacts(const Result& result) {
    QJsonObject unknown;
    for (auto each = result.unknown.cbegin(); each != result.unknown.cend(); ++each)
        unknown[QLatin1String(Info(each.key()).property)] = each.value();
    return unknown;
}

QJsonObject Facts(const Result& result, bool dryRun) {
    QJsonObject facts{{"dryRun", dryRun},
                      {"refused", result.CountOf(Kind::Refused)},
                      {"leftOut", result.CountOf(Kind::LeftOut)},
                      {"changed", result.CountOf(Kind::Changed)},
                      {"rejectsFile", result.rejectsFile.isEmpty()
                                          ? QJsonValue()
                                          : QJsonValue(result.rejectsFile)},
                      {"entriesInFiles", result.read},
                      {"unknown", UnknownFacts(result)},
                      {"remarks", QJsonArray::fromStringList(result.remarks.keys())}};
    for (const auto& [key, one, many, count] : Rows)
        facts[QLatin1String(key)] = QJsonObject{{"added", (result.*count).added},
                                                {"alreadyThere", (result.*count).present}};
    if (dryRun)
        facts["rejects"] = RejectFacts(result);
    return facts;
}

QString Problem(const Options& options) {
    const bool isTable = options.from == u"table";
    if (isTable && options.map.isEmpty())
        return QStringLiteral("Please say with --map what the columns of the table mean.");
    if (!isTable && !options.map.isEmpty())
        return QStringLiteral("--map goes with --from table only.");
    return {};
}
} // namespace

std::shared_ptr<Options> ImportFrom::AddOptions(const Command& command) {
    const auto options = std::make_shared<Options>();
    AddPaths(command, *options);
    command
        .TakeEach(
            "--meal", [options](const std::string& text) { TakeMeal(*options, text); },
            "With --from: put a meal of the file under one of ours, as in \"Brunch=Lunch\"")
        .Value("NAME=MEAL");
    AddChoices(command, options->choices);
    return options;
}

int ImportFrom::Run(const Session& session, Options options, const QStringList& files,
                    bool dryRun) {
    if (const QString problem = Problem(options); !problem.isEmpty())
        return session.Refuse(problem);
    options.dryRun = dryRun;
    options.files << files;
    options.choosePerson = [&session] { session.ChooseProfile(); };
    const Waiting waiting(session, QStringLiteral("Importing"));
    const Result result = PeerImport::Run(session.Records(), options);
    if (session.json)
        session.Print(Facts(result, options.dryRun));
    else
        Print(session, result, options.dryRun);
    return result.CountOf(Kind::Refused) > 0 ? Found : Done;
}
