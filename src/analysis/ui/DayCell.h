#pragma once

#include "toolkit/PaintedPanel.h"

/// The cell of one day in the month: its number, and at the bottom a mark at the left where food
/// was logged and one at the right where a weight was. It says both to assistive tools. Return
/// clicks it.
class DayCell : public PaintedPanel {
    Q_OBJECT

public:
    DayCell(int day, QWidget* picCalBG); ///< named `picDay`, its marks `imgFood` and `imgScale`

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
