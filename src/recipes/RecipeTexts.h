#pragma once

#include <QString>

#include <array>

class Recordset;

/// The fields of a recipe, in the order in which the card is filled in.
enum class RecipeField { Name, Yield, Serving, Instructions, Time };

/// What the program knows of a field: where it is stored, which control shows it and which takes
/// what is typed.
struct RecipeFieldInfo {
    RecipeField id;
    const char* column;
    const char* label;
    const char* entry;
    const char* spoken; ///< for assistive tools
    const char* initial;
    bool isNumber;
};

inline constexpr int RecipeFieldCount = 5;
const std::array<RecipeFieldInfo, RecipeFieldCount>& RecipeFields();

/// A test that a recipe must pass before it is saved.
struct RecipeCheck {
    RecipeField field;
    const char* refused; ///< characters, any of which fails it; null where empty text fails it
    const char* message;
};

/// A recipe as texts, as a person typed them.
class RecipeTexts {
public:
    QString& operator[](RecipeField field) { return texts_[static_cast<size_t>(field)]; }
    const QString& operator[](RecipeField field) const {
        return texts_[static_cast<size_t>(field)];
    }

    static RecipeTexts OfNewRecipe();
    const RecipeCheck* FirstFailed() const; ///< null where all tests are passed
    /// Sets the fields of the current row. Numbers are read as far as they go, without their sign.
    void Write(Recordset& row) const;

private:
    std::array<QString, RecipeFieldCount> texts_;
};
