#pragma once

#include "model/Nutrients.h"

#include <string>
#include <string_view>

/// A member of a row, and the column that it stands for.
struct DocumentField {
    const char* name;
    const char* column;
};

/// A list of rows of the document, and the table that its rows are of.
struct DocumentSection {
    const char* name;             ///< of the member that holds the list
    const char* table;            ///< of users.mdb or foods.mdb; no name is in both
    const char* key = nullptr;    ///< the column by which other rows refer to a row, or null
    const char* parent = nullptr; ///< the column that refers to the row around a row, or null
    std::span<const DocumentField> fields;         ///< without key and amounts
    const char* amounts = nullptr;                 ///< the member that holds 31 amounts, or null
    const char* NutrientInfo::*nutrient = nullptr; ///< gives the column of an amount
    const char* rows = "TRUE";                     ///< the condition of its rows in the table
    const DocumentSection* children = nullptr;     ///< whose rows stand in its rows, or null

    std::string Columns() const; ///< of fields and amounts, separated by commas
    int ColumnCount() const;
    const DocumentField* FindField(std::string_view member) const; ///< null if there is none
};

/// The sections of a document.
namespace DocumentSections {
extern const DocumentSection Profiles;
extern const DocumentSection Foods; ///< the user's own
extern const DocumentSection Recipes;
extern const DocumentSection Ingredients;      ///< each stands in its recipe
extern const DocumentSection LooseIngredients; ///< without a recipe
extern const DocumentSection Log;
extern const DocumentSection Weights;

/// Those that are members of the document, in their order there.
std::span<const DocumentSection* const> Lists();
const DocumentSection* Find(std::string_view name); ///< a list; null if there is none
} // namespace DocumentSections
