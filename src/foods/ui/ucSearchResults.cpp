#include "foods/ui/ucSearchResults.h"

#include "drawing/DevicePixels.h"
#include "drawing/Style.h"
#include "drawing/Twips.h"
#include "foods/FoodHabits.h"
#include "foods/FoodSearch.h"
#include "foods/Meals.h"
#include "foods/Quantity.h"
#include "foods/SearchTerms.h"
#include "foods/ui/ResultRows.h"
#include "foods/ui/SearchProgress.h"
#include "foods/ui/TermField.h"
#include "runtime/AppState.h"
#include "runtime/Convert.h"
#include "runtime/Seams.h"
#include "runtime/SettingTable.h"
#include "runtime/Settings.h"
#include "runtime/Val.h"
#include "toolkit/Labels.h"
#include "toolkit/MousePointer.h"
#include "toolkit/ucButton.h"
#include "toolkit/ucRadio.h"

#include <QCheckBox>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int MealCount = Meals::Names.size();

constexpr int LimitedRows = 50;
constexpr int MostHabits = 8; ///< of each kind in the list of the empty field

// In twips.
constexpr int ResultsLeft = 15;
constexpr int ResultsTop = 1065;
constexpr int ResultsBelow = 30;

// The two lines of fields above the results, in pixels.
constexpr int CaptionTop = 0;
constexpr int CaptionHeight = 15;
constexpr int FieldTop = 16;
constexpr int TermWidth = 196;
constexpr int SourceTop = 46;
constexpr int SourceHeight = 22;

QString Named(const char* name, int index) {
    return QLatin1String(name) + QString::number(index);
}

QLabel* CaptionAt(QWidget* panel, const char* name, const char* text, QPoint place) {
    QLabel* caption = MakeLabel(panel, QLatin1String(name), QLatin1String(text), TextRole::Small);
    caption->setGeometry(QRect(place, QSize(caption->sizeHint().width(), CaptionHeight)));
    return caption;
}

} // namespace

ucSearchResults::ucSearchResults(QWidget* parent)
    : DrawnControl(parent) {
    BuildTerm();
    BuildMeals();
    BuildSources();
    BuildResults();
    RestoreState();
}

ucSearchResults::~ucSearchResults() {
    StoreState();
}

void ucSearchResults::BuildTerm() {
    Watch(CaptionAt(this, "lblFoodName", "Food name:", {1, CaptionTop}));
    txtSearchString_ = new TermField(this);
    txtSearchString_->setObjectName(QStringLiteral("txtSearchString"));
    txtSearchString_->setAccessibleName(QStringLiteral("Food name"));
    txtSearchString_->setAccessibleDescription(
        QStringLiteral("When it is empty, the Down key lists the foods logged before"));
    txtSearchString_->setGeometry(1, FieldTop, TermWidth, TheStyle().fieldHeight);
    Watch(txtSearchString_);
    cmdGo_ = new ucButton(QStringLiteral("Search"), this);
    cmdGo_->setObjectName(QStringLiteral("cmdGo"));
    cmdGo_->SetMainAction(true);
    cmdGo_->move(txtSearchString_->geometry().right() + TheStyle().boxGap, FieldTop - 1);
    connect(txtSearchString_, &TermField::SearchAsked, this, &ucSearchResults::SearchByKey);
    connect(txtSearchString_, &TermField::HabitsAsked, this, &ucSearchResults::OfferHabits);
    connect(cmdGo_, &ucButton::Click, this, &ucSearchResults::SearchFoodsDB);
}

void ucSearchResults::BuildMeals() {
    int left = cmdGo_->geometry().right() + 20;
    Watch(CaptionAt(this, "lblMeals", "Add foods to meal:", {left, CaptionTop}));
    for (int i = 0; i < MealCount; ++i) {
        opMeal_[i] = new ucRadio(Meals::NameOf(i), this);
        opMeal_[i]->setObjectName(Named("opMeal", i));
        const QSize size = opMeal_[i]->sizeHint();
        opMeal_[i]->setGeometry(left, FieldTop, size.width(), TheStyle().fieldHeight);
        left += size.width() + 2;
        connect(opMeal_[i], &ucRadio::Click, this, [this, i] { TickMeal(i); });
        Watch(opMeal_[i]);
    }
}

void ucSearchResults::BuildSources() {
    QLabel* caption = CaptionAt(this, "lblLocations", "Search locations:", {1, SourceTop});
    caption->setFixedHeight(SourceHeight);
    Watch(caption);
    struct Source {
        QCheckBox*& box;
        const char *name, *text;
    };
    int left = caption->geometry().right() + 14;
    for (const Source& source : {Source{ckStock_, "ckStock", "Standard foods"},
                                 Source{ckCustom_, "ckCustom", "Custom foods"},
                                 Source{ckRecipes_, "ckRecipes", "Recipes"}}) {
        source.box = new QCheckBox(QLatin1String(source.text), this);
        source.box->setObjectName(QLatin1String(source.name));
        source.box->setGeometry(left, SourceTop, source.box->sizeHint().width(), SourceHeight);
        left += source.box->width() + 18;
        Watch(source.box);
    }
}

void ucSearchResults::BuildResults() {
    rows_ = new ResultRows(this);
    rows_->SetTabPredecessor(ckRecipes_);
    Watch(rows_->picResultsPane());
    picStatus_ = new SearchProgress(this);
    connect(rows_, &ResultRows::EatFood, this, &ucSearchResults::LogChosenFood);
    connect(rows_, &ResultRows::ExamineFood, this, &ucSearchResults::ExamineChosenFood);
    connect(rows_, &ResultRows::RowMouseMove, this, &ucSearchResults::ResetButtons);
}

void ucSearchResults::Watch(QWidget* control) {
    control->setMouseTracking(true);
    control->installEventFilter(this);
}

bool ucSearchResults::eventFilter(QObject* control, QEvent* event) {
    if (event->type() == QEvent::MouseMove)
        mouseMoveEvent(static_cast<QMouseEvent*>(event));
    return DrawnControl::eventFilter(control, event);
}

void ucSearchResults::mouseMoveEvent(QMouseEvent* event) {
    ResetButtons();
    RaiseMouseMove(event);
}

void ucSearchResults::ResetButtons() {
    cmdGo_->Reset();
}

void ucSearchResults::SetRecipeMode(bool on) {
    recipeMode_ = on;
    for (int i = 1; i < MealCount; ++i)
        opMeal_[i]->setVisible(!on);
}

void ucSearchResults::SetMeal(int meal) {
    meal_ = meal;
    if (meal >= 0 && meal < MealCount)
        TickMeal(meal);
}

int ucSearchResults::TickedMeal() const {
    for (int i = 0; i < MealCount; ++i)
        if (opMeal_[i]->Value())
            return i;
    return -1;
}

void ucSearchResults::TickMeal(int meal) {
    for (int i = 0; i < MealCount; ++i)
        opMeal_[i]->SetValue(i == meal);
}

void ucSearchResults::RestoreState() {
    const auto ticked = [](const Setting& setting) { return GetRegValue(setting) != u"0"; };
    ckCustom_->setChecked(ticked(Settings::SearchCustom));
    ckRecipes_->setChecked(ticked(Settings::SearchRecipes));
    ckStock_->setChecked(ticked(Settings::SearchStock));
    TickMeal(Meals::LastTicked().value_or(0));
    txtSearchString_->setText(GetRegValue(Settings::SearchString));
}

void ucSearchResults::StoreState() const {
    const auto number = [](int value) { return QString::number(value); };
    SetRegValue(Settings::SearchCustom, number(ckCustom_->isChecked()));
    SetRegValue(Settings::SearchRecipes, number(ckRecipes_->isChecked()));
    SetRegValue(Settings::SearchStock, number(ckStock_->isChecked()));
    SetRegValue(Settings::SearchString, txtSearchString_->text());
    SetRegValue(Settings::Meal, number(std::max(TickedMeal(), 0)));
}

void ucSearchResults::SearchFoodsDB() {
    foods_ = FoodList();
    if (const QString refusal = SearchTerms::Refusal(txtSearchString_->text());
        !refusal.isEmpty()) {
        MousePointer::SetNormal();
        return Refuse(refusal);
    }
    MousePointer::SetBusy();
    const MousePointer::NormalAtEnd normal;
    picStatus_->Begin();
    foods_ =
        FoodSearch::Find(SearchTerms(txtSearchString_->text()),
                         {ckRecipes_->isChecked(), ckCustom_->isChecked(), ckStock_->isChecked()});
    ShowResults();
}

/// Another Enter then logs the first food; a number before it is the quantity.
void ucSearchResults::SearchByKey() {
    SearchFoodsDB();
    if (foods_.Count() > 0)
        rows_->FocusFirst();
}

/// An ingredient belongs to no meal: there is nothing to offer.
void ucSearchResults::OfferHabits() {
    const int meal = TickedMeal();
    if (recipeMode_ || meal < 0)
        return;
    const FoodHabits::Names names = FoodHabits::OfMeal(meal, MostHabits);
    if (names.last.isEmpty())
        return;
    if (habits_) // not when it closes: an item may open a message while the menu still runs it
        habits_->deleteLater();
    auto* menu = new QMenu(txtSearchString_);
    habits_ = menu;
    menu->setObjectName(QStringLiteral("habits"));
    menu->setAccessibleName("Foods logged before for " + Meals::NameOf(meal));
    AddHabits(*menu, "Logged last", names.last);
    AddHabits(*menu, "Logged most often", names.most);
    menu->popup(txtSearchString_->mapToGlobal(txtSearchString_->rect().bottomLeft()));
    menu->setActiveAction(menu->actions().at(1));
}

void ucSearchResults::AddHabits(QMenu& menu, const char* heading, const QStringList& names) {
    if (names.isEmpty())
        return;
    menu.addAction(QLatin1String(heading))->setEnabled(false);
    for (const QString& name : names) {
        QString shown =
            menu.fontMetrics().elidedText(name.simplified(), Qt::ElideRight, width() / 2);
        menu.addAction(shown.replace(u'&', QStringLiteral("&&")), this,
                       [this, name] { SearchFor(name); });
    }
}

void ucSearchResults::SearchFor(const QString& name) {
    txtSearchString_->setText(SearchTerms::ForName(name));
    SearchByKey();
}

void ucSearchResults::ShowResults() {
    const int count = foods_.Count();
    const int shown = App().AppInfo.LIMITRESULTS ? std::min(count, LimitedRows) : count;
    rows_->Load(foods_, shown, recipeMode_,
                [this](double fraction) { picStatus_->SetFraction(fraction); });
    picStatus_->hide();
}

void ucSearchResults::resizeEvent(QResizeEvent*) {
    const int left = Twips::ToPixels(ResultsLeft);
    const int top = Twips::ToPixels(ResultsTop);
    rows_->setGeometry(left, top, width() - 2 * left,
                       height() - top - Twips::ToPixels(ResultsBelow));
    picStatus_->move(rows_->geometry().center() - picStatus_->rect().center());
}

/// Selects the old term, so that typing replaces it. A restored window keeps its focus.
void ucSearchResults::showEvent(QShowEvent* event) {
    DrawnControl::showEvent(event);
    if (event->spontaneous())
        return;
    txtSearchString_->setFocus();
    txtSearchString_->selectAll();
}

void ucSearchResults::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    PaintFrame(painter, rows_->geometry().adjusted(-1, -1, 1, 1), TheStyle().frame);
}

/// After a refused quantity the pointer stays busy until another routine sets it.
void ucSearchResults::LogChosenFood(int, qint32 ID, const QString& Serv, double QTY,
                                    bool isRecipe) {
    MousePointer::SetBusy();
    const QString refusal = Quantity::LogRefusal(Val(DecimalText(QTY)));
    if (!refusal.isEmpty())
        return Refuse(refusal);
    ScaledFood item;
    {
        const MousePointer::NormalAtEnd normal;
        item = ScaledFood::Of(ID, Serv, QTY, isRecipe);
    }
    const int ticked = TickedMeal();
    Q_EMIT FoodChosen(ticked < 0 ? QString() : Meals::NameOf(ticked), item);
}

void ucSearchResults::ExamineChosenFood(int, qint32 ID, const QString& Serv, double QTY,
                                        bool isRecipe) {
    const QString refusal = Quantity::ExamineRefusal(Val(DecimalText(QTY)));
    if (!refusal.isEmpty())
        return Refuse(refusal);
    Q_EMIT FoodExamined(ScaledFood::Of(ID, Serv, QTY, isRecipe));
}

void ucSearchResults::Refuse(const QString& message) {
    ShowAlert(message, window());
}
