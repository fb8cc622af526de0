#include "analysis/ui/SpokenTable.h"

#include "toolkit/SpokenGrid.h"
#include "toolkit/SpokenPart.h"

#include <map>

namespace {

QAccessible::State ReadOnly() {
    QAccessible::State state;
    state.readOnly = true;
    return state;
}

class Cells;

/// Row -1 holds the heads.
class Cell : public SpokenPart, public SpokenGridCell {
public:
    Cell(QAccessibleInterface* table, int row, int column)
        : SpokenPart(table)
        , SpokenGridCell(row, column) {}

    QString text(QAccessible::Text kind) const override;
    QAccessible::Role role() const override {
        return rowIndex() < 0 ? QAccessible::ColumnHeader : QAccessible::Cell;
    }
    QAccessible::State state() const override { return ReadOnly(); }
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::TableCellInterface
                   ? static_cast<QAccessibleTableCellInterface*>(this)
                   : nullptr;
    }

    QAccessibleInterface* table() const override { return parent(); }
    QList<QAccessibleInterface*> columnHeaderCells() const override;
    QList<QAccessibleInterface*> rowHeaderCells() const override;

private:
    Cells* Table() const;
};

/// The table with its cells.
class Cells : public SpokenPart, public SpokenGrid {
public:
    Cells(QAccessibleInterface* chart, const SpokenTable::Source& source)
        : SpokenPart(chart)
        , source_(source) {}
    ~Cells() override {
        for (const auto& [place, id] : ids_)
            QAccessible::deleteAccessibleInterface(id);
    }

    QString TextAt(int row, int column) const {
        const FigureTable table = source_();
        return row < table.rows ? table.text(row, column) : QString();
    }
    QAccessibleInterface* At(int row, int column) const {
        QAccessible::Id& id = ids_[{row, column}];
        if (id == 0)
            id = QAccessible::registerAccessibleInterface(
                new Cell(const_cast<Cells*>(this), row, column));
        return QAccessible::accessibleInterface(id);
    }

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? parent()->text(kind) : QString();
    }
    QAccessible::Role role() const override { return QAccessible::Table; }
    QAccessible::State state() const override { return ReadOnly(); }
    int childCount() const override { return rowCount() * columnCount(); }
    QAccessibleInterface* child(int index) const override {
        return index < 0 || index >= childCount()
                   ? nullptr
                   : At(index / columnCount(), index % columnCount());
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        const auto* cell = dynamic_cast<const Cell*>(child);
        return cell && cell->table() == this
                   ? cell->rowIndex() * columnCount() + cell->columnIndex()
                   : -1;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                                   : nullptr;
    }

    QAccessibleInterface* cellAt(int row, int column) const override {
        const bool is = row >= 0 && row < rowCount() && column >= 0 && column < columnCount();
        return is ? At(row, column) : nullptr;
    }
    int rowCount() const override { return source_().rows; }
    int columnCount() const override { return int(source_().heads.size()); }
    QString columnDescription(int column) const override { return source_().heads.value(column); }
    QString rowDescription(int row) const override { return TextAt(row, 0); }

private:
    SpokenTable::Source source_;
    mutable std::map<std::pair<int, int>, QAccessible::Id> ids_;
};

Cells* Cell::Table() const {
    return static_cast<Cells*>(parent());
}

QString Cell::text(QAccessible::Text kind) const {
    if (kind != QAccessible::Name)
        return {};
    return rowIndex() < 0 ? Table()->columnDescription(columnIndex())
                          : Table()->TextAt(rowIndex(), columnIndex());
}

QList<QAccessibleInterface*> Cell::columnHeaderCells() const {
    return {Table()->At(-1, columnIndex())};
}

QList<QAccessibleInterface*> Cell::rowHeaderCells() const {
    return {Table()->At(rowIndex(), 0)};
}

} // namespace

SpokenTable::SpokenTable(QAccessibleInterface* chart, Source source)
    : chart_(chart)
    , source_(std::move(source)) {}

SpokenTable::~SpokenTable() {
    if (id_ != 0)
        QAccessible::deleteAccessibleInterface(id_);
}

bool SpokenTable::Exists() const {
    return source_().rows > 0;
}

QAccessibleInterface* SpokenTable::Interface() const {
    if (id_ == 0)
        id_ = QAccessible::registerAccessibleInterface(new Cells(chart_, source_));
    return QAccessible::accessibleInterface(id_);
}
