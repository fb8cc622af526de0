#include "commands/Command.h"
#include "commands/Commands.h"
#include "commands/RecipeQuestions.h"
#include "commands/Session.h"
#include "commands/Waiting.h"
#include "records/OutputFile.h"
#include "records/RecordsReading.h"
#include "records/recipefiles/RecipeFiles.h"
#include "records/recipefiles/RecipeImport.h"
#include "records/recipefiles/RecipeStore.h"
#include "runtime/Counted.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {
using RecipeFiles::Format;
using Imported = RecipeImport::Imported;
using Proposal = RecipeImport::Proposal;

// ---- export ----

struct ExportWanted {
    std::string file;
    std::string format;
    QStringList names;
};

Format FormatOf(const ExportWanted& wanted) {
    const bool byName = wanted.format.empty();
    const QString name = QString::fromStdString(wanted.file);
    const bool isMarkdown = byName ? name.endsWith(QLatin1String(".md"), Qt::CaseInsensitive)
                                   : wanted.format == "markdown";
    return isMarkdown ? Format::Markdown : Format::JsonLd;
}

int Export(const Session& session, const ExportWanted& wanted) {
    const RecordsReading records(session.Records());
    const QList<RecipeDraft> recipes =
        wanted.names.isEmpty() ? RecipeStore::All() : RecipeStore::Named(wanted.names);
    const QByteArray bytes = RecipeFiles::Write(recipes, FormatOf(wanted));
    if (wanted.file == "-") {
        session.Write(bytes.toStdString());
        session.Flush();
        return Done;
    }
    OutputFile file(QString::fromStdString(wanted.file));
    file.Write(bytes.toStdString());
    file.Keep();
    if (session.json)
        session.Print(QJsonObject{{"exported", recipes.size()}});
    else
        session.Print(Counted(recipes.size(), "recipe", "recipes") + " exported.");
    return Done;
}

void AddRecipeExport(const Command& recipes, Session& session) {
    const Command command = recipes.Add("export", "Writes recipes to a file for other programs");
    const auto wanted = std::make_shared<ExportWanted>();
    command.Take("FILE", wanted->file, "The file, or - for standard output").Required();
    command.Take("NAME", wanted->names, "Only the recipes of these names");
    command
        .Take("--format", wanted->format,
              "jsonld (schema.org) or markdown; otherwise by the name of the file")
        .OneOf({"jsonld", "markdown"});
    command.Footer("Example: halvane-data recipes export soups.md \"Lentil soup\"");
    command.Does([&session, wanted] { return Export(session, *wanted); });
}

// ---- import ----

struct ImportWanted {
    QStringList files;
    QStringList choices;
    bool accept = false;
    bool keepText = false;
    bool dryRun = false;
};

QString Place(int recipe, int line) {
    return QString::number(recipe) + u'.' + QString::number(line);
}

QString Choice(const FoodMatch& match) {
    return QString::number(match.key) + u':' + match.serving + u':' +
           QString::number(*match.quantity, 'g', 4);
}

QString FoodFor(const Proposal& proposal) {
    if (!proposal.match)
        return QStringLiteral("no food found");
    if (!proposal.match->quantity)
        return QString(u"food " + QString::number(proposal.match->key) + u", " +
                       proposal.match->name + u": its servings cannot express this amount");
    return QString(Choice(*proposal.match) + u", " + proposal.match->name + u": " +
                   QString::number(proposal.kcal, 'f', 0) + u" kcal" +
                   QLatin1String(proposal.taken ? ", taken" : ""));
}

void Tell(const Session& session, const Imported& recipe, int number) {
    session.Print(QString::number(number) + u". " + recipe.name +
                  QLatin1String(recipe.isThere ? " (is there already)" : ""));
    for (const Proposal& proposal : recipe.proposals)
        session.Print(
            u"   " + Place(number, proposal.place) + u"  " + proposal.line +
            (proposal.isHeading ? QString() : QString(u"\n        " + FoodFor(proposal))));
    if (recipe.fileKcal)
        session.Print(
            QStringLiteral("   A serving has %1 kcal by the file, and %2 kcal by what was taken.")
                .arg(*recipe.fileKcal)
                .arg(recipe.kcal, 0, 'f', 0));
}

QJsonObject Facts(const Proposal& proposal) {
    QJsonObject facts{
        {"place", proposal.place}, {"line", proposal.line}, {"taken", proposal.taken}};
    if (!proposal.match)
        return facts;
    facts["food"] = proposal.match->key;
    facts["name"] = proposal.match->name;
    if (!proposal.match->quantity)
        return facts;
    facts["serving"] = proposal.match->serving;
    facts["quantity"] = *proposal.match->quantity;
    facts["kcal"] = proposal.kcal;
    return facts;
}

QJsonObject Facts(const RecipeImport::Result& result) {
    QJsonArray recipes;
    for (const Imported& recipe : result.recipes) {
        QJsonArray lines;
        for (const Proposal& proposal : recipe.proposals)
            lines.append(Facts(proposal));
        recipes.append(QJsonObject{{"name", recipe.name},
                                   {"isThere", recipe.isThere},
                                   {"lines", lines},
                                   {"kcalOfServing", recipe.kcal}});
    }
    return {{"added", result.undecided ? 0 : result.added},
            {"undecided", result.undecided},
            {"recipes", recipes}};
}

void TellAll(const Session& session, const RecipeImport::Result& result, bool dryRun) {
    for (int i = 0; i < result.recipes.size(); ++i)
        Tell(session, result.recipes[i], i + 1);
    if (result.undecided)
        session.Tell(QStringLiteral(
            "Nothing was changed. Say what becomes of the lines: --accept takes every food shown "
            "with "
            "a quantity, --choose 1.2=KEY:SERVING:QUANTITY takes one, --text leaves all as text."));
    else
        session.Print(Counted(result.added, "recipe", "recipes") +
                      QLatin1String(dryRun ? " would be added." : " added."));
}

int Import(const Session& session, const ImportWanted& wanted) {
    RecipeImport::Options options{wanted.files, wanted.accept, wanted.keepText};
    for (const QString& choice : wanted.choices)
        options.choices << *IngredientChoice::Of(choice);
    options.dryRun = wanted.dryRun;
    if (session.CanAsk() && !options.dryRun) {
        const auto answers =
            RecipeQuestions::Ask(session, RecipeImport::Questions(session.Records(), options));
        if (!answers)
            return Found;
        options.choices << *answers;
    }
    const Waiting waiting(session, QStringLiteral("Importing"));
    const RecipeImport::Result result = RecipeImport::Run(session.Records(), options);
    if (session.json)
        session.Print(Facts(result));
    else
        TellAll(session, result, wanted.dryRun);
    return result.undecided ? Found : Done;
}

/// Empty: the choice can be read.
std::string ChoiceProblem(const std::string& text) {
    return IngredientChoice::Of(QString::fromStdString(text))
               ? std::string()
               : '"' + text + "\" is not like 1.2=16329:B:1.5 or 1.2=text";
}

void AddRecipeImport(const Command& recipes, Session& session) {
    const Command command = recipes.Add(
        "import",
        "Brings in recipes of files: JSON-LD of schema.org (also in a web page), Markdown, "
        "Mealie, Tandoor and MealMaster");
    const auto wanted = std::make_shared<ImportWanted>();
    command.Take("FILE", wanted->files, "The files").Required();
    command.Flag("--accept", wanted->accept, "Take every food that is found with a quantity");
    command
        .TakeEach("--choose", wanted->choices,
                  "Take a food for a line (recipe 1, line 2: 1.2=KEY:SERVING:QUANTITY), or leave "
                  "the line as text (1.2=text); several are possible")
        .Check(ChoiceProblem);
    command.Flag("--text", wanted->keepText, "Leave all lines as text in the instructions");
    command.Flag("--dry-run", wanted->dryRun, "Tell what would happen, and change nothing");
    command.Footer(
        "Example: halvane-data recipes import soup.json --accept --choose 1.3=16329:B:0.5");
    command.Does([&session, wanted] { return Import(session, *wanted); });
}
} // namespace

void Commands::AddRecipes(const Command& program, Session& session) {
    const Command recipes = program.Add("recipes", "Writes recipes to a file, and brings them in");
    recipes.NeedsOneOfItsCommands();
    recipes.Footer("Example: halvane-data recipes import soup.json");
    AddRecipeExport(recipes, session);
    AddRecipeImport(recipes, session);
}
