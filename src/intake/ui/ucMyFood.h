#pragma once

#include "foods/ScaledFood.h"
#include "toolkit/DrawnControl.h"

#include <QDate>

#include <array>

class AtePane;
class MealHeading;

/// What the current user ate on one day, under the four meals. Rows of USER_FOODS are added and
/// removed here. Every change draws the whole list anew from the store; nothing is drawn until a
/// date is set.
class ucMyFood : public DrawnControl {
    Q_OBJECT
    Q_PROPERTY(QDate Date READ Date)

public:
    explicit ucMyFood(QWidget* parent = nullptr);

    void setDate(QDate date);
    QDate Date() const { return date_; }
    void AddFood(const ScaledFood& item, const QString& meal);
    void DisplayFoods(bool resetPane = false);
    void ClearList();
    /// `MealNumber`, 1 to 4, does not change what is drawn.
    void showFood(const QString& FoodName, const QString& Serving, qint32 RecID, int MealNumber,
                  double QTY);
    void InitControls();
    void AllOff(const QString& except); ///< the headings' highlight, but that of the one named

Q_SIGNALS:
    void FoodRemoved();
    void AddRequested(int meal); ///< a meal heading (0 to 3) or the empty pane (-1) was clicked

protected:
    void resizeEvent(QResizeEvent*) override;
    void showEvent(QShowEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;

private:
    MealHeading* AddHeading(int meal);
    void DisplayMeal(int meal);
    void OnHeadingMove(MealHeading* heading);
    void OnPaneMove(const QMouseEvent* move);
    void RemoveFood(qint32 recID);
    bool DeleteRow(qint32 recID);

    QDate date_;
    AtePane* pane_;
    std::array<MealHeading*, 4> headings_;
};
