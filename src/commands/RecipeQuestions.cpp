#include "commands/RecipeQuestions.h"

#include "commands/Session.h"

namespace {
using RecipeImport::Candidate;
using RecipeImport::Question;

constexpr auto Stop = "q";

QString Text(const Question& question) {
    QString text = QStringLiteral("\n%1, line %2.%3: %4\n")
                       .arg(question.recipe)
                       .arg(question.number)
                       .arg(question.place)
                       .arg(question.line);
    for (int i = 0; i < question.candidates.size(); ++i)
        text += QStringLiteral("  %1  %2: %3 kcal\n")
                    .arg(i + 1)
                    .arg(question.candidates[i].label)
                    .arg(question.candidates[i].kcal, 0, 'f', 0);
    if (question.candidates.isEmpty())
        text += QLatin1String("  No food was found that has this amount.\n");
    return text + QLatin1String("Number or KEY:SERVING:QUANTITY takes a food, Enter leaves the "
                                "line as text, q stops: ");
}

/// Null: the answer is none of those that can be given.
std::optional<IngredientChoice> Choice(const Question& question, const QString& answer) {
    IngredientChoice choice{question.number, question.place};
    bool isNumber = false;
    const int number = answer.toInt(&isNumber);
    if (answer.isEmpty())
        return choice;
    if (!isNumber)
        return IngredientChoice::Of(
            QStringLiteral("%1.%2=%3").arg(question.number).arg(question.place).arg(answer));
    if (number < 1 || number > question.candidates.size())
        return {};
    choice.food = question.candidates[number - 1].match;
    return choice;
}

/// Asks until there is an answer. Null: stop.
std::optional<IngredientChoice> Answered(const Session& session, const Question& question) {
    for (auto answer = session.Ask(Text(question)); answer && *answer != QLatin1String(Stop);
         answer = session.Ask(QStringLiteral("That is not one of the answers. Again: ")))
        if (const auto choice = Choice(question, *answer))
            return choice;
    return {};
}
} // namespace

std::optional<QList<IngredientChoice>> RecipeQuestions::Ask(const Session& session,
                                                            const QList<Question>& questions) {
    QList<IngredientChoice> choices;
    for (const Question& question : questions) {
        const auto choice = Answered(session, question);
        if (!choice) {
            session.Tell(QStringLiteral("Stopped. Nothing was changed."));
            return {};
        }
        choices << *choice;
    }
    return choices;
}
