#include "fuzz/Merging.h"

#include "fuzz/Scratch.h"
#include "fuzz/Target.h"

#include "foods/Meals.h"
#include "model/User.h"
#include "records/peers/MealNames.h"
#include "records/peers/OwnTexts.h"
#include "records/peers/PeerChoices.h"
#include "records/peers/RecordsMerge.h"
#include "runtime/Dates.h"
#include "store/Connection.h"
#include "store/Transaction.h"

#include <algorithm>
#include <cmath>

namespace {
void ExpectFinite(const NutrientAmounts& amounts) {
    for (const Nutrient id : CanonicalOrder())
        Expect(std::isfinite(amounts[id].value_or(0)));
}

void ExpectSound(const ImportedFood& food) {
    Expect(std::isfinite(food.quantity));
    ExpectFinite(food.amounts);
}

void ExpectSoundDay(QDate day) {
    Expect(day.isValid() && day >= Dates::First() && day <= Dates::Last());
}

void ExpectSound(const Imported& imported) {
    for (const ImportedEntry& entry : imported.entries) {
        ExpectSoundDay(entry.day);
        Expect(std::ranges::count(Meals::Names, entry.meal) == 1);
        ExpectSound(entry.food);
    }
    for (const ImportedWeight& weight : imported.weights) {
        ExpectSoundDay(weight.day);
        Expect(std::isfinite(weight.pounds) && weight.pounds > 0);
    }
    for (const ImportedOwnFood& own : imported.foods) {
        Expect(!own.food.FirstProblem());
        ExpectFinite(own.food.amounts);
    }
    for (const ImportedRecipe& recipe : imported.recipes)
        for (const ImportedFood& food : recipe.ingredients)
            ExpectSound(food);
}

/// Whether the second import finds all that the first has written.
bool ComeOnce(const Imported& imported) {
    Imported first = imported;
    RecordsMerge(first).Write();
    Imported second = imported;
    return RecordsMerge(second).AddsNothing();
}
} // namespace

void Merging::Check(Imported& imported) {
    for (ImportedEntry& entry : imported.entries)
        MealNames::Place(entry, PeerChoices(), imported);
    OwnTexts::Adapt(imported);
    ExpectSound(imported);
    Scratch::OpenRecords();
    User::Current().UID = 1;
    const Transaction undone(UserDB());
    Expect(ComeOnce(imported));
}
