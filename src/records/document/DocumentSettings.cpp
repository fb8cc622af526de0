#include "records/document/DocumentSettings.h"

#include "records/RecordsChange.h"
#include "runtime/SettingTable.h"
#include "runtime/Settings.h"

#include <algorithm>
#include <vector>

namespace {
/// The place, the size and the style of the window, the identifier that the exchange knows this
/// installation by, and what was said of the snapshots.
constexpr const Setting* OfTheMachine[] = {&Settings::Left,         &Settings::Top,
                                           &Settings::Installation, &Settings::Snapshots,
                                           &Settings::Scale,        &Settings::Look};

std::vector<QString> Names() {
    std::vector<QString> names;
    for (const Setting* setting : Settings::All)
        if (std::ranges::find(OfTheMachine, setting) == std::end(OfTheMachine))
            names.push_back(*setting);
    return names;
}
} // namespace

std::map<QString, QString> DocumentSettings::All() {
    std::map<QString, QString> all;
    for (const QString& name : Names())
        if (const QString value = GetRegValue(name); !value.isEmpty())
            all[name] = value;
    return all;
}

void DocumentSettings::Take(const std::map<QString, QString>& settings, RecordsChange& change) {
    for (const QString& name : Names()) {
        const auto found = settings.find(name);
        change.Set(name, found == settings.end() ? QString() : found->second);
    }
}
