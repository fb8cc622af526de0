#include "records/document/DocumentSettings.h"

#include "runtime/SettingTable.h"
#include "runtime/Settings.h"

#include <algorithm>
#include <vector>

namespace {
/// The place of the window, and the identifier that the exchange knows this installation by.
constexpr const Setting* OfTheMachine[] = {&Settings::Left, &Settings::Top,
                                           &Settings::Installation};

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

void DocumentSettings::Take(const std::map<QString, QString>& settings) {
    for (const QString& name : Names()) {
        const auto found = settings.find(name);
        const QString value = found == settings.end() ? QString() : found->second;
        if (GetRegValue(name) != value)
            SetRegValue(name, value);
    }
}
