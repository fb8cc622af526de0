#include "intake/ui/ucMyFood.h"

#include "foods/Meals.h"
#include "intake/DayLog.h"
#include "intake/ui/ListNotice.h"
#include "intake/ui/MealHeading.h"
#include "intake/ui/QuantityField.h"
#include "runtime/AppState.h"
#include "runtime/Convert.h"
#include "runtime/Format.h"
#include "runtime/Seams.h"
#include "toolkit/AtePane.h"
#include "toolkit/SpokenRole.h"
#include "toolkit/ucAte.h"
#include "toolkit/ucButtonA.h"

#include <QApplication>
#include <QKeyEvent>

#include <algorithm>

namespace {

constexpr std::array HeadingNames{"lblBreakfast", "lblLunch", "lblDinner", "lblSnack"};
static_assert(HeadingNames.size() == Meals::Names.size());

constexpr int MostLines = 300;
constexpr int MostLinesLimited = 49; // with the template, 50 of the row array

} // namespace

ucMyFood::ucMyFood(QWidget* parent)
    : AteList(0, parent)
    , lblStatus_(new ListNotice(this)) {
    SetSpokenRole(this, QAccessible::List);
    setAccessibleName(QStringLiteral("Food intake"));
    for (size_t meal = 0; meal < headings_.size(); ++meal)
        headings_[meal] = AddHeading(static_cast<int>(meal));
    connect(Pane(), &AtePane::Click, this, [this] { Q_EMIT AddRequested(-1); });
    connect(Pane(), &AtePane::PaneMove, this, &ucMyFood::OnPaneMove);
    connect(Pane(), &AtePane::LineMove, this, [this] { AllOff(QString()); });
}

MealHeading* ucMyFood::AddHeading(int meal) {
    auto* heading = new MealHeading(QLatin1String(HeadingNames[static_cast<size_t>(meal)]),
                                    Meals::NameOf(meal), Pane()->picResultsPane());
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
    if (field_)
        field_->Close();
    const AtePane::Redraw redraw(*Pane(), resetPane);
    lblStatus_->hide();
    meals_.clear();
    const LoggedMeals meals = DayLog::FoodsOf(date_);
    for (size_t meal = 0; meal < meals.size(); ++meal)
        DisplayMeal(static_cast<int>(meal), meals[meal]);
}

void ucMyFood::DisplayMeal(int meal, const std::vector<LoggedFood>& foods) {
    Pane()->PlaceHeading(headings_[static_cast<size_t>(meal)]);
    if (foods.empty())
        Pane()->AddBlankLine();
    for (const LoggedFood& food : foods)
        showFood(food.name, food.serving, food.RecID, meal + 1, food.quantity);
}

void ucMyFood::showFood(const QString& FoodName, const QString& Serving, qint32 RecID,
                        int MealNumber, double QTY) {
    meals_.push_back(MealNumber - 1);
    Pane()->showFood(FoodName, Serving, RecID, QTY,
                     App().AppInfo.LIMITRESULTS ? MostLinesLimited : MostLines);
}

void ucMyFood::ClearList() {
    Pane()->ClearList();
}

void ucMyFood::AddFood(const ScaledFood& item, const QString& meal) {
    changes_.Add(item, meal, date_);
    DisplayFoods();
}

void ucMyFood::RemoveRow(qint32 recID) {
    if (field_ && field_->RecID() != recID)
        LeaveQuantity(field_);
    changes_.Remove(recID);
    DisplayFoods();
}

void ucMyFood::ClearFoods() {
    changes_.Clear(date_);
    DisplayFoods();
    Q_EMIT FoodsChanged();
}

void ucMyFood::Copy(const LoggedEntries& foods, QDate from, QDate to) {
    if (const QString refusal = DayLog::CopyRefusal(from, to); !refusal.isEmpty()) {
        ShowAlert(refusal, window());
        return;
    }
    const QString copied = changes_.Copy(foods, to);
    if (copied.isEmpty())
        lblStatus_->Say("Nothing to copy is logged on " + FormatShortDate(from) + '.');
    else
        ShowChange(to == date_ ? QStringLiteral("Copied") : "Copied to " + FormatShortDate(to),
                   copied, date_);
}

void ucMyFood::Move(const LoggedEntries& foods, int meal) {
    const ucAte* line = LineAt(QApplication::focusWidget());
    const QString key = line ? line->ID() : QString();
    const QString moved = changes_.Move(foods, meal);
    ShowChange("Moved to " + Meals::NameOf(meal), moved, date_);
    FocusLine(key);
}

void ucMyFood::Undo() {
    if (!changes_.CanUndo())
        return;
    const DayChanges::Report report = changes_.Undo();
    ShowChange(report.done, report.foods, report.day);
}

/// The day is said if it is not the one on the screen. A shortened name ends in points already.
void ucMyFood::ShowChange(const QString& done, const QString& foods, QDate day) {
    DisplayFoods();
    Q_EMIT FoodsChanged();
    const QString elsewhere = day == date_ ? QString() : " on " + FormatShortDate(day);
    const QString end = foods.endsWith(u'…') ? QString() : QStringLiteral(".");
    lblStatus_->Say(done + elsewhere + ": " + foods + end);
}

/// A line that has moved keeps the focus.
void ucMyFood::FocusLine(const QString& key) {
    for (int i = 1; !key.isEmpty() && i <= Pane()->LineCount(); ++i)
        if (Pane()->Line(i)->ID() == key)
            Pane()->Line(i)->imgTrash()->setFocus(Qt::TabFocusReason);
}

void ucMyFood::EditQuantity(ucAte* line) {
    const std::vector<LoggedRow> row = LoggedRow::AllOf(LoggedEntries::One(KeyOf(line)));
    if (row.empty())
        return;
    field_ = new QuantityField(line, row.front().quantity);
    connect(field_, &QuantityField::Entered, this, [this] { EnterQuantity(field_); });
    connect(field_, &QuantityField::Left, this, [this] { LeaveQuantity(field_); });
}

/// After a refusal the field stays open.
void ucMyFood::EnterQuantity(QuantityField* field) {
    const QString refusal = DayLog::QuantityRefusal(field->RecID(), field->Quantity());
    if (refusal.isEmpty())
        return KeepQuantity(field);
    ShowAlert(refusal, window());
    field->setFocus();
    field->selectAll();
}

/// After a refusal the old quantity stays.
void ucMyFood::LeaveQuantity(QuantityField* field) {
    if (!field->isModified())
        return field->Close();
    const QString refusal = DayLog::QuantityRefusal(field->RecID(), field->Quantity());
    if (refusal.isEmpty())
        return KeepQuantity(field);
    field->Close();
    ShowAlert(refusal, window());
}

void ucMyFood::KeepQuantity(QuantityField* field) {
    const QString food = LineAt(field)->FoodName();
    const double quantity = field->Quantity();
    field->Close();
    if (quantity == field->Old())
        return;
    changes_.SetQuantity(field->RecID(), quantity);
    ShowChange("Quantity " + DecimalText(quantity), food, date_);
}

bool ucMyFood::HasFoods() const {
    return !meals_.empty();
}

bool ucMyFood::HasFoods(int meal) const {
    return std::find(meals_.begin(), meals_.end(), meal) != meals_.end();
}

ucAte* ucMyFood::LineAt(const QWidget* part) const {
    for (int i = 1; part && i <= Pane()->LineCount(); ++i)
        if (Pane()->Line(i) == part || Pane()->Line(i)->isAncestorOf(part))
            return Pane()->Line(i);
    return nullptr;
}

std::optional<int> ucMyFood::MealAt(const QWidget* part) const {
    const auto found = std::find(headings_.begin(), headings_.end(), part);
    return found == headings_.end() ? std::nullopt : std::optional(int(found - headings_.begin()));
}

int ucMyFood::MealOf(const ucAte* line) const {
    for (int i = 1; i <= Pane()->LineCount(); ++i)
        if (Pane()->Line(i) == line)
            return meals_[static_cast<size_t>(i - 1)];
    return -1;
}

qint32 ucMyFood::KeyOf(const ucAte* line) {
    return ToInteger(line->ID());
}

void ucMyFood::keyPressEvent(QKeyEvent* event) {
    ucAte* line = LineAt(QApplication::focusWidget());
    if (event->key() == Qt::Key_F2 && line)
        EditQuantity(line);
    else
        AteList::keyPressEvent(event);
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
