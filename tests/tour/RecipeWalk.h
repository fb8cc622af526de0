#pragma once

#include <QString>

class Guide;
class QWidget;

/// A person writes a recipe of five ingredients, one of them a custom food, corrects it, saves it,
/// deletes another recipe, and eats a serving.
class RecipeWalk {
public:
    explicit RecipeWalk(Guide& guide);
    void Go();
    void EatRecipe();                    ///< once, at breakfast
    static void FindAgain(Guide& guide); ///< everything saved is there after a restart

private:
    struct Part;
    static const Part Parts[5];

    void OpenScreen();
    void WriteRecipe();
    void BeRefused();
    void AddIngredients();
    void AddPart(QWidget* search, const Part& part);
    void SaveRecipe();
    void LookAtCard();
    void CorrectRecipe();
    void WriteLongRecipe();
    void DeleteLongRecipe();
    void SearchAndEat(QWidget* search);
    void TakeItBack();
    QWidget* Screen();
    QWidget* Frame();
    void Picture(const char* name);

    Guide& guide_;
};
