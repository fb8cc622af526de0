#pragma once

#include "recipes/RecipesTest.h"
#include "recipes/ui/frmRecipeManager.h"
#include "toolkit/ListBox.h"
#include "toolkit/ucButton.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStringList>

/// The recipe screen in a window of the nest's size, with its controls by name.
class RecipeManagerTest : public RecipesTest {
protected:
    static inline const QStringList entries{"txtName", "txtYield", "txtServing", "txtTime"};
    static inline const QString askDelete{"Are you sure you want to delete this recipe?"};

    void SetUp() override;
    void TearDown() override;

    void Open();
    void Forward(); ///< as the navigation does

    ListBox* List() { return Find<ListBox>(screen.get(), "lsRecipes"); }
    ucButton* Button(const QString& name) { return Find<ucButton>(screen.get(), name); }
    void Press(const QString& name) { Click(Button(name)); }
    QLineEdit* Entry(const QString& name) { return Find<QLineEdit>(screen.get(), name); }
    QPlainTextEdit* Instructions() { return Find<QPlainTextEdit>(screen.get(), "txtInstructions"); }

    QWidget window;
    std::unique_ptr<frmRecipeManager> screen;
};
