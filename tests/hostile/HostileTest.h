#pragma once

#include "core/CoreTest.h"
#include "support/HostileRows.h"

#include <span>

class Connection;
class ScaledFood;

/// The program with its own screens, over files that another tool may have written. The day is
/// November 21, 2026.
class HostileTest : public CoreTest {
public:
    /// A table whose rows stand in lists or add up to figures, and by what a screen finds a row.
    struct Ground {
        const char* table;
        Connection& (*database)();
        HostileRows::Row sound;
    };
    static std::span<const Ground> Grounds();

protected:
    using Button = std::function<QWidget*()>; ///< null if there is nothing to press

    void SetUp() override;
    void ShowHome(); ///< as the start does

    ScreenForm* Show(const char* name);
    void ShowAll();
    void ShowProfile();
    void ShowAllFacts(); ///< of every food and every recipe

    /// Presses a button that takes one row of that table and no other. False if there is none.
    bool RemoveOne(const QString& table, const Button& button);
    /// The trash can of the first line.
    static QWidget* Trash(const ScreenForm* screen);
    static QWidget* DeleteOf(const ScreenForm* screen, const char* list);

private:
    void ShowReport();
    void ShowLines(const char* name, const char* list);
    void Search();
    static void ShowFacts(const ScaledFood& item);
    QMap<QString, qsizetype> Counts(); ///< the rows of both files, by table
};
