#pragma once

#include "records/peers/Imported.h"
#include "records/peers/PeerAmounts.h"
#include "records/peers/PeerChoices.h"

/// What each reader of another program's files works with: what the person decided, where the rows
/// go, and how numbers become amounts.
class PeerReading {
public:
    PeerReading(const PeerChoices& choices, Imported& into)
        : choices_(choices)
        , into_(into)
        , rules_(choices, into) {}

protected:
    const PeerChoices& choices_;
    Imported& into_;
    const AmountRules rules_;
};
