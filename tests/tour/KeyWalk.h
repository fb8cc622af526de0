#pragma once

#include <QString>

class Guide;
class QWidget;

/// The shortcuts and the context menus of the day screen on the tour, with keys alone. In the end
/// the day is as it was.
class KeyWalk {
public:
    explicit KeyWalk(Guide& guide);

    void Go();

private:
    QWidget* Frame();
    QWidget* Day();
    QWidget* Focus();
    void Press(int key, Qt::KeyboardModifiers held = Qt::NoModifier);
    void FocusFood(const char* line);
    void OpenMenu();
    void OpenMeals();
    void ExpectStatus(const QString& text);
    void Undo(const QString& status);
    void LookAtMenus();
    void CopyAFood();
    void MoveAFood();
    void ChangeAQuantity();
    void BringADayBack();
    void LogWithKeys();
    void SearchWithKeys(QWidget* search);
    void LookAtTips();

    Guide& guide_;
    int keys_ = 0; ///< pressed since the last count began
};
