#pragma once

#include <QAccessible>

/// A table for assistive tools in which they select nothing. One with a chosen cell tells it.
class SpokenGrid : public QAccessibleTableInterface {
public:
    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QString rowDescription(int) const override { return {}; }
    void modelChange(QAccessibleTableModelChangeEvent*) override {}

    int selectedCellCount() const override { return int(selectedCells().size()); }
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
};

/// One cell of it.
class SpokenGridCell : public QAccessibleTableCellInterface {
public:
    SpokenGridCell(int row, int column)
        : row_(row)
        , column_(column) {}

    int rowIndex() const override { return row_; }
    int columnIndex() const override { return column_; }
    int rowExtent() const override { return 1; }
    int columnExtent() const override { return 1; }
    bool isSelected() const override { return false; }

private:
    int row_, column_;
};
