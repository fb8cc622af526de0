#pragma once

#include "intake/LoggedEntries.h"
#include "toolkit/ScreenForm.h"

#include <QPointer>

class DayCalendar;
class ucAALBL;
class ucBox;
class ucButton;
class ucButtonA;
class ucDaily;
class ucMyFood;
class QLabel;
class WeightField;
struct PrintJob;

/// The screen "Daily Details": the chosen day's foods, its totals against the targets, its weight,
/// and a calendar to choose another day. It shows the process-wide chosen day, which stays when the
/// screen closes. It connects its parts to each other.
class frmDay : public ScreenForm {
    Q_OBJECT

public:
    explicit frmDay(QWidget* parent = nullptr);

    void BeforeShow() override; ///< passes the chosen day to the list and the panel
    /// Loads the day's weight, which becomes the current weight of the user, also on a past day.
    void DoWinInit() override;
    void AllOff(const QString& except) override;
    void buildDate();

    void EatFoods() { ChooseFoods(-1); } ///< opens the food search
    void OpenCalendar();
    PrintJob Printed() const; ///< the day that is shown

protected:
    void resizeEvent(QResizeEvent*) override;
    void hideEvent(QHideEvent*) override;
    void closeEvent(QCloseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;

private:
    void AddDateLine();
    void AddWeightField();
    void AddFoodBox();
    void AddPanel();
    void AddButtons();
    void AddCalendar();
    void AddMenu();

    void PlaceDateLine();
    void PlaceBoxes();
    void PlaceButtons();

    void PassDay();
    void PickDay(QDate day);
    void ChooseCopyDay(const LoggedEntries& foods);
    void CloseCalendar();
    void ChooseFoods(int meal);
    void ClearFoods();
    PrintJob ToPrint();
    void GoHome();
    void SaveWeight();
    void ShowTargets(bool weightTaken);
    bool HasMoved(double x, double y);

    ucAALBL* aadate_;
    ucButtonA* cmdCal_;
    QLabel* lblWeight_;
    WeightField* txtWeight_;
    ucBox* box_;
    ucMyFood* myFood_;
    ucDaily* daily_;
    ucButton* cmdAddFoods_;
    ucButton* cmdClear_;
    ucButton* cmdDone_;
    DayCalendar* picCal_;
    std::optional<LoggedEntries> copied_; ///< while the calendar chooses the day for them
    QPointer<QWidget> cameFrom_;          ///< had the focus before the calendar
    qint32 lastX_ = -1;
    qint32 lastY_ = -1;
};
