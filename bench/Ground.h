#pragma once

#include <QDate>
#include <QTemporaryDir>

/// A folder with the delivered databases, one user and, where asked for, ten years of that user's
/// log of foods and weights. Both connections stand open on it while it lives.
class Ground {
public:
    static constexpr int Days = 3650;
    static constexpr int EntriesADay = 15;

    explicit Ground(bool withLog);
    ~Ground();

    /// The day so many days into the log, wrapping round at its end.
    static QDate Day(int index);

    /// Lays a folder out as after the first start: databases with one user, tips, the agreement
    /// accepted.
    static void LayOut(const QString& folder);

private:
    void FillLog();
    void FillWeights();

    QTemporaryDir folder_;
};
