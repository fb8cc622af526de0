#include "foods/ui/ResultRows.h"

#include "drawing/Style.h"
#include "drawing/Twips.h"
#include "foods/FoodSearch.h"
#include "foods/ui/ucFood.h"
#include "toolkit/Labels.h"
#include "toolkit/SpokenRole.h"
#include "toolkit/ucScroll.h"

#include <algorithm>

namespace {
// In twips.
constexpr int BelowLastRow = 120;
constexpr int BarAbove = 15; ///< the bar covers this much of the line around the frame
} // namespace

ResultRows::ResultRows(QWidget* parent)
    : ScrollPane(parent)
    , predecessor_(this) {
    SetSpokenRole(this, QAccessible::List);
    setAccessibleName(QStringLiteral("Foods found"));
    BuildTemplate();
    BuildNoMatch();
    connect(this, &ScrollPane::Scrolled, this, &ResultRows::MaterialiseShown);
}

/// The template is placed above the pane: the first row, placed below it, starts at the top.
void ResultRows::BuildTemplate() {
    auto* row = new ucFood(picResultsPane());
    row->setObjectName(QStringLiteral("ucFood0"));
    row->hide();
    row->move(0, -row->height());
    rows_ << row;
}

void ResultRows::BuildNoMatch() {
    noMatch_ = MakeLabel(picResultsPane(), QStringLiteral("lblNoMatch"), FoodSearch::NoMatch(),
                         TextRole::Quiet);
    noMatch_->hide();
}

void ResultRows::Load(const FoodList& foods, int count, bool recipeMode,
                      const std::function<void(double)>& progress) {
    picResultsPane()->hide();
    Unload();
    ResetPane();
    for (int i = 1; i <= count; ++i) {
        progress(double(i) / count);
        LoadRow(i, foods.Item(i), recipeMode);
    }
    SizePane();
    PlaceNoMatch();
    MaterialiseShown();
    picResultsPane()->show();
}

void ResultRows::FocusFirst() {
    rows_[1]->FocusQuantity();
}

void ResultRows::Unload() {
    while (rows_.size() > 1)
        delete rows_.takeLast();
}

/// SetServB decides the height of the row, and so the place of the next one.
void ResultRows::LoadRow(int index, const Food& food, bool recipeMode) {
    const ucFood* above = rows_.last();
    auto* row = new ucFood(picResultsPane());
    row->setObjectName(u"ucFood" + QString::number(index));
    row->SetBackColor(TheStyle().paper);
    row->SetFoodName(food.FoodName);
    row->SetIsRecipe(food.isRecipe);
    row->SetServA(food.ServA.toString());
    row->SetServB(food.ServB.toString());
    row->SetID(QString::number(food.ID));
    row->SetRecipeMode(recipeMode);
    row->setGeometry(0, above->y() + above->height(), PaneWidth(), row->height());
    row->show();
    Connect(row, index);
    setTabOrder(Count() > 0 ? rows_.last() : predecessor_, row);
    rows_ << row;
}

void ResultRows::Connect(ucFood* row, int index) {
    connect(row, &ucFood::EatFood, this,
            [this, index](qint32 id, const QString& serv, double qty, bool recipe) {
                Q_EMIT EatFood(index, id, serv, qty, recipe);
            });
    connect(row, &ucFood::ExamineFood, this,
            [this, index](qint32 id, const QString& serv, double qty, bool recipe) {
                Q_EMIT ExamineFood(index, id, serv, qty, recipe);
            });
    connect(row, &ucFood::MouseMove, this, &ResultRows::RowMouseMove);
    connect(row, &ucFood::Reached, this, [this, row] { EnsureVisible(row->geometry()); });
}

void ResultRows::SizePane() {
    const ucFood* last = rows_.last();
    const int bottom = last->y() + last->height();
    if (bottom > picResultsPane()->height()) {
        SetPaneHeight(bottom + Twips::ToPixels(BelowLastRow));
        ShowBar();
    } else {
        HideBar();
    }
    FitWidths();
}

void ResultRows::PlaceBar() {
    QRect place = vsResultsPane()->geometry();
    place.setTop(-Twips::ToPixels(BarAbove));
    vsResultsPane()->setGeometry(place);
}

/// Without a scroll bar the rows take its width, too.
void ResultRows::FitWidths() {
    const bool barShown = vsResultsPane()->isVisibleTo(this);
    const int width = barShown ? PaneWidth() : picResultsBox()->width();
    picResultsPane()->resize(width, picResultsPane()->height());
    for (ucFood* row : std::as_const(rows_))
        row->resize(width, row->height());
}

void ResultRows::PlaceNoMatch() {
    const QSize pane = picResultsPane()->size();
    noMatch_->move((pane.width() - noMatch_->sizeHint().width()) / 2, pane.height() / 2);
    noMatch_->setVisible(Count() < 1);
}

void ResultRows::MaterialiseShown() {
    const int top = -picResultsPane()->y();
    const int bottom = top + FrameHeight();
    const auto above = [](const ucFood* row, int y) { return row->geometry().bottom() < y; };
    auto row = std::lower_bound(rows_.cbegin() + 1, rows_.cend(), top, above);
    for (; row != rows_.cend() && (*row)->y() < bottom; ++row)
        (*row)->Materialise();
}

void ResultRows::resizeEvent(QResizeEvent* event) {
    ScrollPane::resizeEvent(event);
    PlaceBar();
    FitWidths();
}
