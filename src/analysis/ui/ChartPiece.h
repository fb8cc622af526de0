#pragma once

#include <QAccessible>
#include <QWidget>

#include <functional>

/// A chart or a part of one. Assistive programs read its name and its value; the text of the value
/// is composed only when they ask for it.
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
