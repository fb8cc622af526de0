#include "commands/Command.h"
#include "commands/Commands.h"
#include "commands/FoodArgument.h"
#include "commands/Session.h"
#include "foods/release/FoodSources.h"
#include "records/RecordsReading.h"
#include "records/why/LogOrigin.h"
#include "records/why/OwnFoodOrigin.h"
#include "records/why/RecipeOrigin.h"
#include "records/why/StockFoodOrigin.h"
#include "runtime/AppPath.h"
#include "store/Schema.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>

#include <algorithm>

namespace {
struct Question {
    FoodArgument food;
    std::string nutrient; ///< empty: all
};

/// "Vit. B12", "vitaminB12" and "vitamin b12" name the same.
QString Bare(const QString& name) {
    QString bare;
    for (const QChar letter : name)
        if (letter.isLetterOrNumber())
            bare += letter.toLower();
    return bare;
}

std::optional<Nutrient> Named(const std::string& text) {
    const QString name = Bare(QString::fromStdString(text));
    for (const NutrientInfo& nutrient : Nutrients())
        for (const char* known :
             {nutrient.property, nutrient.chartCaption, nutrient.logColumn, nutrient.profileColumn})
            if (Bare(QLatin1String(known)) == name)
                return nutrient.id;
    return {};
}

QString NoSuchNutrient(const std::string& text) {
    QStringList names;
    for (const Nutrient nutrient : PeriodOrder())
        names << QLatin1String(Info(nutrient).chartCaption);
    return u'"' + QString::fromStdString(text) + u"\" is not a nutrient. Write one of: " +
           names.join(u", ") + u'.';
}

/// Beside the records where the program was installed there, else beside the program.
FoodSources Sources(const Session& session) {
    const QString name = QStringLiteral("food-sources.json");
    const QString beside = QDir(session.Records().Path()).filePath(name);
    return FoodSources::Read(QFile::exists(beside) ? beside : FileBeside(name));
}

Explanation Explain(const Session& session, const Food& food) {
    if (food.isRecipe)
        return RecipeOrigin::Of(food.ID);
    return food.ID > Schema::LastStockFood ? OwnFoodOrigin::Of(food.ID)
                                           : StockFoodOrigin::Of(food.ID, Sources(session));
}

void PrintLines(const Session& session, const Explanation& explanation, bool withDetails) {
    constexpr int nameWidth = 22;
    constexpr int amountWidth = 24;
    session.Print(explanation.title);
    for (const QString& line : explanation.about)
        session.Print(line);
    session.Print(QString());
    for (const Explanation::Row& row : explanation.rows) {
        const QString name = QLatin1String(Info(row.nutrient).chartCaption);
        const QString line = name.leftJustified(nameWidth) + row.amount.leftJustified(amountWidth) +
                             ' ' + row.origin;
        session.Print(line.trimmed());
        for (const QString& detail : withDetails ? row.details : QStringList())
            session.Print("  " + detail);
    }
}

void PrintFacts(const Session& session, const Explanation& explanation) {
    QJsonArray amounts;
    for (const Explanation::Row& row : explanation.rows)
        amounts.append(row.facts);
    QJsonObject facts = explanation.facts;
    facts["amounts"] = amounts;
    session.Print(facts);
}

void Report(const Session& session, Explanation explanation, std::optional<Nutrient> only) {
    if (only)
        std::erase_if(explanation.rows,
                      [only](const Explanation::Row& row) { return row.nutrient != *only; });
    session.json ? PrintFacts(session, explanation)
                 : PrintLines(session, explanation, only.has_value());
}

int Why(const Session& session, const Question& question) {
    if (const QString refusal = question.food.Refusal(); !refusal.isEmpty())
        return session.Refuse(refusal);
    const auto nutrient = Named(question.nutrient);
    if (!nutrient && !question.nutrient.empty())
        return session.Refuse(NoSuchNutrient(question.nutrient));
    const RecordsReading records(session.Records());
    if (const auto entry = question.food.LogKey()) {
        Report(session, LogOrigin::Of(*entry), nutrient);
        return Done;
    }
    const auto food = question.food.Choose(session);
    if (!food)
        return Found;
    Report(session, Explain(session, *food), nutrient);
    return Done;
}
} // namespace

void Commands::AddWhy(const Command& program, Session& session) {
    const Command command =
        program.Add("why", "Tells where the amounts of a food, a recipe or an entry come from");
    const auto question = std::make_shared<Question>();
    question->food.AddOneTo(command);
    command.Take("NUTRIENT", question->nutrient, "One nutrient; otherwise all");
    command.Footer("Example: halvane-data why 16096 Selenium");
    command.Does([&session, question] { return Why(session, *question); });
}
