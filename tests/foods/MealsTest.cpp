#include "foods/Meals.h"

#include "runtime/SettingTable.h"
#include "runtime/Settings.h"
#include "support/HalvaneTest.h"

class MealsTest : public HalvaneTest {
protected:
    static std::optional<int> With(const char* kept) {
        SetRegValue(Settings::Meal, QLatin1String(kept));
        return Meals::LastTicked();
    }
};

TEST_F(MealsTest, NoMealIsTickedUntilASearchPanelHasClosed) {
    EXPECT_EQ(Meals::LastTicked(), std::nullopt);
    EXPECT_EQ(With(""), std::nullopt);
}

TEST_F(MealsTest, TheKeptNumberIsTheMealsPlace) {
    EXPECT_EQ(With("0"), 0);
    EXPECT_EQ(With("3"), 3);
}

TEST_F(MealsTest, AKeptTextThatIsNoMealIsTheFirstMeal) {
    for (const char* kept : {"abc", "-1", "4", "1e300"})
        EXPECT_EQ(With(kept), 0) << kept;
}

TEST_F(MealsTest, AMealIsFoundByItsWholeNameWhateverTheCase) {
    EXPECT_EQ(Meals::Find(u"Breakfast"), 0);
    EXPECT_EQ(Meals::Find(u"snacks"), 3);
    EXPECT_EQ(Meals::Find(u"Snack"), std::nullopt);
    EXPECT_EQ(Meals::Find(u""), std::nullopt);
}
