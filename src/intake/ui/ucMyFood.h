#pragma once

#include "toolkit/AteList.h"

#include <QDate>

#include <array>

class MealHeading;
class ScaledFood;

/// What the current user ate on one day, under the four meals. Foods are added and removed here.
/// Every change draws the whole list anew from the store. Nothing is drawn until a date is set.
class ucMyFood : public AteList {
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
    void AllOff(const QString& except); ///< takes the highlight off all headings but that one

Q_SIGNALS:
    void AddRequested(int meal); ///< a meal heading (0 to 3) or the empty pane (-1) was clicked

protected:
    void RemoveRow(qint32 recID) override;
    void mouseMoveEvent(QMouseEvent*) override;

private:
    MealHeading* AddHeading(int meal);
    void DisplayMeal(int meal);
    void OnHeadingMove(MealHeading* heading);
    void OnPaneMove(const QMouseEvent* move);

    QDate date_;
    std::array<MealHeading*, 4> headings_;
};
