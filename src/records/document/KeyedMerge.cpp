#include "records/document/KeyedMerge.h"

#include "records/document/DocumentKeys.h"
#include "store/TextCompare.h"

#include <algorithm>
#include <deque>
#include <unordered_map>

KeyedMerge::KeyedMerge(const DocumentSection& section, ImportReport& report)
    : section_(section)
    , report_(report)
    , keys_(section)
    , there_(Rows(section, DocumentRows::From::Records))
    , staged_(Rows(section, DocumentRows::From::Stage)) {}

std::vector<KeyedMerge::Row> KeyedMerge::Rows(const DocumentSection& section,
                                              DocumentRows::From from) {
    std::vector<Row> all;
    for (DocumentRows rows(section, from); rows.Next();)
        all.push_back({rows.Row(), rows.Key(), rows.Identity(), rows.Text(0)});
    return all;
}

void KeyedMerge::Run() {
    PairEqual();
    AddOthers();
}

void KeyedMerge::RunByName() {
    PairEqual();
    PairNamed();
    AddOthers();
}

void KeyedMerge::PairEqual() {
    std::unordered_map<std::string_view, std::deque<Row*>> there;
    for (Row& row : there_)
        there[row.identity].push_back(&row);
    for (Row& staged : staged_) {
        std::deque<Row*>& same = there[staged.identity];
        if (same.empty())
            continue;
        Pair(staged, *same.front());
        same.pop_front();
    }
}

/// From the last one on: of equal profiles the first ones are added, and a second import finds them
/// again by their values.
void KeyedMerge::PairNamed() {
    for (auto row = staged_.rbegin(); row != staged_.rend(); ++row) {
        Row& staged = *row;
        if (staged.paired || staged.name.empty())
            continue;
        const auto same = std::ranges::find_if(there_, [&](const Row& old) {
            return !old.paired && TextCompare::Compare(old.name, staged.name) == 0;
        });
        if (same == there_.end())
            continue;
        Pair(staged, *same);
        report_.kept.push_back("The profile \"" + QString::fromStdString(same->name) +
                               "\" is there with other data. It stays as it is.");
    }
}

void KeyedMerge::Pair(Row& staged, Row& there) {
    staged.paired = there.paired = true;
    ++report_.counts[section_.name].there;
    Note(staged, there.place);
}

void KeyedMerge::Note(const Row& staged, std::int64_t key) const {
    if (staged.key)
        DocumentKeys::Note(section_, *staged.key, key);
}

void KeyedMerge::AddOthers() {
    DocumentAdder adder(section_);
    for (const Row& staged : staged_) {
        if (staged.paired)
            continue;
        const std::int64_t key = keys_.KeyFor(staged.key);
        adder.Add(staged.place, key);
        ++report_.counts[section_.name].added;
        Note(staged, key);
    }
}
