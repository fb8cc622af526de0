#pragma once

#include "monkey/Action.h"

#include <QList>
#include <QMap>

/// What the monkey did last, and what it has found. A finding is printed with the actions before
/// it.
class Trail {
public:
    void Add(const Action& action);
    void Report(const QString& finding);
    void Print() const;

    /// The newest action; the one before, because a window that it closes goes on only after it;
    /// and the last ones at controls that work later: a field is saved when it is left, an import
    /// goes on when the server answers.
    QList<Action> MayExplain() const;
    int Done() const { return done_; }
    int Findings() const { return findings_; }

private:
    QList<Action> actions_;
    QMap<QString, Action> late_; ///< by control
    int done_ = 0;
    int findings_ = 0;
};
