#pragma once

#include <QAccessible>

/// What assistive tools see of a part that is no widget, such as the cell of a table. Without a
/// place of its own it lies where its parent does. The parent outlives it.
class SpokenPart : public QAccessibleInterface {
public:
    explicit SpokenPart(QAccessibleInterface* parent)
        : parent_(parent) {}

    bool isValid() const override { return parent_->isValid(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return parent_->window(); }
    QAccessibleInterface* parent() const override { return parent_; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override { return parent_->rect(); }

private:
    QAccessibleInterface* parent_;
};
