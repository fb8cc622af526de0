#pragma once

#include "analysis/FigureTable.h"

#include <QAccessible>

/// The table below a chart that assistive tools find and no one sees. The interface of the chart
/// owns it and counts it as one more child. It is made when a tool first asks.
class SpokenTable {
public:
    using Source = std::function<FigureTable()>;

    SpokenTable(QAccessibleInterface* chart, Source source);
    ~SpokenTable();
    SpokenTable(const SpokenTable&) = delete;
    SpokenTable& operator=(const SpokenTable&) = delete;

    bool Exists() const; ///< the chart has figures
    QAccessibleInterface* Interface() const;

private:
    QAccessibleInterface* chart_;
    Source source_;
    mutable QAccessible::Id id_ = 0;
};

/// Adds the table to the interface of a chart, behind its other children.
template <class Base> class WithSpokenTable : public Base {
public:
    template <class Control>
    WithSpokenTable(Control* control, SpokenTable::Source source)
        : Base(control)
        , table_(this, std::move(source)) {}

    int childCount() const override { return Base::childCount() + (table_.Exists() ? 1 : 0); }
    QAccessibleInterface* child(int index) const override {
        const bool isTable = table_.Exists() && index == Base::childCount();
        return isTable ? table_.Interface() : Base::child(index);
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        const bool isTable = table_.Exists() && child == table_.Interface();
        return isTable ? Base::childCount() : Base::indexOfChild(child);
    }

private:
    SpokenTable table_;
};
