#include "analysis/ui/SpokenTable.h"

#include <QRect>

#include <map>

namespace {

/// What the table and its cells have in common: they belong to no widget and lie where the chart
/// does.
class Unseen : public QAccessibleInterface {
public:
    explicit Unseen(QAccessibleInterface* parent)
        : parent_(parent) {}

    bool isValid() const override { return parent_->isValid(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return parent_->window(); }
    QAccessibleInterface* parent() const override { return parent_; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override { return parent_->rect(); }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.readOnly = true;
        return state;
    }

private:
    QAccessibleInterface* parent_;
};

class Cells;

/// Row -1 holds the heads.
class Cell : public Unseen, public QAccessibleTableCellInterface {
public:
    Cell(QAccessibleInterface* table, int row, int column)
        : Unseen(table)
        , row_(row)
        , column_(column) {}

    QString text(QAccessible::Text kind) const override;
    QAccessible::Role role() const override {
        return row_ < 0 ? QAccessible::ColumnHeader : QAccessible::Cell;
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::TableCellInterface
                   ? static_cast<QAccessibleTableCellInterface*>(this)
                   : nullptr;
    }

    int rowIndex() const override { return row_; }
    int columnIndex() const override { return column_; }
    int rowExtent() const override { return 1; }
    int columnExtent() const override { return 1; }
    bool isSelected() const override { return false; }
    QAccessibleInterface* table() const override { return parent(); }
    QList<QAccessibleInterface*> columnHeaderCells() const override;
    QList<QAccessibleInterface*> rowHeaderCells() const override;

private:
    Cells* Table() const;

    int row_, column_;
};

/// The table with its cells. Nothing in it can be selected.
class Cells : public Unseen, public QAccessibleTableInterface {
public:
    Cells(QAccessibleInterface* chart, const SpokenTable::Source& source)
        : Unseen(chart)
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

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override {
        const bool is = row >= 0 && row < rowCount() && column >= 0 && column < columnCount();
        return is ? At(row, column) : nullptr;
    }
    int rowCount() const override { return source_().rows; }
    int columnCount() const override { return int(source_().heads.size()); }
    QString columnDescription(int column) const override { return source_().heads.value(column); }
    QString rowDescription(int row) const override { return TextAt(row, 0); }
    void modelChange(QAccessibleTableModelChangeEvent*) override {}

    int selectedCellCount() const override { return 0; }
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return 0; }
    QList<QAccessibleInterface*> selectedCells() const override { return {}; }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override { return {}; }
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int) const override { return false; }
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }

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
    return row_ < 0 ? Table()->columnDescription(column_) : Table()->TextAt(row_, column_);
}

QList<QAccessibleInterface*> Cell::columnHeaderCells() const {
    return {Table()->At(-1, column_)};
}

QList<QAccessibleInterface*> Cell::rowHeaderCells() const {
    return {Table()->At(row_, 0)};
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
