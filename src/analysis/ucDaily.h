#pragma once

#include <QDate>
#include <QWidget>

/// One day's intake against the current user's targets, in three views: bars, values, pie.
/// Told the day by setDate, it queries the log itself. See ucDaily.cpp for the steps.
class ucDaily : public QWidget {
    Q_OBJECT

public:
    explicit ucDaily(QWidget* parent = nullptr);
    ~ucDaily() override;

    void setDate(QDate date);
    void updateCharts();
    void Toggle(int mode);
    void Unhilite();
    void AllOff(const QString& name);

Q_SIGNALS:
    void MouseMove(int Button, int Shift, double X, double Y);
};
