#pragma once

#include "foods/ScaledFood.h"
#include "toolkit/Dialog.h"

class ucButton;
class ucSearchResults;

/// What the modal dialogs around a search panel share: title, panel, Done, and the facts of a food
/// that is examined. They stay open while one food after the other is chosen; who opens one hears
/// of each by FoodChosen.
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
    QRect BesideDone() const; ///< the room left of the button, along the lower edge

private:
    void BuildPanel(const QString& name);
    void BuildDone();
    void Examine(const ScaledFood& item);

    ucSearchResults* panel_ = nullptr;
    ucButton* cmdDone_ = nullptr;
};
