#pragma once

#include "toolkit/Screen.h"

class QDate;
class QLineEdit;
class ViewButtons;
class ucAALBL;
class ucBarChart;
class ucButton;
class ucLineChart;
class ucPieChart;

/// The screen "Report": a period and one of four views of it. The three charts are refreshed
/// together; choosing a view only shows and hides them. It comes up with the last seven days, and
/// with the view that was shown last.
class frmReport : public Screen {
    Q_OBJECT

public:
    explicit frmReport(QWidget* parent = nullptr);

    void DoWinInit() override;
    /// The names are compared exactly: "cmdRefresh", and the others in lower case.
    void AllOff(const QString& except) override;

protected:
    void resizeEvent(QResizeEvent*) override;
    void closeEvent(QCloseEvent*) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void AddPeriod();
    QLineEdit* AddDateField(const char* name, const QString& accessibleName);
    void AddViewButtons();
    void AddCharts();
    void PlaceFirstLine();

    void ShowLastDays();
    void Refresh();
    void UpdateCharts();
    bool UpdateBars();
    void TellNoWeight();
    QDate Start() const;
    QDate End() const;
    void ChooseView(qint32 view);
    void GoHome();

    ucAALBL* aaLBL_;
    QLineEdit* txtStart_;
    QLineEdit* txtEnd_;
    ucButton* cmdRefresh_;
    ViewButtons* views_;
    ucButton* cmdDone_;
    ucBarChart* ucBar_;
    ucPieChart* ucPie_;
    ucLineChart* ucLine_;
    QString state_;             ///< the view's number
    bool missesWeight_ = false; ///< to be told when the screen stands in front
};
