#pragma once

#include "support/ScriptedServer.h"
#include "support/ServedSoup.h"

#include <QString>

#include <functional>

class Application;
class QWidget;
struct ScreenRow;

/// Starts the program in this process and writes with each of its screens, as a person does, in an
/// endless round. Each round has a number, which its rows hold. An action is acknowledged once its
/// screen has returned.
class WindowWork : private ServedSoup {
public:
    using Acknowledge = std::function<void(const char* kind, int number)>;

    WindowWork(Application& application, const QString& folder, Acknowledge acknowledge);
    void GoOnFrom(int number); ///< until it is killed

private:
    void Start();
    void Round();

    void LogFoods();
    void RemoveFood();
    void ClearDay();
    void Weigh();
    void MakeFood();
    void CorrectFood();
    void DeleteFood();
    void MakeRecipe();
    void RemoveIngredient();
    void DeleteRecipe();
    void ImportRecipe();
    void EditProfile();

    QWidget* Day();
    void SaveFood(const QString& name);
    void SaveRecipe(const QString& name);
    void AddOats(QWidget* search, double quantity) const;
    void Done(const char* kind) { acknowledge_(kind, number_); }
    double Tenths() const { return number_ / 10.0; }

    Application& application_;
    ScriptedServer exchange_;
    Acknowledge acknowledge_;
    int number_ = 0;
};
