#pragma once

#include "intake/DayChanges.h"
#include "toolkit/AteList.h"

#include <QPointer>

#include <array>
#include <optional>

class ListNotice;
class MealHeading;
class QuantityField;
class ScaledFood;
class ucAte;
struct LoggedFood;

/// What the current user ate on one day, under the four meals. Foods are added and changed here,
/// and each change can be taken back until the visit ends. Every change draws the whole list anew
/// from the store. Nothing is drawn until a date is set.
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

    void ClearFoods();
    void Copy(const LoggedEntries& foods, QDate from, QDate to);
    void Move(const LoggedEntries& foods, int meal);
    void EditQuantity(ucAte* line); ///< opens a field for it
    bool CanUndo() const { return changes_.CanUndo(); }
    void Undo(); ///< takes the last change of the visit back, if there is one
    void EndVisit() { changes_.Forget(); }

    bool HasFoods() const;
    bool HasFoods(int meal) const;
    ucAte* LineAt(const QWidget* part) const;             ///< null if it is a part of none
    std::optional<int> MealAt(const QWidget* part) const; ///< of the heading
    int MealOf(const ucAte* line) const;
    static qint32 KeyOf(const ucAte* line);

Q_SIGNALS:
    void FoodsChanged();         ///< other than by AddFood and by the trash can
    void AddRequested(int meal); ///< a meal heading (0 to 3) or the empty pane (-1) was clicked

protected:
    void RemoveRow(qint32 recID) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;

private:
    MealHeading* AddHeading(int meal);
    void DisplayMeal(int meal, const std::vector<LoggedFood>& foods);
    void OnHeadingMove(MealHeading* heading);
    void OnPaneMove(const QMouseEvent* move);
    void EnterQuantity(QuantityField* field);
    void LeaveQuantity(QuantityField* field);
    void KeepQuantity(QuantityField* field);
    void ShowChange(const QString& done, const QString& foods, QDate day);
    void FocusLine(const QString& key);

    QDate date_;
    DayChanges changes_;
    QPointer<QuantityField> field_; ///< while a quantity is being changed
    ListNotice* lblStatus_;
    std::vector<int> meals_; ///< of the day's foods; not each has a line
    std::array<MealHeading*, 4> headings_;
};
