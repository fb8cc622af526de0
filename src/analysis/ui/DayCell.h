#pragma once

#include "toolkit/PaintedPanel.h"

/// The cell of one day in the month: its number, a mark at the lower left if food was logged, and
/// one at the lower right if a weight was. Assistive programs read both in its name. Return clicks
/// it.
class DayCell : public PaintedPanel {
    Q_OBJECT

public:
    DayCell(int day, QWidget* picCalBG); ///< names: `picDay5`, `imgFood5`, `imgScale5`

    void SetMarks(bool food, bool scale);
    void Name(const QString& month); ///< "March" makes it "March 5, food logged"
    QAccessible::Role AccessibleRole() const override { return QAccessible::Button; }

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void keyPressEvent(QKeyEvent*) override;

private:
    QWidget* imgFood_;
    QWidget* imgScale_;
};
