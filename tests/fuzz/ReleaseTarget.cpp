#include "fuzz/Scratch.h"
#include "fuzz/Target.h"

#include "foods/release/FoodRelease.h"
#include "foods/release/FoodSources.h"
#include "model/Nutrients.h"
#include "runtime/Attempt.h"
#include "runtime/Convert.h"

#include <cmath>

namespace {
bool IsAmount(const QString& text) {
    return text.isEmpty() || std::isfinite(ToDouble(text));
}

void ExpectSound(const ReleaseFood& food) {
    Expect(!food.name.isEmpty() && food.nutrients.size() == NutrientCount);
    for (const QString& amount : food.nutrients)
        Expect(IsAmount(amount));
    Expect(IsAmount(food.servings.a.grams) && IsAmount(food.servings.b.grams));
}
} // namespace

/// The files of a release are refused with a reason, or each amount of each food is a number.
void Fuzz(const std::string& bytes) {
    const QByteArrayList files = Scratch::Parts(bytes, 3);
    Scratch::Write(QLatin1String(FoodRelease::ValuesFile), files[0]);
    Scratch::Write(QLatin1String(FoodRelease::NamesFile), files[1]);
    Scratch::Write(QLatin1String(FoodRelease::WeightsFile), files[2]);
    Attempt([] {
        const FoodRelease release = FoodRelease::Read(Scratch::Folder());
        for (const ReleaseFood& food : release.Foods())
            ExpectSound(food);
        FoodSources::Of(release, QStringLiteral("SR"), Scratch::Folder()).Json();
    });
    const QString sources = Scratch::Write(QStringLiteral("sources.json"), files[0]);
    Attempt([&] { FoodSources::Read(sources).Find(QStringLiteral("01001")); });
}
