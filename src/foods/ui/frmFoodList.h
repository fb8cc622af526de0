#pragma once

#include "toolkit/ScreenForm.h"

class CustomFoodFields;
class ListBox;
class ucBox;
class ucButton;

/// The screen of custom foods: the list on the left, the fields of the selected or the new food on
/// the right. Typing into a field edits the food.
class frmFoodList : public ScreenForm {
    Q_OBJECT
    Q_PROPERTY(int Mode READ Mode)           ///< the last value given to UIMode
    Q_PROPERTY(bool Editing READ Editing)    ///< true: a stored food is shown; false: a new one
    Q_PROPERTY(int CurrentID READ CurrentID) ///< the key of the stored food that was shown last

public:
    explicit frmFoodList(QWidget* parent = nullptr);

    void ListFoods(); ///< refills the list and restores the selection
    void NewFood();   ///< prepares the fields for a food that is not stored yet
    void clearFields();
    void FieldLock(bool on);  ///< enables (true) or disables all fields
    void UIMode(qint32 mode); ///< 0: none selected, 1: a stored food, 2: a new food
    void doChange();          ///< a field has changed: enables Save and Cancel
    void SaveFood(qint32 id); ///< writes the fields to the row of that key
    void LoadFood(qint32 id);

    int Mode() const { return mode_; }
    bool Editing() const { return editing_; }
    qint32 CurrentID() const { return id_; }

protected:
    void resizeEvent(QResizeEvent*) override;

private:
    void AddList();
    void AddFields();
    void AddButtons();
    void PlaceBoxes();
    void PlaceButtons();
    void FoodList_Click();
    void cmdSave_Click();
    void cmdCancel_Click();
    void cmdDelete_Click();
    void cmdDone_Click();
    bool PassesTests();

    ListBox* foodList_ = nullptr;
    CustomFoodFields* fields_ = nullptr;
    ucBox* ucBox1_ = nullptr;
    ucBox* ucBox2_ = nullptr;
    ucButton* cmdNewBut_ = nullptr;
    ucButton* cmdDelete_ = nullptr;
    ucButton* cmdSave_ = nullptr;
    ucButton* cmdCancel_ = nullptr;
    ucButton* cmdDone_ = nullptr;
    int mode_ = 0;
    bool editing_ = false;
    qint32 id_ = 0;
};
