#include "analysis/ui/ucCal_LG.h"

#include "analysis/LoggedDays.h"
#include "analysis/ui/DayCell.h"
#include "analysis/ui/MonthGrid.h"
#include "drawing/DevicePixels.h"
#include "drawing/SmoothedPrint.h"
#include "drawing/Style.h"
#include "drawing/Twips.h"
#include "runtime/AppState.h"
#include "runtime/Clock.h"
#include "runtime/Dates.h"
#include "runtime/Round.h"
#include "toolkit/Labels.h"
#include "toolkit/ucAALBL.h"
#include "toolkit/ucCalButton.h"
#include "toolkit/ucDropDown.h"
#include "toolkit/ucHeader.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int FirstYear = 1992;
constexpr int LastListedYear = 2012; ///< or the present year, if that is later

// Pixels.
constexpr int TitleHeight = 38;
constexpr int MonthWidth = 104;
constexpr int YearWidth = 70;
constexpr QPoint TodayPlace(5, 9); // from the cell's upper right corner

// Twips.
constexpr int ListHeight = 3700;
constexpr int CellEdge = 15;
constexpr int ButtonPlace = -15;

} // namespace

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
    connect(ucCalButton_, &ucCalButton::Click, this, [this] { picDay_Click(date_.day()); });
    lblToday_ = MakeLabel(picCalBG_, QStringLiteral("lblToday"), QStringLiteral("Today"));
    lblToday_->setFont(TheStyle().smallStrong);
    lblToday_->setAttribute(Qt::WA_TransparentForMouseEvents);
    lblToday_->adjustSize();
}

void ucCal_LG::FillLists() {
    for (int month = 1; month <= 12; ++month)
        ucMonth_->AddItem(Dates::MonthName(month), month);
    lastYear_ = qMax(LastListedYear, Clock::Today().year());
    for (int year = FirstYear; year <= lastYear_; ++year)
        ucYear_->AddItem(QString::number(year), year);
    ucMonth_->Set_aHEIGHT(ListHeight);
    ucYear_->Set_aHEIGHT(ListHeight);
}

/// A year before the first one of the list is shown without being selected.
void ucCal_LG::OpenOn(QDate today) {
    ucMonth_->SetIndex(qint16(today.month()));
    if (today.year() >= FirstYear)
        ucYear_->SetIndex(qint16(today.year() - (FirstYear - 1)));
    else
        ucYear_->SetText(QString::number(today.year()));
    date_ = today;
    getDate();
}

void ucCal_LG::getDate() {
    aadate_->SetCaption(Dates::MonthName(date_.month()) + u' ' + QString::number(date_.year()));
    ShowDays();
    PaintLabels();
}

QDate ucCal_LG::FirstOfMonth() const {
    return {date_.year(), date_.month(), 1};
}

QDate ucCal_LG::LastOfMonth() const {
    return Dates::LastOfMonth(date_);
}

void ucCal_LG::ShowDays() {
    const auto* focused = qobject_cast<DrawnControl*>(QApplication::focusWidget());
    const bool focusOnDays = FocusedDay() > 0;
    const bool ringShown = focusOnDays && focused->FocusShown();
    PlaceDays();
    PlaceButton();
    for (int day = date_.daysInMonth() + 1; day <= int(picDay_.size()); ++day)
        CellAt(day)->hide();
    PlaceToday();
    if (focusOnDays)
        FocusDay(date_.day(), ringShown ? Qt::OtherFocusReason : Qt::MouseFocusReason);
    ShowIcons();
    update();
}

void ucCal_LG::PlaceDays() {
    int column = Dates::Weekday(FirstOfMonth()) - 1;
    int row = 0;
    const double cellWidth = picCalBG_->CellWidth();
    int x = Round(cellWidth * column + CellEdge + column);
    int y = picCalBG_->FirstTop();
    picCalBG_->SetMonth(column, date_.daysInMonth());
    for (int day = 1; day <= date_.daysInMonth(); ++day) {
        DayCell* cell = CellAt(day);
        PrintDay(cell, QString::number(day));
        cell->setGeometry(picCalBG_->SlotAt(x, y, column, row));
        cell->show();
        x = Round(x + cellWidth);
        if (++column == MonthGrid::Columns) {
            column = 0;
            x = CellEdge;
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

/// The button is stacked below the icons, which it must not hide.
void ucCal_LG::PlaceButton() {
    DayCell* cell = CellAt(date_.day());
    if (ucCalButton_->parentWidget() != cell)
        ucCalButton_->setParent(cell);
    const int place = Twips::ToPixels(ButtonPlace);
    ucCalButton_->setGeometry(place, place, cell->width() - 2 * place, cell->height() - 2 * place);
    ucCalButton_->SetCaption(QString::number(date_.day()));
    ucCalButton_->lower();
    ucCalButton_->show();
}

void ucCal_LG::PlaceToday() {
    const QDate today = Clock::Today();
    const bool shown = today.month() == date_.month() && today.year() == date_.year();
    lblToday_->setVisible(shown);
    if (!shown)
        return;
    const QRect cell = CellAt(today.day())->geometry();
    lblToday_->move(cell.right() + 1 - TodayPlace.x() - lblToday_->width(),
                    cell.top() + TodayPlace.y());
    lblToday_->raise();
}

void ucCal_LG::ShowIcons() {
    LoggedDays::Days food, weight;
    if (App().AppStarted) {
        const Period month{FirstOfMonth(), LastOfMonth()};
        food = LoggedDays::WithFood(month);
        weight = LoggedDays::WithWeight(month);
    }
    const QString month = Dates::MonthName(date_.month());
    for (int day = 1; day <= date_.daysInMonth(); ++day) {
        CellAt(day)->SetMarks(food[size_t(day)], weight[size_t(day)]);
        CellAt(day)->Name(month);
    }
    ucCalButton_->setAccessibleName(CellAt(date_.day())->accessibleName() + ", chosen");
    picCalBG_->setAccessibleName(aadate_->Caption());
}

void ucCal_LG::picDay_Click(int index) {
    date_ = QDate(date_.year(), date_.month(), index);
    getDate();
    Q_EMIT DayChosen(date_);
}

void ucCal_LG::OnMonth() {
    const int month = ucMonth_->SelectedID();
    if (month != date_.month())
        ShowMonth(QDate(date_.year(), month, 1));
}

void ucCal_LG::OnYear() {
    const int year = ucYear_->SelectedID();
    if (year != date_.year())
        ShowMonth(QDate(year, date_.month(), 1));
}

void ucCal_LG::ShowMonth(QDate first) {
    date_ = first;
    getDate();
    Q_EMIT MonthChanged(first, LastOfMonth());
}

void ucCal_LG::TurnMonth(int months) {
    const QDate first = Dates::AddMonths(FirstOfMonth(), months);
    if (first.year() != date_.year()) {
        if (first.year() < FirstYear || first.year() > lastYear_)
            return;
        ucYear_->SetIndex(qint16(first.year() - (FirstYear - 1)));
    }
    ucMonth_->SetIndex(qint16(first.month()));
    ShowMonth(first);
}

void ucCal_LG::ResetButtons() {
    ucCalButton_->Reset();
}

/// Moves over the cells and the grid arrive here, too.
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
        return date_.day();
    for (size_t i = 0; i < picDay_.size(); ++i)
        if (focused && picDay_[i]->isAncestorOf(focused))
            return int(i) + 1;
    return 0;
}

void ucCal_LG::FocusDay(int day, Qt::FocusReason reason) {
    const int target = qBound(1, day, date_.daysInMonth());
    QWidget* control = CellAt(target);
    if (target == date_.day())
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
    const int listTop = titleTop + (TitleHeight - style.fieldHeight) / 2;
    const int yearLeft = width() - style.boxGap - YearWidth;
    const int monthLeft = yearLeft - style.boxGap - MonthWidth;
    const QSize date = aadate_->sizeHint();
    const int gridTop = titleTop + TitleHeight;
    return {QRect(1, 1, width() - 2, style.headerHeight),
            QRect(QPoint(style.boxGap, titleTop + (TitleHeight - date.height()) / 2), date),
            QRect(monthLeft, listTop, MonthWidth, ucMonth_->height()),
            QRect(yearLeft, listTop, YearWidth, ucYear_->height()),
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

/// A label whose name begins with "aa" only holds place and text: the calendar prints the text
/// itself.
void ucCal_LG::PaintLabels() {
    aadate_->hide();
    update();
}

void ucCal_LG::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Style& style = TheStyle();
    PaintArea(painter, rect(), style.paper);
    ucHeader::PaintBehind(painter, ucHead_->geometry());
    PaintFrame(painter, rect(), style.frame);
    for (const ucAALBL* label : findChildren<ucAALBL*>(Qt::FindDirectChildrenOnly)) {
        if (!label->objectName().startsWith(QLatin1String("aa")))
            continue;
        painter.setPen(label->ForeColor());
        SmoothedPrint(painter, label->pos(), label->Caption(), label->font());
    }
}
