#include "fuzz/Scratch.h"
#include "fuzz/Target.h"

#include "records/recipefiles/RecipeFiles.h"
#include "runtime/Attempt.h"

#include <algorithm>
#include <cmath>

namespace {
using Drafts = QList<RecipeDraft>;

bool AreEqual(const RecipeDraft& left, const RecipeDraft& right) {
    const bool sameFields = std::ranges::all_of(RecipeFields(), [&](const RecipeFieldInfo& field) {
        return left.values[field.id] == right.values[field.id];
    });
    return sameFields &&
           std::ranges::equal(left.ingredients, right.ingredients,
                              [](const IngredientLine& a, const IngredientLine& b) {
                                  return a.finished->StoredValues() == b.finished->StoredValues();
                              });
}

void ExpectSound(const RecipeDraft& draft) {
    for (const RecipeField field : {RecipeField::Yield, RecipeField::Time})
        Expect(std::isfinite(draft.values[field].toDouble()));
    Expect(std::isfinite(draft.kcal.value_or(0)));
}

void WriteAndRead(const Drafts& drafts, RecipeFiles::Format format) {
    const QByteArray bytes = RecipeFiles::Write(drafts, format);
    const Drafts again = RecipeFiles::Read(Scratch::Write(QStringLiteral("written"), bytes));
    Expect(std::ranges::equal(drafts, again, AreEqual));
}
} // namespace

/// A file is refused, or its recipes are sound, and those of ours come back after they were
/// written.
void Fuzz(const std::string& bytes) {
    const QString path = Scratch::Write(QStringLiteral("file"), QByteArray::fromStdString(bytes));
    Drafts drafts;
    if (!Attempt([&] { drafts = RecipeFiles::Read(path); }))
        return;
    std::ranges::for_each(drafts, ExpectSound);
    erase_if(drafts, [](const RecipeDraft& draft) { return !draft.isOwn || !draft.IsFinished(); });
    if (drafts.isEmpty())
        return;
    WriteAndRead(drafts, RecipeFiles::Format::JsonLd);
    WriteAndRead(drafts, RecipeFiles::Format::Markdown);
}
