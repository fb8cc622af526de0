#include "monkey/Trail.h"

#include <algorithm>
#include <cstdio>

namespace {
constexpr int Kept = 40;
const QStringList SavedWhenLeft{"txtWeight", "txtQTY"};

bool IsAtSavedField(const Action& action) {
    return std::ranges::any_of(
        SavedWhenLeft, [&action](const QString& field) { return action.controls.contains(field); });
}
} // namespace

void Trail::Add(const Action& action) {
    ++done_;
    actions_ << action;
    if (IsAtSavedField(action))
        atSavedField_ = action;
    if (actions_.size() > Kept)
        actions_.removeFirst();
}

QList<Action> Trail::MayExplain() const {
    return actions_.mid(qMax<qsizetype>(0, actions_.size() - 2)) << atSavedField_;
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
