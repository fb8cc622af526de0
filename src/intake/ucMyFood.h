#pragma once

#include "foods/ScaledFood.h"

#include <QDate>
#include <QWidget>

/// What the current user ate on one day, under the four meals. Rows of USER_FOODS are added and
/// removed here.
class ucMyFood : public QWidget {
    Q_OBJECT

public:
    explicit ucMyFood(QWidget* parent = nullptr);
    ~ucMyFood() override;

    void setDate(QDate date);
    void AddFood(const ScaledFood& item, const QString& meal);
    void DisplayFoods(bool resetPane = false);
    void ClearList();
    void AllOff(const QString& except);

Q_SIGNALS:
    void FoodRemoved();
    void AddRequested(int meal); ///< a meal heading (0 to 3) or the empty pane (-1) was clicked
    void MouseMove(int Button, int Shift, double X, double Y);
};
