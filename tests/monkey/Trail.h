#pragma once

#include "monkey/Action.h"

#include <QList>

/// What the monkey did last, and what it has found. A finding is printed with the actions before
/// it.
class Trail {
public:
    void Add(const Action& action);
    void Report(const QString& finding);
    void Print() const;

    /// The newest action; the one before, because a window that it closes goes on only after it;
    /// and the last at a field that is saved when it is left, which can be much later.
    QList<Action> MayExplain() const;
    int Done() const { return done_; }
    int Findings() const { return findings_; }

private:
    QList<Action> actions_;
    Action atSavedField_;
    int done_ = 0;
    int findings_ = 0;
};
