#pragma once

#include "records/peers/Imported.h"
#include "records/peers/PeerChoices.h"

/// The unit of the weights in a file that names none: what a person says, else what another file of
/// the same export shows.
class MissingWeightUnit {
public:
    MissingWeightUnit(const PeerChoices& choices, Imported& into)
        : choices_(choices)
        , into_(into) {}

    void Infer(WeightUnit unit, const QString& reason); ///< "profile.csv gives a height in cm"
    /// Fails where nobody knows, and says how a person tells it.
    WeightUnit Of(const QString& file) const;

private:
    const PeerChoices& choices_;
    Imported& into_;
    std::optional<WeightUnit> inferred_;
    QString reason_;
};
