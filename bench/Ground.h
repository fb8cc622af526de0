#pragma once

#include <QDate>
#include <QTemporaryDir>

/// A folder with the delivered databases, one user and, on request, ten years of foods and weights.
/// Both connections are open while it lives.
class Ground {
public:
    static constexpr int Days = 3650;
    static constexpr int EntriesADay = 15;

    explicit Ground(bool withLog);
    ~Ground();

    /// The day so many days into the log, wrapping round at its end.
    static QDate Day(int index);

    /// Prepares a folder as after the first start: databases with one user, tips, the agreement
    /// accepted.
    static void LayOut(const QString& folder);

private:
    void FillLog();
    void FillWeights();

    QTemporaryDir folder_;
};
