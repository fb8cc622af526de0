#pragma once

#include <QDate>
#include <QWidget>

class PieChart;
class ucAALBL;

/// A month at a glance on the home screen: the calories of an average day, and where they came
/// from. It queries the log itself when it is told the days.
class ucGlance : public QWidget {
    Q_OBJECT

public:
    explicit ucGlance(QWidget* parent = nullptr);

    /// Without food in these days the pie says so; the average stays as it was.
    void UpdateGlance(QDate from, QDate to);
    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent*) override;

private:
    ucAALBL* AddLine(const char* name, const QString& caption, const QColor& ink);

    ucAALBL* lblAvgCals_;
    ucAALBL* Label1_;
    PieChart* pie_;
};
