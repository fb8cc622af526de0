#pragma once

class Guide;
class QWidget;

/// The home screen on the tour: the first look at an empty month, the way from it to the day, and a
/// month in which somebody has kept the diary.
class HomeWalk {
public:
    explicit HomeWalk(Guide& guide);

    void EmptyMonth();
    void ChooseToday(); ///< leads to the day
    void FullMonth();

private:
    QWidget* Frame();
    QWidget* Home();
    void OpenMonths();
    void FillMonth();

    Guide& guide_;
};
