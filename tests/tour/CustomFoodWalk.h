#pragma once

class Guide;
class QWidget;

/// A person creates two custom foods, corrects one, deletes the other, and eats the first.
class CustomFoodWalk {
public:
    explicit CustomFoodWalk(Guide& guide);
    void Go();

private:
    void OpenScreen();
    void MakeFood();
    void BeRefused();
    void CorrectFood();
    void MakeLongFood();
    void DeleteLongFood();
    void EatFood();
    void SearchAndEat(QWidget* search);
    void TakeItBack();
    QWidget* Screen();
    QWidget* Frame();

    Guide& guide_;
};
