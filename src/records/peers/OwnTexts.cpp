#include "records/peers/OwnTexts.h"

#include "recipes/RecipeTexts.h"
#include "records/peers/Imported.h"

namespace {
struct Replacement {
    QChar refused, instead;
};
constexpr Replacement Replacements[] = {{u'"', u'\''}, {u'^', u' '}, {u'~', u'-'}, {u'|', u'/'}};

/// Whether the text was changed.
bool Adapt(QString& text) {
    const QString before = text;
    for (const auto& [refused, instead] : Replacements)
        text.replace(refused, instead);
    return text != before;
}

void NoteCharacters(const Origin& origin, Imported& imported) {
    imported.NoteChange(origin,
                        QStringLiteral("A character that names must not hold was replaced."));
}

QString Problem(ImportedOwnFood& own, Imported& imported) {
    const bool isNew = Adapt(own.food.name);
    if (Adapt(own.food.serving) || isNew)
        NoteCharacters(own.origin, imported);
    return own.food.FirstProblem().message;
}

QString Problem(ImportedRecipe& own, Imported& imported) {
    RecipeTexts texts;
    bool isNew = false;
    for (const RecipeFieldInfo& field : RecipeFields()) {
        texts[field.id] = own.recipe[field.id].toString();
        isNew = Adapt(texts[field.id]) || isNew;
    }
    if (isNew)
        NoteCharacters(own.origin, imported);
    own.recipe = texts.Values();
    const RecipeCheck* failed = texts.FirstFailed();
    return failed ? QLatin1String(failed->message) : QString();
}

template <class Own> void AdaptAll(std::vector<Own>& all, Imported& imported) {
    std::erase_if(all, [&imported](Own& own) {
        const QString problem = Problem(own, imported);
        if (!problem.isEmpty())
            imported.Refuse(own.origin, problem);
        return !problem.isEmpty();
    });
}
} // namespace

void OwnTexts::Adapt(Imported& imported) {
    AdaptAll(imported.foods, imported);
    AdaptAll(imported.recipes, imported);
}
