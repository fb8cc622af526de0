#include "toolkit/RadioGroup.h"

#include "toolkit/ucRadio.h"

#include <algorithm>

void RadioGroup::Join(std::span<ucRadio* const> radios) {
    for (ucRadio* chosen : radios)
        QObject::connect(chosen, &ucRadio::Click, chosen, [radios, chosen] {
            for (ucRadio* radio : radios)
                if (radio != chosen)
                    radio->SetValue(false);
        });
}

void RadioGroup::Select(std::span<ucRadio* const> radios, int chosen) {
    for (size_t i = 0; i < radios.size(); ++i)
        radios[i]->SetValue(int(i) == chosen);
}

int RadioGroup::Selected(std::span<ucRadio* const> radios) {
    const auto chosen = std::ranges::find_if(radios, &ucRadio::Value);
    return chosen == radios.end() ? -1 : int(chosen - radios.begin());
}
