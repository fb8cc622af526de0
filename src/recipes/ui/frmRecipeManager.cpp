#include "recipes/ui/frmRecipeManager.h"

#include "drawing/Style.h"
#include "foods/ScaledFood.h"
#include "recipes/RecipeBook.h"
#include "recipes/ui/InstructionText.h"
#include "recipes/ui/RecipeCard.h"
#include "recipes/ui/RecipePages.h"
#include "recipes/ui/frmImport.h"
#include "recipes/ui/frmRecSearch.h"
#include "recipes/ui/frmSend.h"
#include "recipes/ui/ucIngredients.h"
#include "runtime/Attempt.h"
#include "runtime/ScreenTable.h"
#include "runtime/Seams.h"
#include "toolkit/ListBox.h"
#include "toolkit/print/Printing.h"
#include "toolkit/ucBox.h"
#include "toolkit/ucButton.h"

namespace {

constexpr qint32 NoRecipe = -1;

constexpr QLatin1String editCaption("Edit Recipe");
constexpr QLatin1String saveCaption("Save Changes");

constexpr int ListWidth = 186; // in pixels

} // namespace

frmRecipeManager::frmRecipeManager(QWidget* parent)
    : ScreenForm(Screens::RecipeManager, parent) {
    setFocusPolicy(Qt::ClickFocus);
    AddList();
    AddCard();
    AddButtons();
    AllowAll({cmdEdit_, cmdDelete_, cmdSend_}, false);
    Printing::AddTo(this, Title(), [this] { return Printed(); });
}

std::optional<PrintJob> frmRecipeManager::Printed() const {
    if (current_ == NoRecipe)
        return {};
    RecipeTexts texts;
    RecipeBook::ReadInto(texts, current_);
    const QString& name = texts[RecipeField::Name];
    return PrintJob{name, name, [id = current_](Pages& paper) { RecipePages::Paint(paper, id); }};
}

void frmRecipeManager::AddList() {
    lsRecipes_ = new ListBox;
    lsRecipes_->setObjectName(QStringLiteral("lsRecipes"));
    lsRecipes_->setToolTip(QStringLiteral("Select a recipe to edit or delete"));
    ucBox1_ = AddBox("ucBox1", "Recipe List", lsRecipes_);
    lsRecipes_->setAccessibleName(ucBox1_->Caption());
    connect(lsRecipes_, &ListBox::MouseMove, this, [this] { AllOff(QString()); });
    connect(lsRecipes_, &ListBox::Click, this, &frmRecipeManager::lsRecipes_Click);
    cmdNew_ = AddButton("cmdNew", "New", "Create a new recipe", &frmRecipeManager::cmdNew_Click);
    cmdImport_ = AddButton("cmdImport", "Import", "Import a recipe from the web",
                           &frmRecipeManager::cmdImport_Click);
}

void frmRecipeManager::AddCard() {
    card_ = new RecipeCard(this);
    connect(card_, &RecipeCard::MouseMove, this, [this] { AllOff(QString()); });
    connect(card_, &RecipeCard::IngredientsAsked, this, &frmRecipeManager::cmdIngreds_Click);
}

void frmRecipeManager::AddButtons() {
    cmdEdit_ = AddButton("cmdEdit", "Edit Recipe", "Edit the current recipe",
                         &frmRecipeManager::cmdEdit_Click);
    cmdDelete_ = AddButton("cmdDelete", "Delete Recipe", "Delete the current recipe",
                           &frmRecipeManager::cmdDelete_Click);
    cmdSend_ = AddButton("cmdSend", "Send to Friend", "Send the current recipe to a friend",
                         &frmRecipeManager::cmdSend_Click);
    cmdDone_ = AddButton("cmdDone", "Done", "", &frmRecipeManager::cmdDone_Click);
    for (ucButton* button : {cmdNew_, cmdDone_}) // they leave the look of the others
        disconnect(button, &ucButton::MouseMove, this, nullptr);
}

ucButton* frmRecipeManager::AddButton(const char* name, const char* caption, const char* tip,
                                      void (frmRecipeManager::*pressed)()) {
    ucButton* button = ScreenForm::AddButton(name, caption, pressed);
    button->setToolTip(QLatin1String(tip));
    button->setAccessibleDescription(QLatin1String(tip));
    return button;
}

void frmRecipeManager::resizeEvent(QResizeEvent*) {
    PlaceBoxes();
    PlaceButtons();
}

void frmRecipeManager::PlaceBoxes() {
    QRect place = BoxesPlace();
    ucBox1_->setGeometry(QRect(place.topLeft(), QSize(ListWidth, place.height())));
    place.setLeft(ucBox1_->geometry().right() + 1 + TheStyle().boxGap);
    card_->setGeometry(place);
}

void frmRecipeManager::PlaceButtons() {
    PlaceInRow(ucBox1_->x(), {cmdNew_, cmdImport_});
    PlaceInRow(card_->x(), {cmdEdit_, cmdDelete_, cmdSend_});
    PlaceAtEnd(cmdDone_);
}

/// A screen that was hidden during an edit continues it: the typed texts stay.
void frmRecipeManager::DoWinInit() {
    if (!IsEditing())
        ListRecipes();
}

/// Choosing a line raises the list's click, which shows the recipe. The chosen recipe stays chosen
/// when a new name moves it. If it is gone, its neighbour is chosen.
void frmRecipeManager::ListRecipes() {
    const int index = qMax(0, lsRecipes_->ListIndex());
    const qint32 chosen = lsRecipes_->ItemData(index);
    lsRecipes_->Clear();
    current_ = NoRecipe;
    card_->Clear();
    AllowAll({cmdEdit_, cmdDelete_, cmdSend_}, false);
    Attempt([this] { lsRecipes_->SetLines(RecipeBook::Names()); });
    if (lsRecipes_->ListCount() > 0)
        Attempt([&] { lsRecipes_->SetListIndex(LineToChoose(chosen, index)); });
}

int frmRecipeManager::LineToChoose(qint32 recipe, int index) const {
    const int line = lsRecipes_->LineOf(recipe);
    return line >= 0 ? line : qMin(index, lsRecipes_->ListCount() - 1);
}

void frmRecipeManager::lsRecipes_Click() {
    current_ = lsRecipes_->ItemData(lsRecipes_->ListIndex());
    ShowRecipe(current_);
}

void frmRecipeManager::ShowRecipe(qint32 recipeID) {
    card_->ShowText(RecipeField::Instructions, QString());
    card_->ShowText(RecipeField::Name, QString());
    card_->ClearIngredients();
    ShowTexts(recipeID);
    card_->ShowCalories(
        RecipeBook::CaloriesPerServing(recipeID, card_->ShownText(RecipeField::Yield)));
    card_->ShowIngredients(recipeID);
    AllowAll({cmdDelete_, cmdEdit_, cmdSend_}, true);
    card_->Instructions()->ResetBar();
}

/// The label of a field that holds nothing stays as it was.
void frmRecipeManager::ShowTexts(qint32 recipeID) {
    const RecipeTexts texts = RecipeBook::Read(recipeID);
    for (const RecipeFieldInfo& field : RecipeFields())
        if (!texts[field.id].isNull())
            card_->ShowText(field.id, texts[field.id]);
}

void frmRecipeManager::cmdNew_Click() {
    AddRecipe();
    SetEditCaption(saveCaption);
    lsRecipes_->setEnabled(false);
    cmdEdit_->Reset();
    ShowRecipe(current_);
    EditRecipe(current_);
}

/// The entries show "Plate" as the serving only until EditRecipe reads the row, where it is empty.
void frmRecipeManager::AddRecipe() {
    current_ = RecipeBook::AddRecipe();
    card_->Ingredients()->SetRecipeID(current_);
    card_->SetEntries(RecipeTexts::OfNewRecipe());
}

void frmRecipeManager::cmdEdit_Click() {
    if (current_ == NoRecipe)
        return;
    if (!IsEditing()) {
        SetEditCaption(saveCaption);
        cmdEdit_->Reset();
        EditRecipe(current_);
    } else if (SaveRecipe()) {
        EndEdit();
    }
}

void frmRecipeManager::EditRecipe(qint32 recipeID) {
    RecipeTexts texts = card_->Entries();
    RecipeBook::ReadInto(texts, recipeID);
    card_->SetEntries(texts);
    card_->SetEditing(true);
    Attempt([&] { card_->ShowIngredients(recipeID); });
    lsRecipes_->setEnabled(false);
    AllowAll({cmdNew_, cmdImport_, cmdDelete_, cmdSend_}, false);
    card_->FocusEntry(RecipeField::Name);
}

bool frmRecipeManager::SaveRecipe() {
    const RecipeCheck* failed = RecipeBook::SaveRecipe(current_, card_->Entries());
    if (!failed)
        return true;
    ShowAlert(QLatin1String(failed->message), this);
    card_->FocusEntry(failed->field);
    return false;
}

void frmRecipeManager::EndEdit() {
    SetEditCaption(editCaption);
    card_->SetEditing(false);
    ListRecipes();
    lsRecipes_->setEnabled(true);
    AllowAll({cmdNew_, cmdImport_, cmdDelete_, cmdSend_}, true);
    card_->Instructions()->ResetBar();
    lsRecipes_->setFocus();
}

void frmRecipeManager::cmdDelete_Click() {
    if (current_ == NoRecipe)
        return;
    if (!ShowAlert(QStringLiteral("Are you sure you want to delete this recipe?"), this, true))
        return;
    RecipeBook::DeleteRecipe(current_);
    ListRecipes();
    if (current_ == NoRecipe)
        cmdNew_->setFocus();
    else
        lsRecipes_->setFocus();
}

void frmRecipeManager::cmdSend_Click() {
    if (current_ == NoRecipe)
        ShowAlert(QStringLiteral("You must first search for a recipe to send."), this);
    else
        frmSend(current_, this).ShowModal();
}

void frmRecipeManager::cmdImport_Click() {
    frmImport(this).ShowModal();
    ListRecipes();
}

/// The list on the card is drawn anew when the dialog closes.
void frmRecipeManager::cmdIngreds_Click() {
    frmRecSearch dialog(this);
    connect(&dialog, &frmRecSearch::FoodChosen, this,
            [this](const QString&, const ScaledFood& item) { AddFood(item); });
    dialog.ShowModal();
    card_->Ingredients()->DisplayFoods(true);
}

void frmRecipeManager::AddFood(const ScaledFood& item) {
    RecipeBook::AddIngredient(current_, item);
}

void frmRecipeManager::cmdDone_Click() {
    ::ShowScreen(Screens::Main.name);
}

bool frmRecipeManager::IsEditing() const {
    return cmdEdit_->Caption().compare(saveCaption, Qt::CaseInsensitive) == 0;
}

/// "Save Changes" is the screen's main action; "Edit Recipe" is not.
void frmRecipeManager::SetEditCaption(QLatin1String caption) {
    cmdEdit_->SetCaption(caption);
    cmdEdit_->SetMainAction(IsEditing());
    cmdEdit_->resize(cmdEdit_->sizeHint());
    PlaceButtons();
}

void frmRecipeManager::AllowAll(std::initializer_list<ucButton*> buttons, bool allowed) {
    for (ucButton* button : buttons) {
        button->SetEnabled(allowed);
        button->Reset();
    }
}
