#include "toolkit/SpokenDays.h"

#include "runtime/Dates.h"
#include "runtime/Format.h"
#include "toolkit/MonthCalendar.h"
#include "toolkit/PressLater.h"
#include "toolkit/SpokenPart.h"

#include <QTableView>

namespace {

constexpr int Weeks = 6;
constexpr int Columns = 7;

// The view tells of a cell by its place behind two headers, of which it shows none: one above the
// row of weekdays and one before the first column.
constexpr int RowsAbove = 2;
constexpr int CountedColumns = Columns + 1;

int PlaceOf(int week, int column) {
    return (week + RowsAbove) * CountedColumns + column + 1;
}

class Day : public SpokenPart, public SpokenGridCell, public QAccessibleActionInterface {
public:
    Day(SpokenDays* days, int week, int column)
        : SpokenPart(days)
        , SpokenGridCell(week, column) {}

    QString text(QAccessible::Text kind) const override;
    QAccessible::Role role() const override {
        return IsHead() ? QAccessible::ColumnHeader : QAccessible::Cell;
    }
    QAccessible::State state() const override;
    QRect rect() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    bool isSelected() const override {
        return Date().isValid() && Date() == Calendar()->selectedDate();
    }
    QAccessibleInterface* table() const override { return parent(); }
    QList<QAccessibleInterface*> columnHeaderCells() const override;
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }

    QStringList actionNames() const override {
        return IsOffered() ? QStringList(pressAction()) : QStringList();
    }
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    bool IsHead() const { return rowIndex() < 0; }
    bool IsOffered() const { return Date().isValid() && Calendar()->Offers(Date()); }
    QDate Date() const; ///< null of a head, and while there is no calendar
    SpokenDays* Days() const { return static_cast<SpokenDays*>(parent()); }
    MonthCalendar* Calendar() const { return Days()->Calendar(); }
};

QDate Day::Date() const {
    return IsHead() || !Calendar() ? QDate() : Calendar()->DateAt(rowIndex(), columnIndex());
}

QString Day::text(QAccessible::Text kind) const {
    if (kind != QAccessible::Name)
        return {};
    return IsHead() ? Days()->columnDescription(columnIndex()) : FormatLongDate(Date());
}

QAccessible::State Day::state() const {
    QAccessible::State state;
    state.invisible = parent()->state().invisible;
    if (IsHead())
        return state;
    state.disabled = !IsOffered();
    state.selectable = state.focusable = !state.disabled;
    state.selected = isSelected();
    state.focused = state.selected && parent()->state().focused;
    return state;
}

QRect Day::rect() const {
    const auto* view = static_cast<QTableView*>(Days()->object());
    const QRect place = view->visualRect(view->model()->index(rowIndex() + 1, columnIndex()));
    return {view->viewport()->mapToGlobal(place.topLeft()), place.size()};
}

void* Day::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableCellInterface)
        return static_cast<QAccessibleTableCellInterface*>(this);
    return type == QAccessible::ActionInterface && !IsHead()
               ? static_cast<QAccessibleActionInterface*>(this)
               : nullptr;
}

QList<QAccessibleInterface*> Day::columnHeaderCells() const {
    return {Days()->child(PlaceOf(-1, columnIndex()))};
}

void Day::doAction(const QString& name) {
    if (name == pressAction() && IsOffered())
        PressLater(Calendar(), [calendar = Calendar(), day = Date()] { calendar->Choose(day); });
}

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
    auto* view = qobject_cast<QTableView*>(object);
    return view && view->inherits("QCalendarView") ? new SpokenDays(view) : nullptr;
}

} // namespace

void SpokenDays::Install() {
    static const bool installed = (QAccessible::installFactory(MakeInterface), true);
    Q_UNUSED(installed)
}

SpokenDays::SpokenDays(QWidget* view)
    : QAccessibleWidget(view, QAccessible::Table) {}

SpokenDays::~SpokenDays() {
    for (const auto& [place, id] : ids_)
        QAccessible::deleteAccessibleInterface(id);
}

MonthCalendar* SpokenDays::Calendar() const {
    return qobject_cast<MonthCalendar*>(widget()->parentWidget());
}

QAccessibleInterface* SpokenDays::At(int week, int column) const {
    QAccessible::Id& id = ids_[{week, column}];
    if (id == 0)
        id = QAccessible::registerAccessibleInterface(
            new Day(const_cast<SpokenDays*>(this), week, column));
    return QAccessible::accessibleInterface(id);
}

int SpokenDays::childCount() const {
    return PlaceOf(Weeks, -1);
}

/// The places of the two headers hold nothing.
QAccessibleInterface* SpokenDays::child(int index) const {
    const int week = index / CountedColumns - RowsAbove;
    const int column = index % CountedColumns - 1;
    const bool is = index < childCount() && week >= -1 && column >= 0;
    return is ? At(week, column) : nullptr;
}

QAccessibleInterface* SpokenDays::childAt(int x, int y) const {
    for (int place = PlaceOf(-1, 0); place < childCount(); ++place)
        if (QAccessibleInterface* cell = child(place); cell && cell->rect().contains(x, y))
            return cell;
    return nullptr;
}

int SpokenDays::indexOfChild(const QAccessibleInterface* child) const {
    const auto* day = dynamic_cast<const Day*>(child);
    return day && day->parent() == this ? PlaceOf(day->rowIndex(), day->columnIndex()) : -1;
}

void* SpokenDays::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                               : QAccessibleWidget::interface_cast(type);
}

QAccessibleInterface* SpokenDays::cellAt(int week, int column) const {
    const bool is = week >= 0 && week < Weeks && column >= 0 && column < Columns;
    return is ? At(week, column) : nullptr;
}

int SpokenDays::rowCount() const {
    return Weeks;
}

int SpokenDays::columnCount() const {
    return Columns;
}

QString SpokenDays::columnDescription(int column) const {
    return Dates::WeekdayName(column + 1);
}

QList<QAccessibleInterface*> SpokenDays::selectedCells() const {
    if (!Calendar())
        return {};
    const qint64 place = Calendar()->DateAt(0, 0).daysTo(Calendar()->selectedDate());
    if (place < 0 || place >= Weeks * Columns)
        return {};
    return {At(int(place) / Columns, int(place) % Columns)};
}
