#include "analysis/ui/ucCal_LG.h"

#include "analysis/ui/DayCell.h"
#include "analysis/ui/MonthGrid.h"
#include "model/User.h"
#include "runtime/AppState.h"
#include "runtime/Clock.h"
#include "runtime/Dates.h"
#include "runtime/Round.h"
#include "store/Connection.h"
#include "store/Recordset.h"
#include "toolkit/Labels.h"
#include "toolkit/SmoothedPrint.h"
#include "toolkit/Style.h"
#include "toolkit/Twips.h"
#include "toolkit/ucAALBL.h"
#include "toolkit/ucCalButton.h"
#include "toolkit/ucDropDown.h"
#include "toolkit/ucHeader.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <bitset>

namespace {

constexpr int firstYear = 1992;
constexpr int lastListedYear = 2012; ///< or the present year, where that is later
constexpr int longestMonth = 31;

// Pixels.
constexpr int titleHeight = 38;
constexpr int monthWidth = 104;
constexpr int yearWidth = 70;
constexpr QPoint todayPlace(5, 9); // from the cell's upper right corner

// Twips.
constexpr int listHeight = 3700;
constexpr int cellEdge = 15;
constexpr int buttonPlace = -15;

} // namespace

/// The days of the month that have food, and those that have a weight.
struct ucCal_LG::Marks {
    std::bitset<longestMonth + 1> food, scale;
};

ucCal_LG::ucCal_LG(QWidget* parent)
    : DrawnControl(parent) {
    setAccessibleName(QStringLiteral("Calendar"));
    setToolTip(QStringLiteral("Click a day on this calendar to add foods to your analysis."));
    setFocusPolicy(Qt::ClickFocus);
    AddHead();
    AddGrid();
    FillLists();
    OpenOn(Clock::Today());
}

void ucCal_LG::AddHead() {
    ucHead_ = new ucHeader(this);
    ucHead_->setObjectName(QStringLiteral("ucHead"));
    ucHead_->SetCaption(QStringLiteral("Calendar"));
    ucHead_->SetCenterAlignText(false);
    connect(ucHead_, &ucHeader::MouseMove, this, &ucCal_LG::ResetButtons);
    aadate_ = new ucAALBL(this);
    aadate_->setObjectName(QStringLiteral("aadate"));
    aadate_->SetFont(TheStyle().cardTitle);
    aadate_->SetForeColor(TheStyle().heading);
    ucMonth_ = AddList(QStringLiteral("ucMonth"), QStringLiteral("Month"));
    ucYear_ = AddList(QStringLiteral("ucYear"), QStringLiteral("Year"));
    connect(ucMonth_, &ucDropDown::Click, this, &ucCal_LG::OnMonth);
    connect(ucYear_, &ucDropDown::Click, this, &ucCal_LG::OnYear);
}

ucDropDown* ucCal_LG::AddList(const QString& name, const QString& spoken) {
    auto* list = new ucDropDown(this);
    list->setObjectName(name);
    list->setAccessibleName(spoken);
    connect(list, &ucDropDown::MouseMove, this, &ucCal_LG::ResetButtons);
    return list;
}

void ucCal_LG::AddGrid() {
    picCalBG_ = new MonthGrid(this);
    connect(picCalBG_, &MonthGrid::HeadMouseMove, this, &ucCal_LG::ResetButtons);
    ucCalButton_ = new ucCalButton(picCalBG_);
    ucCalButton_->setObjectName(QStringLiteral("ucCalButton"));
    connect(ucCalButton_, &ucCalButton::Click, this, [this] { picDay_Click(day_.toInt()); });
    lblToday_ = MakeLabel(picCalBG_, QStringLiteral("lblToday"), QStringLiteral("Today"));
    lblToday_->setFont(TheStyle().smallStrong);
    lblToday_->setAttribute(Qt::WA_TransparentForMouseEvents);
    lblToday_->adjustSize();
}

void ucCal_LG::FillLists() {
    for (int month = 1; month <= 12; ++month)
        ucMonth_->AddItem(Dates::MonthName(month), month);
    lastYear_ = qMax(lastListedYear, Clock::Today().year());
    for (int year = firstYear; year <= lastYear_; ++year)
        ucYear_->AddItem(QString::number(year), year);
    ucMonth_->Set_aHEIGHT(listHeight);
    ucYear_->Set_aHEIGHT(listHeight);
}

/// A year before the first of the list is only shown.
void ucCal_LG::OpenOn(QDate today) {
    month_ = QString::number(today.month());
    year_ = QString::number(today.year());
    day_ = QStringLiteral("1");
    ucMonth_->SetIndex(qint16(today.month()));
    if (today.year() >= firstYear)
        ucYear_->SetIndex(qint16(today.year() - (firstYear - 1)));
    else
        ucYear_->SetText(year_);
    ShowDays();
    day_ = QString::number(today.day());
    getDate();
}

void ucCal_LG::getDate() {
    date_ = Dates::Parse(QString(month_ + u'/' + day_ + u'/' + year_));
    aadate_->SetCaption(Dates::MonthName(date_.month()) + u' ' + year_);
    ShowDays();
    PaintLabels();
}

QDate ucCal_LG::FirstOfMonth() const {
    return Dates::Parse(QString(month_ + "/1/" + year_));
}

QDate ucCal_LG::LastOfMonth() const {
    return Dates::LastOfMonth(FirstOfMonth());
}

void ucCal_LG::ShowDays() {
    const auto* focused = qobject_cast<DrawnControl*>(QApplication::focusWidget());
    const bool focusOnDays = FocusedDay() > 0;
    const bool ringShown = focusOnDays && focused->FocusShown();
    lastDay_ = LastOfMonth().day();
    PlaceDays();
    PlaceButton();
    for (int day = lastDay_ + 1; day <= int(picDay_.size()); ++day)
        CellAt(day)->hide();
    PlaceToday();
    if (focusOnDays)
        FocusDay(day_.toInt(), ringShown ? Qt::OtherFocusReason : Qt::MouseFocusReason);
    ShowIcons();
    update();
}

void ucCal_LG::PlaceDays() {
    int column = Dates::Weekday(FirstOfMonth()) - 1;
    int row = 0;
    const double cellWidth = picCalBG_->CellWidth();
    int x = Round(cellWidth * column + cellEdge + column);
    int y = picCalBG_->FirstTop();
    picCalBG_->SetMonth(column, lastDay_);
    for (int day = 1; day <= lastDay_; ++day) {
        DayCell* cell = CellAt(day);
        PrintDay(cell, QString::number(day));
        cell->setGeometry(picCalBG_->SlotAt(x, y, column, row));
        cell->show();
        x = Round(x + cellWidth);
        if (++column == MonthGrid::Columns) {
            column = 0;
            x = cellEdge;
            y = Round(y + picCalBG_->RowHeight());
            ++row;
        }
    }
}

DayCell* ucCal_LG::CellAt(int day) {
    while (int(picDay_.size()) < day) {
        const int next = int(picDay_.size()) + 1;
        auto* cell = new DayCell(next, picCalBG_);
        connect(cell, &DayCell::Click, this, [this, next] { picDay_Click(next); });
        picDay_.push_back(cell);
    }
    return picDay_[size_t(day - 1)];
}

void ucCal_LG::PrintDay(DayCell* cell, const QString& text) {
    if (cell->Caption() != text)
        cell->SetCaption(text);
}

/// Below the icons, which the button must not hide.
void ucCal_LG::PlaceButton() {
    DayCell* cell = CellAt(day_.toInt());
    if (ucCalButton_->parentWidget() != cell)
        ucCalButton_->setParent(cell);
    const int place = Twips::ToPixels(buttonPlace);
    ucCalButton_->setGeometry(place, place, cell->width() - 2 * place, cell->height() - 2 * place);
    ucCalButton_->SetCaption(day_);
    ucCalButton_->lower();
    ucCalButton_->show();
}

void ucCal_LG::PlaceToday() {
    const QDate today = Clock::Today();
    const QDate first = FirstOfMonth();
    const bool shown = today.month() == first.month() && today.year() == first.year();
    lblToday_->setVisible(shown);
    if (!shown)
        return;
    const QRect cell = CellAt(today.day())->geometry();
    lblToday_->move(cell.right() + 1 - todayPlace.x() - lblToday_->width(),
                    cell.top() + todayPlace.y());
    lblToday_->raise();
}

void ucCal_LG::ShowIcons() {
    const Marks marks = App().AppStarted ? ReadMarks() : Marks();
    const QString month = Dates::MonthName(month_.toInt());
    for (int day = 1; day <= lastDay_; ++day) {
        CellAt(day)->SetMarks(marks.food[size_t(day)], marks.scale[size_t(day)]);
        CellAt(day)->Name(month);
    }
    ucCalButton_->setAccessibleName(CellAt(day_.toInt())->accessibleName());
    picCalBG_->setAccessibleName(aadate_->Caption());
}

ucCal_LG::Marks ucCal_LG::ReadMarks() const {
    const QString range = QString::number(User::Current().UID) + " AND UDate Between #" + month_ +
                          "/1/" + year_ + "# AND #" + month_ + u'/' + QString::number(lastDay_) +
                          u'/' + year_ + u'#';
    Marks marks;
    Recordset foods(UserDB(), "SELECT DISTINCT UDate FROM USER_FOODS WHERE UID=" + range);
    for (; !foods.AtEnd(); foods.MoveNext())
        marks.food.set(size_t(foods["UDate"].Date().day()));
    foods.Close();
    Recordset weights(UserDB(), "SELECT * FROM USER_WEIGHTS WHERE UID=" + range);
    for (; !weights.AtEnd(); weights.MoveNext())
        if (weights["Weight"].NumberOr(0) != 0)
            marks.scale.set(size_t(weights["UDate"].Date().day()));
    return marks;
}

void ucCal_LG::picDay_Click(int index) {
    day_ = QString::number(index);
    getDate();
    Q_EMIT DayChosen(date_);
}

void ucCal_LG::OnMonth() {
    const QString value = QString::number(ucMonth_->SelectedID());
    if (value == month_)
        return;
    month_ = value;
    ShowMonth();
}

void ucCal_LG::OnYear() {
    const QString value = QString::number(ucYear_->SelectedID());
    if (value == year_)
        return;
    year_ = value;
    ShowMonth();
}

/// The first of a month is a date whatever day was chosen before.
void ucCal_LG::ShowMonth() {
    day_ = QStringLiteral("1");
    getDate();
    Q_EMIT MonthChanged(FirstOfMonth(), LastOfMonth());
}

void ucCal_LG::TurnMonth(int months) {
    const QDate month = Dates::AddMonths(FirstOfMonth(), months);
    const QString year = QString::number(month.year());
    if (year != year_) {
        if (month.year() < firstYear || month.year() > lastYear_)
            return;
        ucYear_->SetIndex(qint16(month.year() - (firstYear - 1)));
        year_ = year;
    }
    ucMonth_->SetIndex(qint16(month.month()));
    month_ = QString::number(month.month());
    ShowMonth();
}

void ucCal_LG::ResetButtons() {
    ucCalButton_->Reset();
}

/// Moves over the cells and the grid arrive here as well.
void ucCal_LG::mouseMoveEvent(QMouseEvent* event) {
    const QPoint place = event->position().toPoint();
    if (place.x() != lastMouse_.x() && place.y() != lastMouse_.y()) {
        lastMouse_ = place;
        ResetButtons();
    }
    RaiseMouseMove(event);
    event->ignore();
}

int ucCal_LG::FocusedDay() const {
    const QWidget* focused = QApplication::focusWidget();
    if (focused == this)
        return day_.toInt();
    for (size_t i = 0; i < picDay_.size(); ++i)
        if (focused && picDay_[i]->isAncestorOf(focused))
            return int(i) + 1;
    return 0;
}

void ucCal_LG::FocusDay(int day, Qt::FocusReason reason) {
    const int target = qBound(1, day, lastDay_);
    QWidget* control = CellAt(target);
    if (target == day_.toInt())
        control = ucCalButton_;
    control->setFocus(reason);
}

void ucCal_LG::keyPressEvent(QKeyEvent* event) {
    struct Step {
        int key, days;
    };
    static constexpr Step steps[] = {{Qt::Key_Left, -1}, {Qt::Key_Right, 1},  {Qt::Key_Up, -7},
                                     {Qt::Key_Down, 7},  {Qt::Key_Home, -31}, {Qt::Key_End, 31}};
    const int day = FocusedDay();
    if (day == 0)
        return DrawnControl::keyPressEvent(event);
    for (const Step& step : steps)
        if (event->key() == step.key)
            return FocusDay(day + step.days, Qt::OtherFocusReason);
    if (event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown)
        return TurnMonth(event->key() == Qt::Key_PageUp ? -1 : 1);
    DrawnControl::keyPressEvent(event);
}

ucCal_LG::Layout ucCal_LG::layoutRects() const {
    const Style& style = TheStyle();
    const int titleTop = 1 + style.headerHeight;
    const int listTop = titleTop + (titleHeight - style.fieldHeight) / 2;
    const int yearLeft = width() - style.boxGap - yearWidth;
    const int monthLeft = yearLeft - style.boxGap - monthWidth;
    const QSize date = aadate_->sizeHint();
    const int gridTop = titleTop + titleHeight;
    return {QRect(1, 1, width() - 2, style.headerHeight),
            QRect(QPoint(style.boxGap, titleTop + (titleHeight - date.height()) / 2), date),
            QRect(monthLeft, listTop, monthWidth, ucMonth_->height()),
            QRect(yearLeft, listTop, yearWidth, ucYear_->height()),
            QRect(0, gridTop, width(), height() - gridTop)};
}

QSize ucCal_LG::sizeHint() const {
    return {498, 514};
}

void ucCal_LG::resizeEvent(QResizeEvent*) {
    const Layout at = layoutRects();
    ucHead_->setGeometry(at.ucHead);
    aadate_->setGeometry(at.aadate);
    ucMonth_->setGeometry(at.ucMonth);
    ucYear_->setGeometry(at.ucYear);
    picCalBG_->setGeometry(at.picCalBG);
    ShowDays();
}

void ucCal_LG::showEvent(QShowEvent*) {
    PaintLabels();
}

/// A label whose name begins with "aa" is one only in the layout: what shows is its print on the
/// calendar's own surface.
void ucCal_LG::PaintLabels() {
    aadate_->hide();
    update();
}

void ucCal_LG::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Style& style = TheStyle();
    painter.fillRect(rect(), style.paper);
    painter.setPen(style.frame);
    painter.drawRect(QRectF(rect()).adjusted(.5, .5, -.5, -.5));
    for (const ucAALBL* label : findChildren<ucAALBL*>(Qt::FindDirectChildrenOnly)) {
        if (!label->objectName().startsWith(QLatin1String("aa")))
            continue;
        painter.setPen(label->ForeColor());
        SmoothedPrint(painter, label->pos(), label->Caption(), label->font());
    }
}
