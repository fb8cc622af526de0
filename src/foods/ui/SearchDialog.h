#pragma once

#include "foods/ScaledFood.h"
#include "toolkit/Dialog.h"

class ucButton;
class ucSearchResults;

/// The base of the modal dialogs that search for foods: title, search panel, Done, and the
/// nutrition facts of an examined food. The dialog stays open while a person chooses several foods.
/// It emits FoodChosen for each.
class SearchDialog : public Dialog {
    Q_OBJECT

public:
    SearchDialog(const QString& name, const QString& title, const QString& panelName,
                 QWidget* owner = nullptr);

    ucSearchResults* Panel() const { return panel_; }

Q_SIGNALS:
    void FoodChosen(const QString& Meal, const ScaledFood& Item);

protected:
    virtual void Choose(const QString& Meal, const ScaledFood& Item);
    QRect BesideDone() const; ///< the free space to the left of the button

private:
    void BuildPanel(const QString& name);
    void BuildDone();
    void Examine(const ScaledFood& item);

    ucSearchResults* panel_ = nullptr;
    ucButton* cmdDone_ = nullptr;
};
