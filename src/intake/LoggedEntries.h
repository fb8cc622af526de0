#pragma once

#include <QDate>
#include <QString>

#include <optional>

/// Entries of the current user's log: all of a day, those of one of its meals, a single one, or
/// none.
class LoggedEntries {
public:
    static LoggedEntries Of(QDate day, std::optional<int> meal = {});
    static LoggedEntries One(qint32 RecID);
    static LoggedEntries NoneOf(QDate day); ///< to append to the day without reading its rows

    QString Statement(const char* columns = "*") const; ///< reads their rows

private:
    explicit LoggedEntries(QString condition)
        : condition_(std::move(condition)) {}

    QString condition_;
};

/// The statement that reads a day's rows of USER_FOODS or USER_WEIGHTS.
QString RowsOfDay(const char* table, QDate day);
