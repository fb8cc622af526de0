#pragma once

#include <QDate>
#include <QWidget>

class PieChart;
class ucAALBL;

/// A month at a glance on the home screen: the calories of an average day, and where they came
/// from. Given the days, it reads the log itself.
class ucGlance : public QWidget {
    Q_OBJECT

public:
    explicit ucGlance(QWidget* parent = nullptr);

    /// If no food is logged, the pie says so and the average stays as it was.
    void UpdateGlance(QDate from, QDate to);
    QSize sizeHint() const final;

protected:
    void resizeEvent(QResizeEvent*) override;

private:
    ucAALBL* AddLine(const char* name, const QString& caption, const QColor& ink);

    ucAALBL* lblAvgCals_;
    ucAALBL* Label1_;
    PieChart* pie_;
};
