#include "analysis/ui/ucGlance.h"

#include "AnalysisTest.h"
#include "analysis/ui/PiePicture.h"
#include "drawing/Style.h"
#include "model/User.h"
#include "runtime/RuntimeError.h"
#include "store/Connection.h"
#include "support/Failure.h"

#include <QtMath>

namespace {

const QDate First(2002, 4, 1);
const QDate Last(2002, 4, 30);

class ucGlanceTest : public AnalysisTest {
protected:
    static Amounts Food(double calories, double fat, double protein, double carbs) {
        return {{QStringLiteral("Calories"), calories},
                {QStringLiteral("TotalFat"), fat},
                {QStringLiteral("Protein"), protein},
                {QStringLiteral("carbs"), carbs}};
    }
    void EatPercents(double fat, double protein, double carbs) {
        Eat(Food(1000, fat / 9, protein / 4, carbs / 4), First);
    }
    QString Average(const ucGlance& glance) { return Caption(glance, "lblAvgCals"); }
    Pie& PieOf(const ucGlance& glance) {
        return Find<PiePicture>(&glance, QStringLiteral("picPIE"))->pie();
    }
    void ExpectNoData(const ucGlance& glance) {
        EXPECT_EQ(PieText(glance), QStringLiteral("No data to chart"));
        EXPECT_EQ(PieCaptions(glance),
                  QStringList({QStringLiteral("Total Fat: --"), QStringLiteral("Protein: --"),
                               QStringLiteral("Carbs: --")}));
    }
    static QStringList Captions(const char* fat, const char* protein, const char* carbs) {
        return {QLatin1String(fat), QLatin1String(protein), QLatin1String(carbs)};
    }
};

TEST_F(ucGlanceTest, ReadsItsCaptionsBeforeAnyMonthIsGiven) {
    ucGlance glance;
    EXPECT_EQ(Average(glance), QStringLiteral("Average daily calories:"));
    EXPECT_EQ(Caption(glance, "Label1"), QStringLiteral("Caloric breakdown:"));
}

TEST_F(ucGlanceTest, AMonthWithoutEntriesSaysThatItHasNoData) {
    ucGlance glance;
    glance.UpdateGlance(First, Last);
    ExpectNoData(glance);
    EXPECT_EQ(Average(glance), QStringLiteral("Average daily calories:"));
}

TEST_F(ucGlanceTest, OneLoggedDayAmongThirtyIsNotDividedByThirty) {
    Eat(Food(2000, 50, 100, 280), First.addDays(11));
    ucGlance glance;
    glance.UpdateGlance(First, Last);
    EXPECT_EQ(Average(glance), QStringLiteral("Average daily calories: 2000"));
    EXPECT_EQ(PieCaptions(glance), Captions("Fat 23%", "Protein 20%", "Carbs. 57%"));
}

TEST_F(ucGlanceTest, FoodsOfOneDayCountAsOneDay) {
    for (int i = 0; i < 4; ++i)
        EatCalories(400, First);
    EatCalories(1000, Last);
    ucGlance glance;
    glance.UpdateGlance(First, Last);
    EXPECT_EQ(Average(glance), QStringLiteral("Average daily calories: 1300"));
}

TEST_F(ucGlanceTest, DaysOutsideThePeriodAndOtherPeopleDoNotCount) {
    EatCalories(1000, First);
    EatCalories(3000, First.addDays(-1));
    EatCalories(3000, Last.addDays(1));
    EatAs(User::Current().UID + 1, Food(5000, 1, 1, 1), First);
    ucGlance glance;
    glance.UpdateGlance(First, Last);
    EXPECT_EQ(Average(glance), QStringLiteral("Average daily calories: 1000"));
}

TEST_F(ucGlanceTest, TheSumIsRoundedBeforeItIsAveragedAndAgainAfterwards) {
    // 2000.5 rounds to 2000 and 2000 / 2 to 1000; 5 / 2 rounds to the even 2.
    EatCalories(1000, First);
    EatCalories(1000.5, Last);
    ucGlance glance;
    glance.UpdateGlance(First, Last);
    EXPECT_EQ(Average(glance), QStringLiteral("Average daily calories: 1000"));
    Users(QStringLiteral("UPDATE USER_FOODS SET Calories = 2.5"));
    glance.UpdateGlance(First, Last);
    EXPECT_EQ(Average(glance), QStringLiteral("Average daily calories: 2"));
}

TEST_F(ucGlanceTest, EnergyFromCarbohydrateAloneLeavesTheOthersAtZero) {
    Eat(Food(400, 0, 0, 100), First);
    ucGlance glance;
    glance.UpdateGlance(First, Last);
    EXPECT_EQ(PieCaptions(glance), Captions("Fat 0%", "Protein 0%", "Carbs. 100%"));
    EXPECT_EQ(PieOf(glance).Shares()[2], 99.8);
}

TEST_F(ucGlanceTest, AllThreeSharesAreClampedFrom999) {
    ucGlance glance;
    for (int i = 0; i < 3; ++i) {
        Users(QStringLiteral("DELETE FROM USER_FOODS"));
        std::array<double, 3> grams{4, 9, 9};
        constexpr std::array kcal{9.0, 4.0, 4.0};
        grams[size_t(i)] = 999 * 36 / kcal[size_t(i)];
        for (size_t other = 0; other < 3; ++other)
            if (other != size_t(i))
                grams[other] = 18 / kcal[other];
        Eat(Food(36000, grams[0], grams[1], grams[2]), First);
        glance.UpdateGlance(First, Last);
        EXPECT_EQ(PieOf(glance).Shares()[size_t(i)], 99.8) << i;
    }
}

TEST_F(ucGlanceTest, LessThanOneKilocalorieADayIsNoData) {
    Eat(Food(1, 5, 5, 5), First);
    Eat(Food(0, 5, 5, 5), Last);
    ucGlance glance;
    glance.UpdateGlance(First, Last);
    ExpectNoData(glance);
    Users(QStringLiteral("UPDATE USER_FOODS SET Calories = -900"));
    glance.UpdateGlance(First, Last);
    ExpectNoData(glance);
    EXPECT_EQ(Average(glance), QStringLiteral("Average daily calories:"));
}

TEST_F(ucGlanceTest, OneKilocalorieADayIsData) {
    Eat(Food(1, 5, 5, 5), First);
    Eat(Food(1, 5, 5, 5), Last);
    ucGlance glance;
    glance.UpdateGlance(First, Last);
    EXPECT_EQ(Average(glance), QStringLiteral("Average daily calories: 1"));
    EXPECT_EQ(PieCaptions(glance), Captions("Fat 53%", "Protein 24%", "Carbs. 24%"));
}

TEST_F(ucGlanceTest, AMonthWithoutDataLeavesTheAverageOfTheOneBefore) {
    EatCalories(1800, First);
    ucGlance glance;
    glance.UpdateGlance(First, Last);
    glance.UpdateGlance(First.addMonths(1), Last.addMonths(1));
    ExpectNoData(glance);
    EXPECT_EQ(Average(glance), QStringLiteral("Average daily calories: 1800"));
}

TEST_F(ucGlanceTest, CaloriesFromNoneOfTheThreeKeepTheCaptionsAndDrawNoSector) {
    EatPercents(500, 250, 250);
    ucGlance glance;
    glance.UpdateGlance(First, Last);
    Users(QStringLiteral("UPDATE USER_FOODS SET TotalFat = 0, Protein = 0, carbs = 0"));
    glance.UpdateGlance(First, Last);
    EXPECT_EQ(PieCaptions(glance), Captions("Fat 50%", "Protein 25%", "Carbs. 25%"));
    EXPECT_EQ(PieText(glance), QString());
    EXPECT_EQ(Average(glance), QStringLiteral("Average daily calories: 1000"));
}

TEST_F(ucGlanceTest, UnknownAmountsCountAsZero) {
    Eat(Food(400, 10, 10, 100), First);
    Users(QStringLiteral("UPDATE USER_FOODS SET TotalFat = NULL, Protein = NULL"));
    ucGlance glance;
    glance.UpdateGlance(First, Last);
    EXPECT_EQ(PieCaptions(glance), Captions("Fat 0%", "Protein 0%", "Carbs. 100%"));
    Users(QStringLiteral("UPDATE USER_FOODS SET Calories = NULL"));
    glance.UpdateGlance(First, Last);
    ExpectNoData(glance);
}

TEST_F(ucGlanceTest, LargeAveragesAreWrittenInFull) {
    EatCalories(12345678, First);
    ucGlance glance;
    glance.UpdateGlance(First, Last);
    EXPECT_EQ(Average(glance), QStringLiteral("Average daily calories: 12345678"));
}

TEST_F(ucGlanceTest, ThePeriodIsReadMonthFirst) {
    EatCalories(700, QDate(2002, 4, 3));
    EatCalories(900, QDate(2002, 3, 4));
    ucGlance glance;
    glance.UpdateGlance(QDate(2002, 4, 3), QDate(2002, 4, 3));
    EXPECT_EQ(Average(glance), QStringLiteral("Average daily calories: 700"));
}

TEST_F(ucGlanceTest, AnEndBeforeTheStartIsNoData) {
    EatCalories(700, First);
    ucGlance glance;
    glance.UpdateGlance(Last, First);
    ExpectNoData(glance);
}

TEST_F(ucGlanceTest, FailuresOfTheStoreAreNotCaught) {
    ucGlance glance;
    Users(QStringLiteral("DROP TABLE USER_FOODS"));
    EXPECT_THROW(glance.UpdateGlance(First, Last), RuntimeError);
}

TEST_F(ucGlanceTest, SectorsAreLaidOverThePictureOfThePlate) {
    EatPercents(250, 250, 500);
    ucGlance glance;
    glance.UpdateGlance(First, Last);
    const QImage temp = PieOf(glance).temp();
    const QImage shown = PieOf(glance).picPIE();
    constexpr QRgb colours[] = {qRgb(255, 30, 30), qRgb(255, 133, 0), qRgb(56, 250, 59)};
    const auto place = [](double percent, double radius) {
        const double angle = percent * 6.28318530718 / 100;
        return QPoint(qFloor(54 + qCos(angle) * radius), qFloor(54 - qSin(angle) * radius));
    };
    for (const auto& [percent, sector] :
         {std::pair{12, 0}, {24, 0}, {26, 1}, {49, 1}, {51, 2}, {99, 2}})
        EXPECT_EQ(temp.pixel(place(percent, 40)), colours[sector]) << percent;
    // The circle is as wide to the left as to the right, with half a pixel of outline.
    const auto reach = [&](QPoint step) {
        int pixels = 0;
        for (QPoint at = QPoint(54, 54) + pixels * step;
             temp.rect().contains(at) && temp.pixel(at) != TheStyle().paper.rgb(); at += step)
            ++pixels;
        return pixels;
    };
    EXPECT_EQ(reach(QPoint(1, 0)), 49);
    EXPECT_EQ(reach(QPoint(-1, 0)), 50); // the centre is at this edge of its pixel
    EXPECT_EQ(reach(QPoint(0, 1)), 49);
    EXPECT_EQ(reach(QPoint(0, -1)), 50);
    // Orange has no blue, so the blue comes from the plate: 40 % of 255 at most.
    const QRgb orange = shown.pixel(place(37, 40));
    EXPECT_GT(qBlue(orange), 90);
    EXPECT_LE(qBlue(orange), 102);
    EXPECT_NE(shown.pixel(54, 2), TheStyle().paper.rgb());
    EXPECT_EQ(temp.pixel(54, 2), TheStyle().paper.rgb());
}

TEST_F(ucGlanceTest, WithoutDataThePlateStaysBehindTheCentredText) {
    ucGlance glance;
    glance.UpdateGlance(First, Last);
    const QImage shown = PieOf(glance).picPIE();
    EXPECT_NE(shown.pixel(54, 2), TheStyle().paper.rgb());
    int darkest = 255;
    for (int x = 12; x < 96; ++x)
        for (int y = 46; y < 62; ++y)
            darkest = qMin(darkest, qGray(shown.pixel(x, y)));
    EXPECT_LT(darkest, 100);
}

TEST_F(ucGlanceTest, NothingIsCutOffAtItsUsualSize) {
    ucGlance glance;
    EatCalories(123456, First);
    glance.UpdateGlance(First, Last);
    glance.show();
    for (const char* name : {"lblAvgCals", "Label1", "picPIE", "aafat", "aaprotein", "aacarbs"}) {
        const QWidget* part = Find(&glance, QLatin1String(name));
        EXPECT_TRUE(glance.rect().contains(QRect(part->mapTo(&glance, QPoint()), part->size())))
            << name;
    }
}

} // namespace
