#include "recipes/ui/ucIngredients.h"

#include "recipes/RecipeStore.h"
#include "runtime/Attempt.h"
#include "store/Connection.h"
#include "store/Recordset.h"
#include "toolkit/AtePane.h"
#include "toolkit/MousePointer.h"
#include "toolkit/Style.h"

#include <QPainter>

static constexpr int edge = 1;

ucIngredients::ucIngredients(QWidget* parent)
    : DrawnControl(parent)
    , pane_(new AtePane(this)) {
    setAccessibleName(QStringLiteral("Ingredients"));
    pane_->SetFillsFrame(false);
    connect(pane_, &AtePane::RemoveFood, this, &ucIngredients::RemoveFood);
    connect(pane_, &AtePane::PaneMove, this, &ucIngredients::RaiseMouseMove);
    InitControls();
}

void ucIngredients::InitControls() {
    pane_->setGeometry(rect().adjusted(edge, edge, -edge, -edge));
}

void ucIngredients::resizeEvent(QResizeEvent*) {
    InitControls();
}

void ucIngredients::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(TheStyle().rule);
    painter.drawRect(rect().adjusted(0, 0, -edge, -edge));
}

void ucIngredients::DisplayFoods(bool ResetPane) {
    const AtePane::Redraw redraw(*pane_, ResetPane);
    Recordset rows(UserDB(),
                   "SELECT * FROM Ingredients WHERE RecipeID =" + QString::number(recipeID_),
                   Cursor::Static, Lock::ReadOnly);
    if (rows.AtEnd())
        pane_->AddBlankLine();
    for (; !rows.AtEnd(); rows.MoveNext())
        showFood(rows[QStringLiteral("FoodName")].Text(), rows[QStringLiteral("Serving")].Text(),
                 rows[QStringLiteral("ID")].Integer(), rows[QStringLiteral("QTY")].NumberOr(1));
    rows.Close();
}

/// A list without lines needs no bar.
void ucIngredients::ClearList() {
    const AtePane::Redraw nothing(*pane_, false);
}

void ucIngredients::showFood(const QString& FoodName, const QString& Serving, qint32 ID,
                             double QTY) {
    pane_->showFood(FoodName, Serving, ID, QTY);
}

void ucIngredients::AddFood(const ScaledFood& item) {
    RecipeStore::AddIngredient(recipeID_, item);
    DisplayFoods();
}

void ucIngredients::RemoveFood(qint32 ID) {
    if (DeleteRow(ID))
        Q_EMIT FoodRemoved();
}

/// Where the row cannot be deleted, the line stays until the next redraw.
bool ucIngredients::DeleteRow(qint32 ID) {
    MousePointer::SetBusy();
    const MousePointer::NormalAtEnd normalAtEnd;
    return Attempt([&] {
        RecipeStore::RemoveIngredient(ID);
        DisplayFoods(true);
    });
}
