#pragma once

#include "analysis/DayFigures.h"
#include "analysis/FigureTable.h"
#include "analysis/ui/DailyRow.h"
#include "model/Nuts.h"
#include "toolkit/DrawnControl.h"

#include <QDate>
#include <QHash>

#include <memory>
#include <vector>

class BarGrid;
class PieChart;
class ScaleCaption;
class ucStrip;
class ViewButtons;

/// One day's intake against the current user's targets, in three views of the same figures: bars of
/// percent, a list of values, a pie of the calories. setDate chooses the day; the panel reads the
/// log itself. Keeps the last sums when the day is empty. Raises MouseMove from the names, the
/// values and its background.
class ucDaily : public DrawnControl {
    Q_OBJECT
    Q_PROPERTY(QString Mode READ Mode)
    Q_PROPERTY(QDate Date READ Date)

public:
    explicit ucDaily(QWidget* parent = nullptr);
    ~ucDaily() override;

    void setDate(QDate date);
    QDate Date() const { return date_; }
    void updateCharts();
    void Toggle(int mode);                 ///< 0 bars, 1 values, 2 pie; any other does nothing
    QString Mode() const { return mode_; } ///< "RDI", "VALS" or "PIE"
    void StoreMode() const;                ///< for a host that closes before its parts are deleted
    const Nuts& Sums() const { return sums_; }
    const DayFigures& Totals() const { return figures_; }
    void AddOverLay();

    static double numFix(double value) { return NutrientFigure::numFix(value); }
    double barWidth(double value, double rdi) const; ///< in twips

    void Unhilite();
    void AllOff(const QString& name); ///< resets every hover look except the named button's
    QSize sizeHint() const final;
    FigureTable Figures() const; ///< of the view that is shown
    QAccessible::Role AccessibleRole() const override { return QAccessible::Grouping; }
    QAccessibleInterface* MakeAccessible() override;

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void showEvent(QShowEvent*) override;
    void leaveEvent(QEvent*) override;
    bool eventFilter(QObject*, QEvent*) override;

private:
    /// What a move over a control does: it highlights a row (0: none), and the host may get it.
    struct Hover {
        int row;
        bool raises;
    };
    struct Layout {
        QRect strip, buttons, labels, view, pie;
    };

    Layout layoutRects() const;
    void PlaceAll();
    void PlaceScale(const Layout& layout);
    void AddHead();
    void AddViews();
    void AddRows();
    void AddPie();
    void WatchPointer(QWidget* control, Hover hover = {});
    void OnPointer(const Hover& hover, const QMouseEvent* move);
    void hilite(int row);

    void ShowFigures();
    void FitValues();

    QDate date_;
    Nuts sums_;
    DayFigures figures_;
    QString mode_;
    std::vector<std::unique_ptr<DailyRow>> rows_;
    int hilited_ = 0; ///< row, or 0
    QHash<const QObject*, Hover> hovers_;

    ucStrip* strip_;
    ViewButtons* buttons_;
    ScaleCaption* lblPercents_;
    QWidget* labels_;
    BarGrid* picRDIs_;
    QWidget* picVals_;
    PieChart* picPieChart_;
};
