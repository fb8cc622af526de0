#pragma once

#include "tour/HomeWalk.h"
#include "tour/MenuWalk.h"

#include <QString>

class Guide;
class QWidget;

/// The whole tour of a new user, one function a stage.
class Walk {
public:
    Walk(Guide& guide, const QString& folder);
    void Go();                 ///< from the first start to leaving the program
    void GoAgain();            ///< the second start, which finds everything again
    void GoAsFriend();         ///< the friend, with a folder of her own, imports the recipe
    void GoWithoutSnapshots(); ///< a start that cannot make the snapshot of the day
    void GoDamaged();          ///< a start with a damaged file

private:
    struct Bite;
    static const Bite Meals[11];

    void UseFolder();
    void LayOut();
    void Start();
    void Quit();
    void FirstStart();
    void CreateProfile(QWidget* profile);
    void FillProfile(QWidget* profile);
    void WeighIn();
    void LogMeals();
    void SearchInDialog(QWidget* search);
    void RefusedQuantity(QWidget* search);
    void ExamineFirst(QWidget* search);
    void NothingFound(QWidget* search);
    void ManyFound(QWidget* search);
    void EmptyTerm(QWidget* search);
    void LogFirst(QWidget* search, const Bite& bite);
    void LookAtDay();
    void LookAtViews();
    void RemoveOneFood();
    void KeepFoods();
    void ChangeDay();
    void EditProfile();
    void Preferences();
    QWidget* Day();

    Guide& guide_;
    QString folder_;
    QString user_ = QStringLiteral("Tom");
    HomeWalk home_;
    MenuWalk menu_;
};
