#pragma once

#include <QAccessible>
#include <QWidget>

/// A control that draws itself and tells assistive tools itself what it is and what it holds. The
/// style sheet of the application says nothing about it and is not asked.
class SpokenControl : public QWidget {
    Q_OBJECT

public:
    explicit SpokenControl(QWidget* parent = nullptr);

    /// What a press from the keyboard or an assistive tool does.
    virtual void Activate() = 0;
    /// What assistive tools take it for.
    virtual QAccessible::Role AccessibleRole() const = 0;
    /// Called once, when a tool first asks; the caller owns the interface.
    virtual QAccessibleInterface* MakeAccessible() = 0;

protected:
    bool event(QEvent* event) override;
};
