#include "intake/ui/ucMyFood.h"

#include "foods/Meals.h"
#include "intake/DayLog.h"
#include "intake/ui/MealHeading.h"
#include "runtime/AppState.h"
#include "toolkit/AtePane.h"

namespace {

constexpr std::array HeadingNames{"lblBreakfast", "lblLunch", "lblDinner", "lblSnack"};
static_assert(HeadingNames.size() == Meals::Names.size());

constexpr int MostLines = 300;
constexpr int MostLinesLimited = 49; // with the template, 50 of the row array

} // namespace

ucMyFood::ucMyFood(QWidget* parent)
    : AteList(0, parent) {
    setAccessibleName(QStringLiteral("Food intake"));
    for (size_t meal = 0; meal < headings_.size(); ++meal)
        headings_[meal] = AddHeading(static_cast<int>(meal));
    connect(Pane(), &AtePane::Click, this, [this] { Q_EMIT AddRequested(-1); });
    connect(Pane(), &AtePane::PaneMove, this, &ucMyFood::OnPaneMove);
    connect(Pane(), &AtePane::LineMove, this, [this] { AllOff(QString()); });
}

MealHeading* ucMyFood::AddHeading(int meal) {
    const auto place = static_cast<size_t>(meal);
    auto* heading = new MealHeading(QLatin1String(HeadingNames[place]),
                                    QLatin1String(Meals::Names[place]), Pane()->picResultsPane());
    heading->hide();
    connect(heading, &MealHeading::Click, this, [this, meal] { Q_EMIT AddRequested(meal); });
    connect(heading, &MealHeading::MouseMove, this, [this, heading] { OnHeadingMove(heading); });
    connect(heading, &MealHeading::MouseMove, this, &ucMyFood::MouseMove);
    return heading;
}

void ucMyFood::setDate(QDate date) {
    date_ = date;
    DisplayFoods(false);
}

void ucMyFood::DisplayFoods(bool resetPane) {
    if (!date_.isValid())
        return;
    const AtePane::Redraw redraw(*Pane(), resetPane);
    for (size_t meal = 0; meal < headings_.size(); ++meal)
        DisplayMeal(static_cast<int>(meal));
}

void ucMyFood::DisplayMeal(int meal) {
    const std::vector<LoggedFood> foods = DayLog::FoodsOf(meal, date_);
    Pane()->PlaceHeading(headings_[static_cast<size_t>(meal)]);
    if (foods.empty())
        Pane()->AddBlankLine();
    for (const LoggedFood& food : foods)
        showFood(food.name, food.serving, food.RecID, meal + 1, food.quantity);
}

void ucMyFood::showFood(const QString& FoodName, const QString& Serving, qint32 RecID,
                        int MealNumber, double QTY) {
    Q_UNUSED(MealNumber)
    Pane()->showFood(FoodName, Serving, RecID, QTY,
                     App().AppInfo.LIMITRESULTS ? MostLinesLimited : MostLines);
}

void ucMyFood::ClearList() {
    Pane()->ClearList();
}

void ucMyFood::AddFood(const ScaledFood& item, const QString& meal) {
    DayLog::AddFood(item, meal, date_);
    DisplayFoods();
}

void ucMyFood::RemoveRow(qint32 recID) {
    DayLog::RemoveFood(recID);
    DisplayFoods();
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
