#pragma once

#include "analysis/Period.h"
#include "toolkit/ScreenForm.h"

class LoggedPeriod;
class QLineEdit;
class ViewButtons;
struct PrintJob;
class ucAALBL;
class ucBarChart;
class ucButton;
class ucLineChart;
class ucPieChart;

/// The screen "Report": a period and one of four views of it. All three charts are refreshed
/// together; choosing a view only shows and hides them. It opens with the last seven days and with
/// the view that was shown last. Hidden and shown again, it brings its figures up to date.
class frmReport : public ScreenForm {
    Q_OBJECT

public:
    explicit frmReport(QWidget* parent = nullptr);

    void DoWinInit() override;
    /// Names are compared exactly: "cmdRefresh", and the others in lower case.
    void AllOff(const QString& except) override;
    PrintJob Printed() const; ///< all four views of the period that is shown

protected:
    void resizeEvent(QResizeEvent*) override;
    void showEvent(QShowEvent*) override;
    void hideEvent(QHideEvent*) override;
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
    bool HasPeriod() const; ///< both fields hold a date
    Period PeriodTyped() const;
    void UpdateCharts();
    bool UpdateBars(LoggedPeriod& logged);
    void CatchUp();
    void TellFindings();
    void TellInvalidDate();
    void TellNoWeight();
    void ChooseView(qint32 view);
    void ShowView(qint32 view);
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
    QString state_;         ///< the view's number
    Period shown_;          ///< the period of the charts
    bool hasWeight_ = true; ///< the period has one
    bool untold_ = false;   ///< nobody has been told yet that it has none
    bool left_ = false;     ///< hidden since the charts were refreshed
};
