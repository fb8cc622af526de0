#pragma once

#include "intake/LoggedRow.h"

class LoggedEntries;
class ScaledFood;

/// Changes the log for a person who looks at a day, and takes the changes back, the last one first.
/// The day's list owns it, for one visit to the day screen. A copy, a move, a change of quantity
/// and each step back are kept as a whole or not at all; a day is cleared row by row. A change that
/// fails adds nothing to take back.
class DayChanges {
public:
    /// What a step back did: "Brought back", "Oats", and the day of these foods.
    struct Report {
        QString done;
        QString foods; ///< a name or a number
        QDate day;
    };

    void Add(const ScaledFood& item, const QString& meal, QDate day);
    void Remove(qint32 RecID); ///< fails (3021) if it is gone
    void Clear(QDate day);
    /// Gives what was copied: "Oats", or "3 foods". Empty if there was nothing.
    QString Copy(const LoggedEntries& foods, QDate to);
    QString Move(const LoggedEntries& foods, int meal); ///< likewise
    void SetQuantity(qint32 RecID, double quantity);

    bool CanUndo() const { return !steps_.empty(); }
    Report Undo(); ///< of the last change; there must be one
    void Forget() { steps_.clear(); }

private:
    struct Step {
        Report report;
        std::vector<LoggedRow> before; ///< the rows that it changed or removed
        std::vector<qint32> added;
    };
    void KeepRows(const QString& done, std::vector<LoggedRow> before);

    std::vector<Step> steps_;
};
