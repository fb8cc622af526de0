#pragma once

#include "toolkit/Screen.h"

class CustomFoodFields;
class ListBox;
class ucBox;
class ucButton;

/// Where a person keeps foods of their own: the list on the left, the chosen or the new food on the
/// right. A stored food is edited by typing into it.
class frmFoodList : public Screen {
    Q_OBJECT
    Q_PROPERTY(int Mode READ Mode)           ///< what UIMode has set
    Q_PROPERTY(bool Editing READ Editing)    ///< a stored food is on display, as against a new one
    Q_PROPERTY(int CurrentID READ CurrentID) ///< the key of the food shown last

public:
    explicit frmFoodList(QWidget* parent = nullptr);

    void ListFoods(); ///< refills the list and restores the choice
    void NewFood();   ///< empties the form for a food that is not stored yet
    void clearFields();
    void FieldLock(bool on);  ///< all fields usable, or not
    void UIMode(qint32 mode); ///< 0 nothing chosen, 1 a stored food is shown, 2 a new one is typed
    void doChange();          ///< a field has changed: it can be saved or taken back
    void SaveFood(qint32 id); ///< writes the form to the row of that key, which must exist
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
