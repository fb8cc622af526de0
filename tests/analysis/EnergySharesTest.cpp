#include "analysis/EnergyShares.h"

#include "model/Nuts.h"

#include <gtest/gtest.h>

namespace {

using Content = EnergyShares::Content;
using TooLarge = EnergyShares::TooLarge;

std::array<QString, 3> Captions(const char* fat, const char* protein, const char* carbs) {
    return {QString::fromLatin1(fat), QString::fromLatin1(protein), QString::fromLatin1(carbs)};
}

Nuts Eaten(double calories, double fat, double protein, double carbs) {
    Nuts eaten;
    eaten.Set(Nutrient::Calories, calories);
    eaten.Set(Nutrient::TotalFat, fat);
    eaten.Set(Nutrient::Protein, protein);
    eaten.Set(Nutrient::Carbs, carbs);
    return eaten;
}

} // namespace

TEST(EnergySharesTest, SharesAreTakenAgainstTheirSum) {
    const EnergyShares shares(0.2, 0.1, 0.1);
    EXPECT_EQ(shares.What(), Content::Sectors);
    EXPECT_EQ(shares.Captions(), Captions("Fat 50%", "Protein 25%", "Carbs. 25%"));
    EXPECT_EQ(shares.Summary(), "Fat 50%, Protein 25%, Carbs. 25%");
}

TEST(EnergySharesTest, RoundedSharesNeedNotAddUp) {
    EXPECT_EQ(EnergyShares(0.33, 0.33, 0.33).Captions(),
              Captions("Fat 33%", "Protein 33%", "Carbs. 33%"));
}

TEST(EnergySharesTest, SectorsFollowEachOtherRoundTheCircle) {
    using Sector = EnergyShares::Sector;
    EXPECT_EQ(EnergyShares(1, 1, 2).Sectors(),
              (std::array{Sector{0.001, 25}, Sector{25, 50}, Sector{50, 99.999}}));
}

TEST(EnergySharesTest, GramsCountWithTheEnergyThatTheyHold) {
    const EnergyShares shares = EnergyShares::Of(Eaten(1000, 40, 60, 50));
    EXPECT_EQ(shares.Captions(), Captions("Fat 45%", "Protein 30%", "Carbs. 25%"));
}

TEST(EnergySharesTest, OtherCaloriesHaveNoShare) {
    EXPECT_EQ(EnergyShares::Of(Eaten(400, 20, 20, 20)).Captions(),
              EnergyShares::Of(Eaten(4000, 20, 20, 20)).Captions());
}

TEST(EnergySharesTest, FatOf999IsClampedButProteinOf999IsNot) {
    EXPECT_EQ(EnergyShares(999, 0.5, 0.5).Percents()[0], 99.8);
    EXPECT_EQ(EnergyShares(0.5, 999, 0.5).Percents()[1], 999.0 / 1000 * 100);
}

TEST(EnergySharesTest, ProteinAndCarbohydrateAbove999AreClamped) {
    EXPECT_EQ(EnergyShares(0.0004, 999.6, 0).Percents()[1], 99.8);
    EXPECT_EQ(EnergyShares(0, 0, 5).Percents()[2], 99.8);
}

TEST(EnergySharesTest, OnRequestEachIsClampedFrom999) {
    EXPECT_EQ(EnergyShares(0.5, 999, 0.5, TooLarge::EachFrom999).Percents()[1], 99.8);
    EXPECT_EQ(EnergyShares(0.5, 0.5, 999, TooLarge::EachFrom999).Percents()[2], 99.8);
}

TEST(EnergySharesTest, PureFatLeavesSliversForTheOthers) {
    EXPECT_EQ(EnergyShares(1, 0, 0).Captions(), Captions("Fat 100%", "Protein 0%", "Carbs. 0%"));
    EXPECT_GT(EnergyShares(1, 0, 0).Percents()[1], 0);
}

TEST(EnergySharesTest, NoneOfTheThreeIsNothing) {
    const EnergyShares shares(0, 0, 0);
    EXPECT_EQ(shares.What(), Content::Nothing);
    EXPECT_EQ(shares.Summary(), QString());
    EXPECT_EQ(shares, EnergyShares());
    EXPECT_EQ(EnergyShares::Of(Eaten(100, 0, 0, 0)), EnergyShares());
}

TEST(EnergySharesTest, ASumJustAboveNothingIsDrawn) {
    EXPECT_EQ(EnergyShares(0.00031, 1e-300, 1e-300), EnergyShares());
    EXPECT_EQ(EnergyShares(0.0002, 0.0001, 0.0001).Captions(),
              Captions("Fat 50%", "Protein 25%", "Carbs. 25%"));
}

TEST(EnergySharesTest, LessThanOneKilocalorieIsNoData) {
    for (const double calories : {0.0, 0.4, -40.0})
        EXPECT_EQ(EnergyShares::Of(Eaten(calories, 5, 5, 5)), EnergyShares::NoData()) << calories;
    EXPECT_EQ(EnergyShares::Of(std::nullopt), EnergyShares::NoData());
    EXPECT_EQ(EnergyShares::NoData().Summary(), "No data to chart");
    EXPECT_EQ(EnergyShares::Of(Eaten(1, 5, 5, 5)).What(), Content::Sectors);
}
