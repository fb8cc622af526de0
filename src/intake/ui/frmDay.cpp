#include "intake/ui/frmDay.h"

#include "analysis/ui/ucDaily.h"
#include "drawing/Style.h"
#include "foods/ui/frmFoodSearch.h"
#include "foods/ui/ucSearchResults.h"
#include "intake/DayLog.h"
#include "intake/ui/DayCalendar.h"
#include "intake/ui/DayMenu.h"
#include "intake/ui/DayPages.h"
#include "intake/ui/WeightField.h"
#include "intake/ui/ucMyFood.h"
#include "model/User.h"
#include "runtime/AppState.h"
#include "runtime/Convert.h"
#include "runtime/Format.h"
#include "runtime/Round.h"
#include "runtime/ScreenTable.h"
#include "runtime/Seams.h"
#include "runtime/Val.h"
#include "toolkit/ContextMenu.h"
#include "toolkit/Labels.h"
#include "toolkit/print/Printing.h"
#include "toolkit/ucAALBL.h"
#include "toolkit/ucBox.h"
#include "toolkit/ucButton.h"
#include "toolkit/ucButtonA.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QShortcut>

namespace {

// Measures in pixels.
constexpr int DateLeft = 204; ///< beside the frame's title of the screen
constexpr int PanelWidth = 338;
constexpr int WeightWidth = 62;
constexpr QSize CalendarPicture(18, 18);

} // namespace

frmDay::frmDay(QWidget* parent)
    : ScreenForm(Screens::Day, parent) {
    setFocusPolicy(Qt::ClickFocus);
    AddDateLine();
    AddWeightField();
    AddFoodBox();
    AddPanel();
    AddButtons();
    AddCalendar();
    AddMenu();
}

void frmDay::AddDateLine() {
    aadate_ = new ucAALBL(this);
    aadate_->setObjectName(QStringLiteral("aadate"));
    aadate_->SetFont(TheStyle().title);
    aadate_->SetForeColor(TheStyle().ink);
    aadate_->SetBackColor(TheStyle().canvas);
    cmdCal_ = new ucButtonA(this);
    cmdCal_->setObjectName(QStringLiteral("cmdCal"));
    cmdCal_->SetPictures(QStringLiteral("calendar"), QStringLiteral("Select a new date"));
    cmdCal_->SetPictureSize(CalendarPicture);
    cmdCal_->SetBordered(true);
    connect(cmdCal_, &ucButtonA::Click, this, &frmDay::OpenCalendar);
    connect(cmdCal_, &ucButtonA::MouseMove, this, [this] { AllOff(cmdCal_->objectName()); });
}

void frmDay::AddWeightField() {
    lblWeight_ = MakeLabel(this, QStringLiteral("lblWeight"),
                           QStringLiteral("Enter today's weight:"), TextRole::Text);
    txtWeight_ = new WeightField(this);
    txtWeight_->setObjectName(QStringLiteral("txtWeight"));
    txtWeight_->setAccessibleName(QStringLiteral("Today's weight in pounds"));
    txtWeight_->resize(WeightWidth, TheStyle().fieldHeight);
    lblWeight_->setBuddy(txtWeight_);
    connect(txtWeight_, &WeightField::Left, this, &frmDay::SaveWeight);
    connect(txtWeight_, &WeightField::returnPressed, this, [this] { focusNextChild(); });
}

void frmDay::AddFoodBox() {
    myFood_ = new ucMyFood;
    myFood_->setObjectName(QStringLiteral("ucMyFood"));
    box_ = AddBox("ucBoxMyFood", "Food Intake", myFood_);
    connect(myFood_, &ucMyFood::AddRequested, this, &frmDay::ChooseFoods);
    connect(myFood_, &ucMyFood::FoodRemoved, this, [this] { daily_->updateCharts(); });
    connect(myFood_, &ucMyFood::FoodsChanged, this, [this] { daily_->updateCharts(); });
    connect(myFood_, &ucMyFood::MouseMove, this, [this](int, int, double x, double y) {
        if (HasMoved(x, y))
            AllOff(QStringLiteral("ucmyfood"));
    });
}

void frmDay::AddPanel() {
    daily_ = new ucDaily(this);
    daily_->setObjectName(QStringLiteral("ucDaily"));
    connect(daily_, &ucDaily::MouseMove, this, [this](int, int, double x, double y) {
        if (HasMoved(x, y))
            AllOff(QString());
    });
}

void frmDay::AddButtons() {
    cmdAddFoods_ = AddButton("cmdAddFoods", "Eat foods", &frmDay::EatFoods);
    cmdAddFoods_->SetMainAction(true);
    cmdClear_ = AddButton("cmdClear", "Clear foods", &frmDay::ClearFoods);
    cmdDone_ = AddButton("cmdDone", "Done", &frmDay::GoHome);
}

void frmDay::AddCalendar() {
    picCal_ = new DayCalendar(this);
    connect(picCal_, &DayCalendar::Picked, this, &frmDay::PickDay);
}

void frmDay::AddMenu() {
    auto* items = new DayMenu(myFood_);
    connect(items, &DayMenu::AddAsked, this, &frmDay::ChooseFoods);
    connect(items, &DayMenu::CopyDayAsked, this, &frmDay::ChooseCopyDay);
    new ContextMenu(this, [this, items](QMenu& menu, QWidget* target) {
        if (picCal_->isAncestorOf(target))
            return;
        items->Fill(menu, target);
        Printing::AddItem(menu, this, [this] { return ToPrint(); });
    });
    Printing::AddKey(this, [this] { return ToPrint(); });
    auto* undo = new QShortcut(QKeySequence::Undo, this);
    undo->setContext(Qt::WidgetWithChildrenShortcut);
    connect(undo, &QShortcut::activated, myFood_, &ucMyFood::Undo);
}

/// A typed weight is saved first, so that the page holds what the person sees.
PrintJob frmDay::ToPrint() {
    if (txtWeight_->HoldsUnsaved())
        txtWeight_->Leave();
    return Printed();
}

PrintJob frmDay::Printed() const {
    const QString day = FormatLongDate(App().CurrentDate);
    return {"Daily Details, " + day, User::Current().UserName + u", " + day,
            [pages = DayPages(App().CurrentDate, daily_->Totals())](Pages& paper) {
                pages.Paint(paper);
            }};
}

void frmDay::resizeEvent(QResizeEvent*) {
    PlaceDateLine();
    PlaceBoxes();
    PlaceButtons();
}

void frmDay::PlaceDateLine() {
    const Style& style = TheStyle();
    PlaceInTitleLine(cmdCal_, PlaceInTitleLine(aadate_, DateLeft) + style.boxGap);
    picCal_->setGeometry(QRect(QPoint(cmdCal_->x(), BoxesPlace().top()), picCal_->sizeHint()));
    PlaceInTitleLine(txtWeight_, width() - style.nestEdge - txtWeight_->width());
    PlaceInTitleLine(lblWeight_, txtWeight_->x() - style.boxGap - lblWeight_->width());
}

void frmDay::PlaceBoxes() {
    QRect place = BoxesPlace();
    daily_->setGeometry(place.right() + 1 - PanelWidth, place.top(), PanelWidth, place.height());
    place.setRight(daily_->x() - TheStyle().boxGap - 1);
    box_->setGeometry(place);
}

void frmDay::PlaceButtons() {
    PlaceInRow(box_->x(), {cmdAddFoods_, cmdClear_});
    PlaceAtEnd(cmdDone_);
}

void frmDay::buildDate() {
    const QString text = FormatLongDate(App().CurrentDate);
    aadate_->SetCaption(text);
    box_->SetCaption("My food intake for " + text);
    PlaceDateLine();
}

void frmDay::PassDay() {
    daily_->setDate(App().CurrentDate);
    myFood_->setDate(App().CurrentDate);
}

void frmDay::BeforeShow() {
    PassDay();
}

void frmDay::DoWinInit() {
    buildDate();
    const double weight = DayLog::Weight(App().CurrentDate);
    const QString text = DecimalText(weight);
    txtWeight_->setText(text == "0" ? QString() : text);
    ShowTargets(DayLog::TakeWeight(weight));
}

/// An empty field takes the entry back: it is stored as 0.
void frmDay::SaveWeight() {
    const QString text = txtWeight_->text();
    const double weight = Val(text);
    const QString refusal = text.isEmpty() ? QString() : DayLog::WeightRefusal(weight);
    if (!refusal.isEmpty()) {
        ShowAlert(refusal, this);
        return;
    }
    const bool taken = DayLog::EnterWeight(App().CurrentDate, weight);
    txtWeight_->setModified(false);
    ShowTargets(taken);
}

void frmDay::ShowTargets(bool weightTaken) {
    if (weightTaken && App().AppInfo.AUTOUPDATERDI)
        daily_->updateCharts();
}

/// A typed weight is saved even if the screen goes before the field loses the focus.
void frmDay::hideEvent(QHideEvent* event) {
    ScreenForm::hideEvent(event);
    if (event->spontaneous())
        return;
    if (txtWeight_->HoldsUnsaved())
        txtWeight_->Leave();
    myFood_->EndVisit();
}

/// The next day screen may be created before this one is destroyed, and must find the mode.
void frmDay::closeEvent(QCloseEvent* event) {
    daily_->StoreMode();
    ScreenForm::closeEvent(event);
}

void frmDay::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && !picCal_->isHidden())
        CloseCalendar();
    else
        ScreenForm::keyPressEvent(event);
}

void frmDay::OpenCalendar() {
    copied_.reset();
    cameFrom_ = cmdCal_;
    picCal_->Open(App().CurrentDate, QStringLiteral("Select a date"));
}

void frmDay::ChooseCopyDay(const LoggedEntries& foods) {
    copied_ = foods;
    cameFrom_ = QApplication::focusWidget();
    picCal_->Open(App().CurrentDate, QStringLiteral("Copy to which day?"));
}

/// Another control takes the focus first. Hiding a panel that has the focus would pass it to the
/// next one.
void frmDay::CloseCalendar() {
    (cameFrom_ ? cameFrom_.data() : this)->setFocus(Qt::OtherFocusReason);
    picCal_->hide();
}

void frmDay::PickDay(QDate day) {
    CloseCalendar();
    if (copied_)
        return myFood_->Copy(*copied_, App().CurrentDate, day);
    App().CurrentDate = day;
    PassDay();
    buildDate();
    DoWinInit();
}

/// The dialog stays open for more foods. The list and the totals behind it follow each one.
void frmDay::ChooseFoods(int meal) {
    frmFoodSearch dialog(this);
    if (meal >= 0)
        dialog.ucSearchResults1()->SetMeal(meal);
    connect(&dialog, &frmFoodSearch::FoodChosen, this,
            [this](const QString& name, const ScaledFood& item) {
                myFood_->AddFood(item, name);
                daily_->updateCharts();
            });
    dialog.ShowModal();
}

void frmDay::ClearFoods() {
    if (!ShowAlert(
            QStringLiteral("Are you sure you wish to remove all foods from your daily intake?"),
            this, true))
        return;
    myFood_->ClearFoods();
}

void frmDay::GoHome() {
    ShowScreen(Screens::Main.name);
}

/// Both must differ: a redraw also sends moves while the pointer rests.
bool frmDay::HasMoved(double x, double y) {
    const qint32 newX = Round(x);
    const qint32 newY = Round(y);
    if (newX == lastX_ || newY == lastY_)
        return false;
    lastX_ = newX;
    lastY_ = newY;
    return true;
}

void frmDay::AllOff(const QString& except) {
    const auto named = [&except](const QWidget* control) {
        return control->objectName().compare(except, Qt::CaseInsensitive) == 0;
    };
    if (!named(cmdCal_))
        cmdCal_->Reset();
    ScreenForm::AllOff(except);
    daily_->Unhilite();
    daily_->AllOff(QString());
    if (!named(myFood_))
        myFood_->AllOff(QString());
}
