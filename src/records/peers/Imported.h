#pragma once

#include "foods/CustomFood.h"
#include "recipes/Recipe.h"

#include <QDate>
#include <QMap>

#include <vector>

/// Where something stands in the files that are read.
struct Origin {
    QString file;
    QString place; ///< "line 12", "diary 3, item 2"
    QString text;  ///< as it stands there
};

/// A food with what its whole quantity holds.
struct ImportedFood {
    QString name;
    QString serving;
    double quantity = 1;
    NutrientAmounts amounts;
};

struct ImportedEntry {
    Origin origin;
    QDate day;
    QString meal; ///< its name in the file; after MealNames::Place one of ours
    ImportedFood food;
};

struct ImportedWeight {
    Origin origin;
    QDate day;
    double pounds;
    qint64 order = 0; ///< the latest weight of a day counts
};

struct ImportedOwnFood {
    Origin origin;
    CustomFood food;
};

struct ImportedRecipe {
    Origin origin;
    Recipe recipe;
    std::vector<ImportedFood> ingredients;
};

/// What is not taken as it stands.
struct Reject {
    enum class Kind {
        Refused, ///< it is wrong, or has no place in these records as they are
        LeftOut, ///< it is nothing that these records keep
        Changed, ///< taken, except for what the reason says
    };
    Kind kind;
    Origin origin;
    QString reason;
};

/// Everything that was read from the files of another program. Each row of them is in one of the
/// lists.
struct Imported {
    std::vector<ImportedEntry> entries;
    std::vector<ImportedWeight> weights;
    std::vector<ImportedOwnFood> foods;
    std::vector<ImportedRecipe> recipes;
    std::vector<Reject> rejects;
    QMap<QString, int> remarks; ///< a sentence on how the files were read, and how often it applies

    void Refuse(const Origin& origin, const QString& reason);
    void LeaveOut(const Origin& origin, const QString& reason);
    void NoteChange(const Origin& origin, const QString& reason);
    void Remark(const QString& sentence) { ++remarks[sentence]; }
};
