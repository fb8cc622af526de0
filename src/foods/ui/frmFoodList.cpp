#include "foods/ui/frmFoodList.h"

#include "drawing/Style.h"
#include "foods/CustomFoods.h"
#include "foods/ui/CustomFoodFields.h"
#include "runtime/ScreenTable.h"
#include "runtime/Seams.h"
#include "toolkit/ListBox.h"
#include "toolkit/MousePointer.h"
#include "toolkit/ucBox.h"
#include "toolkit/ucButton.h"

#include <algorithm>

namespace {

// Measures in pixels.
constexpr int ListWidth = 178;

} // namespace

frmFoodList::frmFoodList(QWidget* parent)
    : ScreenForm(Screens::FoodList, parent) {
    AddList();
    AddFields();
    AddButtons();
    ListFoods();
}

void frmFoodList::AddList() {
    foodList_ = new ListBox;
    foodList_->setObjectName(QStringLiteral("FoodList"));
    ucBox1_ = AddBox("ucBox1", "My Custom Foods", foodList_);
    foodList_->setAccessibleName(ucBox1_->Caption());
    connect(foodList_, &ListBox::Click, this, &frmFoodList::FoodList_Click);
    connect(foodList_, &ListBox::MouseMove, this, [this] { AllOff(QString()); });
    cmdNewBut_ = AddButton("cmdNewBut", "New", &frmFoodList::NewFood);
    cmdDelete_ = AddButton("cmdDelete", "Delete", &frmFoodList::cmdDelete_Click);
}

void frmFoodList::AddFields() {
    fields_ = new CustomFoodFields;
    ucBox2_ = AddBox("ucBox2", "Food Information", fields_);
    connect(fields_, &CustomFoodFields::Changed, this, &frmFoodList::doChange);
}

void frmFoodList::AddButtons() {
    cmdSave_ = AddButton("cmdSave", "Save", &frmFoodList::cmdSave_Click);
    cmdSave_->SetMainAction(true);
    cmdCancel_ = AddButton("cmdCancel", "Cancel", &frmFoodList::cmdCancel_Click);
    cmdDone_ = AddButton("cmdDone", "Done", &frmFoodList::cmdDone_Click);
}

void frmFoodList::resizeEvent(QResizeEvent*) {
    PlaceBoxes();
    PlaceButtons();
    AllOff(QString());
}

void frmFoodList::PlaceBoxes() {
    QRect place = BoxesPlace();
    ucBox1_->setGeometry(QRect(place.topLeft(), QSize(ListWidth, place.height())));
    place.setLeft(ucBox1_->geometry().right() + 1 + TheStyle().boxGap);
    ucBox2_->setGeometry(place);
}

void frmFoodList::PlaceButtons() {
    PlaceInRow(ucBox1_->x(), {cmdNewBut_, cmdDelete_});
    PlaceInRow(ucBox2_->x(), {cmdSave_, cmdCancel_});
    PlaceAtEnd(cmdDone_);
}

void frmFoodList::ListFoods() {
    int index = foodList_->ListIndex();
    foodList_->SetLines(CustomFoods::Names());
    const int last = foodList_->ListCount() - 1;
    if (!editing_ && last < 0) {
        clearFields();
        return UIMode(0);
    }
    if (!editing_ && index < 0)
        index = last;
    const int shown = foodList_->LineOf(id_);
    foodList_->SetListIndex(shown >= 0 ? shown : std::min(index, last));
    UIMode(1);
}

void frmFoodList::FoodList_Click() {
    if (foodList_->ListIndex() < 0)
        return;
    editing_ = true;
    id_ = foodList_->ItemData(foodList_->ListIndex());
    LoadFood(id_);
    UIMode(1);
}

void frmFoodList::LoadFood(qint32 id) {
    fields_->Show(CustomFoods::Read(id));
}

void frmFoodList::clearFields() {
    fields_->Clear();
}

void frmFoodList::FieldLock(bool on) {
    fields_->FieldLock(on);
}

void frmFoodList::NewFood() {
    editing_ = false;
    fields_->SetNew();
    UIMode(2);
    fields_->ChooseName();
}

void frmFoodList::UIMode(qint32 mode) {
    mode_ = mode;
    cmdSave_->SetEnabled(mode == 2);
    cmdCancel_->SetEnabled(mode == 2);
    cmdDelete_->SetEnabled(mode == 1);
    FieldLock(mode != 0);
    foodList_->setEnabled(mode != 2);
    for (ucButton* button : {cmdNewBut_, cmdDelete_, cmdSave_, cmdCancel_})
        button->Reset();
}

void frmFoodList::doChange() {
    for (ucButton* button : {cmdSave_, cmdCancel_}) {
        button->SetEnabled(true);
        button->Reset();
    }
}

void frmFoodList::cmdCancel_Click() {
    if (editing_) {
        LoadFood(id_);
        UIMode(1);
    } else {
        clearFields();
        ListFoods();
    }
    foodList_->setFocus();
}

void frmFoodList::cmdSave_Click() {
    if (!PassesTests())
        return;
    const MousePointer::NormalAtEnd pointer;
    MousePointer::SetBusy();
    const qint32 id = editing_ ? id_ : CustomFoods::Append();
    SaveFood(id);
    id_ = id;
    ListFoods();
    foodList_->setFocus();
}

bool frmFoodList::PassesTests() {
    const CustomFoodProblem problem = fields_->Entered().FirstProblem();
    if (!problem)
        return true;
    ShowAlert(problem.message, this);
    fields_->FocusOn(problem);
    return false;
}

void frmFoodList::SaveFood(qint32 id) {
    CustomFoods::Save(id, fields_->Entered());
}

void frmFoodList::cmdDelete_Click() {
    if (foodList_->ListIndex() < 0) {
        ShowAlert(QStringLiteral("Please select a food from the food list before deleting."), this);
        return;
    }
    if (!ShowAlert(QStringLiteral("Are you sure you want to delete this custom food?"), this, true))
        return;
    const MousePointer::NormalAtEnd pointer;
    MousePointer::SetBusy();
    CustomFoods::Delete(foodList_->ItemData(foodList_->ListIndex()));
    editing_ = false;
    ListFoods();
    if (mode_ == 0)
        cmdNewBut_->setFocus();
}

void frmFoodList::cmdDone_Click() {
    ShowScreen(Screens::Main.name);
}
