#pragma once

#include "toolkit/ScreenForm.h"

#include <optional>

class ListBox;
class RecipeCard;
class ScaledFood;
class ucBox;
class ucButton;
struct PrintJob;

/// The screen "Recipe Manager": a list of the recipes, and the card of the current one. It is
/// empty, shows a recipe, or edits one. Saving ends an edit; leaving the screen saves nothing.
class frmRecipeManager : public ScreenForm {
    Q_OBJECT
    Q_PROPERTY(qint32 CurrentRecipe READ CurrentRecipe)

public:
    explicit frmRecipeManager(QWidget* parent = nullptr);

    qint32 CurrentRecipe() const { return current_; } ///< -1 for none
    void DoWinInit() override; ///< lists the recipes, unless one is being edited

    void ListRecipes(); ///< lists them anew and shows the one that was chosen before
    void ShowRecipe(qint32 recipeID);
    void EditRecipe(qint32 recipeID);
    bool SaveRecipe(); ///< false: nothing was saved, and a message has said why
    void AddRecipe();
    void AddFood(const ScaledFood& item); ///< to the ingredients of the current recipe
    std::optional<PrintJob> Printed() const; ///< the current recipe, if any, as it is stored

protected:
    void resizeEvent(QResizeEvent*) override;

private:
    void AddList();
    void AddCard();
    void AddButtons();
    ucButton* AddButton(const char* name, const char* caption, const char* tip,
                        void (frmRecipeManager::*pressed)());
    void PlaceBoxes();
    void PlaceButtons();

    void cmdNew_Click();
    void cmdEdit_Click();
    void cmdDelete_Click();
    void cmdSend_Click();
    void cmdImport_Click();
    void cmdIngreds_Click();
    void cmdDone_Click();
    void lsRecipes_Click();

    int LineToChoose(qint32 recipe, int index) const;
    void ShowTexts(qint32 recipeID);
    bool IsEditing() const;
    void SetEditCaption(QLatin1String caption);
    void EndEdit();
    void AllowAll(std::initializer_list<ucButton*> buttons, bool allowed);

    ucBox* ucBox1_;
    ListBox* lsRecipes_;
    RecipeCard* card_;
    ucButton* cmdImport_;
    ucButton* cmdNew_;
    ucButton* cmdEdit_;
    ucButton* cmdDelete_;
    ucButton* cmdSend_;
    ucButton* cmdDone_;
    qint32 current_ = -1;
};
