#pragma once

#include "records/RecordsTest.h"
#include "records/recipefiles/RecipeDraft.h"

/// Files of recipes in the folder of the test.
class RecipeFilesTest : public RecordsTest {
protected:
    QString Written(const QString& name, const QByteArray& bytes) const;
    /// Reads a file of these bytes, which must hold one recipe.
    RecipeDraft One(const QString& name, const QByteArray& bytes) const;
    QString Refusal(const QByteArray& bytes) const;

    static QStringList Lines(const RecipeDraft& draft);
    static QVariant Value(const RecipeDraft& draft, RecipeField field) {
        return draft.values[field];
    }
};
