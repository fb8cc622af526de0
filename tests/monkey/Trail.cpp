#include "monkey/Trail.h"

#include <cstdio>

namespace {
constexpr int Kept = 40;
const QStringList WorkLater{"txtWeight", "txtQTY", "cmdGo", "txtRecID"};
} // namespace

void Trail::Add(const Action& action) {
    ++done_;
    actions_ << action;
    for (const QString& control : WorkLater)
        if (action.CanChange() && action.controls.contains(control))
            late_[control] = action;
    if (actions_.size() > Kept)
        actions_.removeFirst();
}

QList<Action> Trail::MayExplain() const {
    return actions_.mid(qMax<qsizetype>(0, actions_.size() - 2)) << late_.values();
}

void Trail::Report(const QString& finding) {
    ++findings_;
    std::printf("finding: %s\n", qUtf8Printable(finding));
    Print();
}

void Trail::Print() const {
    int number = done_ - int(actions_.size());
    for (const Action& action : actions_)
        std::printf("  %d %s\n", ++number, qUtf8Printable(action.Line()));
    std::fflush(stdout);
}
