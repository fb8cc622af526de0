#include "intake/ui/ucMyFood.h"

#include "intake/DayLog.h"
#include "intake/ui/MealHeading.h"
#include "model/Nutrients.h"
#include "model/User.h"
#include "runtime/AppState.h"
#include "runtime/Dates.h"
#include "runtime/RuntimeError.h"
#include "store/Connection.h"
#include "store/Recordset.h"
#include "toolkit/AtePane.h"
#include "toolkit/MousePointer.h"

namespace {

struct Meal {
    const char* label;
    const char* caption;
    const char* condition;
};

constexpr Meal meals[] = {
    {"lblBreakfast", "Breakfast", " AND MEAL = 'BREAKFAST' AND UDate = #"},
    {"lblLunch", "Lunch", " AND MEAL = 'LUNCH' AND UDate = #"},
    {"lblDinner", "Dinner", " AND MEAL = 'DINNER' AND UDate = #"},
    {"lblSnack", "Snacks", " AND MEAL = 'SNACKS' AND UDate = #"},
};

constexpr int mostLines = 300;
constexpr int mostLinesLimited = 49; // with the template, 50 of the row array

} // namespace

ucMyFood::ucMyFood(QWidget* parent)
    : DrawnControl(parent)
    , pane_(new AtePane(this)) {
    setAccessibleName(QStringLiteral("Food intake"));
    for (int meal = 0; meal < 4; ++meal)
        headings_[static_cast<size_t>(meal)] = AddHeading(meal);
    connect(pane_, &AtePane::RemoveFood, this, &ucMyFood::RemoveFood);
    connect(pane_, &AtePane::Click, this, [this] { Q_EMIT AddRequested(-1); });
    connect(pane_, &AtePane::PaneMove, this, &ucMyFood::OnPaneMove);
    connect(pane_, &AtePane::LineMove, this, [this] { AllOff(QString()); });
}

MealHeading* ucMyFood::AddHeading(int meal) {
    auto* heading = new MealHeading(QLatin1String(meals[meal].label),
                                    QLatin1String(meals[meal].caption), pane_->picResultsPane());
    heading->hide();
    connect(heading, &MealHeading::Click, this, [this, meal] { Q_EMIT AddRequested(meal); });
    connect(heading, &MealHeading::MouseMove, this, [this, heading] { OnHeadingMove(heading); });
    connect(heading, &MealHeading::MouseMove, this, &ucMyFood::MouseMove);
    return heading;
}

void ucMyFood::InitControls() {
    pane_->setGeometry(rect());
}

void ucMyFood::resizeEvent(QResizeEvent*) {
    InitControls();
}

void ucMyFood::showEvent(QShowEvent*) {
    InitControls();
}

void ucMyFood::setDate(QDate date) {
    date_ = date;
    DisplayFoods(false);
}

void ucMyFood::DisplayFoods(bool resetPane) {
    if (!date_.isValid())
        return;
    const AtePane::Redraw redraw(*pane_, resetPane);
    for (int meal = 0; meal < 4; ++meal)
        DisplayMeal(meal);
}

void ucMyFood::DisplayMeal(int meal) {
    Recordset rows(UserDB(),
                   "SELECT * FROM USER_FOODS WHERE UID =" + QString::number(User::Current().UID) +
                       QLatin1String(meals[meal].condition) + Dates::ShortText(date_) + u'#',
                   Cursor::Static, Lock::ReadOnly);
    pane_->PlaceHeading(headings_[static_cast<size_t>(meal)]);
    if (rows.AtEnd())
        pane_->AddBlankLine();
    for (; !rows.AtEnd(); rows.MoveNext())
        showFood(rows[QStringLiteral("FoodName")].Text(), rows[QStringLiteral("Serving")].Text(),
                 rows[QStringLiteral("RecID")].Integer(), meal + 1,
                 rows[QStringLiteral("QTY")].NumberOr(0));
    rows.Close();
}

void ucMyFood::showFood(const QString& FoodName, const QString& Serving, qint32 RecID,
                        int MealNumber, double QTY) {
    Q_UNUSED(MealNumber)
    pane_->showFood(FoodName, Serving, RecID, QTY,
                    App().AppInfo.LIMITRESULTS ? mostLinesLimited : mostLines);
}

void ucMyFood::ClearList() {
    pane_->ClearList();
}

/// A row holds finished amounts. It is committed whole or not at all.
void ucMyFood::AddFood(const ScaledFood& item, const QString& meal) {
    Recordset rows(UserDB(), DayLog::RowsOf("USER_FOODS", date_), Cursor::Dynamic,
                   Lock::Optimistic);
    rows.AddNew();
    for (int i = 1; i <= NutrientCount; ++i)
        rows.Set(i, item.Item(rows.FieldName(i)));
    rows.Set(QStringLiteral("UID"), User::Current().UID);
    rows.Set(QStringLiteral("FoodName"), item.Item(QStringLiteral("FOODNAME")));
    rows.Set(QStringLiteral("Serving"), item.Item(QStringLiteral("SERVING")));
    rows.Set(QStringLiteral("ID"), item.Item(QStringLiteral("ID")));
    rows.Set(QStringLiteral("Meal"), meal);
    rows.Set(QStringLiteral("UDate"), date_);
    rows.Set(QStringLiteral("QTY"), item.Item(QStringLiteral("QTY")));
    rows.Update();
    DisplayFoods();
    rows.Close();
}

void ucMyFood::RemoveFood(qint32 recID) {
    if (DeleteRow(recID))
        Q_EMIT FoodRemoved();
}

/// Where the row cannot be deleted, the line stays until the next redraw.
bool ucMyFood::DeleteRow(qint32 recID) {
    MousePointer::SetBusy();
    const MousePointer::NormalAtEnd normalAtEnd;
    try {
        Recordset row(UserDB(), "SELECT * FROM USER_FOODS WHERE RecID = " + QString::number(recID),
                      Cursor::Keyset, Lock::Optimistic);
        row.Delete();
        DisplayFoods(false);
        row.Close();
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

void ucMyFood::AllOff(const QString& except) {
    for (MealHeading* heading : headings_)
        if (heading->objectName().toLower() != except)
            heading->SetLit(false);
}

void ucMyFood::OnHeadingMove(MealHeading* heading) {
    AllOff(heading->objectName().toLower());
    heading->SetLit(true);
}

void ucMyFood::OnPaneMove(const QMouseEvent* move) {
    AllOff(QString());
    RaiseMouseMove(move);
}

void ucMyFood::mouseMoveEvent(QMouseEvent* event) {
    OnPaneMove(event);
}
