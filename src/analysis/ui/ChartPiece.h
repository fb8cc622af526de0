#pragma once

#include <QAccessible>
#include <QWidget>

#include <functional>

/// A chart, or what its rows are made of: a control that tells its name and its value to assistive
/// programs. The value's text is composed only when it is asked for.
class ChartPiece : public QWidget {
    Q_OBJECT

public:
    explicit ChartPiece(QWidget* parent = nullptr);

    virtual QAccessible::Role SpokenRole() const { return QAccessible::StaticText; }
    virtual QString SpokenName() const { return accessibleName(); }
    QString SpokenValue() const { return value_ ? value_() : QString(); }
    void SetSpokenValue(std::function<QString()> value) { value_ = std::move(value); }
    void TellValueChanged();

private:
    std::function<QString()> value_;
};
