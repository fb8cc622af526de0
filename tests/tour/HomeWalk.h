#pragma once

class Guide;
class QWidget;

/// The home screen on the tour: an empty month, the way to a day, and a month with a full diary.
class HomeWalk {
public:
    explicit HomeWalk(Guide& guide);

    void EmptyMonth();
    void ChooseToday(); ///< opens the day screen
    void FullMonth();

private:
    QWidget* Frame();
    QWidget* Home();
    void OpenMonths();
    void FillMonth();

    Guide& guide_;
};
