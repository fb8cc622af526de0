#include "fuzz/Merging.h"
#include "fuzz/Target.h"

#include "records/peers/Cronometer.h"
#include "records/peers/LoseIt.h"
#include "records/peers/MyFitnessPal.h"
#include "records/peers/OpenNutriTracker.h"
#include "records/peers/PeerChoices.h"
#include "records/peers/PeerFile.h"
#include "records/peers/Waistline.h"
#include "runtime/Attempt.h"

namespace {
constexpr decltype(&LoseIt::Read) Readers[] = {Cronometer::Read, LoseIt::Read, MyFitnessPal::Read,
                                               OpenNutriTracker::Read, Waistline::Read};

PeerChoices Choices(bool known) {
    PeerChoices choices;
    if (known) {
        choices.weightUnit = WeightUnit::Kilogram;
        choices.dateOrder = PeerChoices::DateOrder::MonthFirst;
        choices.oldMicronutrients = PeerChoices::Micronutrients::AsNamed;
    }
    return choices;
}
} // namespace

/// A file of another program is refused, or each of its rows is taken soundly or listed. The first
/// byte names the program, and whether the person has answered what the file leaves open.
void Fuzz(const std::string& bytes) {
    constexpr size_t count = std::size(Readers);
    if (bytes.empty() || bytes[0] < '0' || size_t(bytes[0] - '0') >= 2 * count)
        return;
    const size_t chosen = size_t(bytes[0] - '0');
    const PeerFile file{
        QStringLiteral("export"), {}, QByteArray::fromStdString(bytes.substr(1)), true};
    Imported imported;
    if (Attempt([&] { Readers[chosen % count]({file}, Choices(chosen >= count), imported); }))
        Merging::Check(imported);
}
