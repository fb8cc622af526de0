#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include <string>

/// What an import of foods did with the rows of its files.
class FoodTally {
public:
    struct Refusal {
        QString place; ///< file and line
        QString food;
        QString reason;
    };

    void Refuse(const QString& file, int line, const QString& food, const QString& reason);
    void Note(const QString& what, int times = 1);

    const QList<Refusal>& Refusals() const { return refusals_; }
    const QMap<QString, int>& Notes() const { return notes_; } ///< how often each was noted
    std::string RefusalTable() const; ///< comma separated values with a header

    int added = 0;
    int updated = 0;
    int unchanged = 0;

private:
    QList<Refusal> refusals_;
    QMap<QString, int> notes_;
};
