#pragma once

#include "toolkit/ScreenForm.h"

#include <QDate>

class QLabel;
class TipBox;
class ucBox;
class ucCal_LG;
class ucGlance;

/// The home screen: the month calendar, the glance at the month's calories, and the tip of the day.
/// A click on a day chooses it and opens the day screen.
class frmMain : public ScreenForm {
    Q_OBJECT

public:
    explicit frmMain(QWidget* parent = nullptr);

    void DoWinInit() override;
    void AllOff(const QString& name) final; ///< resets the calendar unless it is named

protected:
    void resizeEvent(QResizeEvent*) override;

private:
    void AddHint();
    void AddCalendar();
    void AddGlance();
    void AddTip();
    void AddWeekBox();

    void WatchTheDay();
    void ShowToday(); ///< midnight may have passed while the screen is open
    void ShowMonth(QDate from, QDate to);
    void OpenDay(QDate day);

    QLabel* hint_ = nullptr;
    ucCal_LG* calendar_ = nullptr;
    ucBox* glanceBox_ = nullptr;
    ucGlance* glance_ = nullptr;
    TipBox* tip_ = nullptr;
    ucBox* weekBox_ = nullptr;
};
