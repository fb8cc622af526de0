#pragma once

#include <QVariant>

#include <array>

/// The fields of a recipe, in the order in which a person fills them in.
enum class RecipeField { Name, Yield, Serving, Instructions, Time };
inline constexpr int RecipeFieldCount = 5;

struct RecipeFieldInfo {
    RecipeField id;
    const char* column;
    const char* initial; ///< what a new recipe starts with
    bool isNumber;
};
const std::array<RecipeFieldInfo, RecipeFieldCount>& RecipeFields();

/// One value for each field.
template <class Value> class RecipeValues {
public:
    Value& operator[](RecipeField field) { return values_[static_cast<size_t>(field)]; }
    const Value& operator[](RecipeField field) const { return values_[static_cast<size_t>(field)]; }

private:
    std::array<Value, RecipeFieldCount> values_;
};

/// A recipe as it is stored: yield and time are numbers, the rest is text, and any may be null.
class Recipe : public RecipeValues<QVariant> {};
