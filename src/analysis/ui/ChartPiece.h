#pragma once

#include "analysis/FigureTable.h"

#include <QAccessible>
#include <QWidget>

#include <functional>

/// A chart or a part of one. Assistive programs read its name and its value, and the figures of a
/// chart as a table; the pointer gets a tip. These texts are composed only when they are asked for.
class ChartPiece : public QWidget {
    Q_OBJECT

public:
    explicit ChartPiece(QWidget* parent = nullptr);

    virtual QAccessible::Role SpokenRole() const { return QAccessible::StaticText; }
    virtual QString SpokenName() const { return accessibleName(); }
    QString SpokenValue() const { return value_ ? value_() : QString(); }
    void SetSpokenValue(std::function<QString()> value) { value_ = std::move(value); }
    void TellValueChanged();
    virtual FigureTable Figures() const { return {}; } ///< those of a chart
    void SetTip(std::function<QString()> tip) { tip_ = std::move(tip); }
    /// The tip at that place; empty where there is none.
    virtual QString TipAt(QPoint) const { return tip_ ? tip_() : QString(); }

protected:
    bool event(QEvent*) override;

private:
    std::function<QString()> value_, tip_;
};
