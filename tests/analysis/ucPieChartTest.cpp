#include "analysis/ui/ucPieChart.h"

#include "AnalysisTest.h"
#include "analysis/ui/PiePicture.h"
#include "drawing/SmoothedPrint.h"
#include "drawing/Style.h"
#include "model/User.h"
#include "runtime/RuntimeError.h"
#include "store/Connection.h"
#include "support/Failure.h"

#include <QAccessible>
#include <QPainter>
#include <QSignalSpy>
#include <QtMath>

namespace {

const QDate First(2002, 4, 1);
const QDate Last(2002, 4, 30);

constexpr QRgb Red = qRgb(255, 30, 30);
constexpr QRgb Orange = qRgb(255, 133, 0);
constexpr QRgb Green = qRgb(56, 250, 59);

class ucPieChartTest : public AnalysisTest {
protected:
    void EatFood(double calories, double fat, double protein, double carbs, QDate day = First) {
        Eat({{QStringLiteral("Calories"), calories},
             {QStringLiteral("TotalFat"), fat},
             {QStringLiteral("Protein"), protein},
             {QStringLiteral("carbs"), carbs}},
            day);
    }
    static Pie& PieOf(const ucPieChart& chart) {
        return Find<PiePicture>(&chart, QStringLiteral("picPIE"))->pie();
    }
    static void Update(ucPieChart& chart) { chart.updatePie(First, Last); }
    static QStringList Captions(const char* fat, const char* protein, const char* carbs) {
        return {QLatin1String(fat), QLatin1String(protein), QLatin1String(carbs)};
    }
    void ExpectNoData(const ucPieChart& chart) {
        EXPECT_EQ(PieCaptions(chart), Captions("Total Fat --", "Protein --", "Carbs. --"));
        EXPECT_EQ(PieText(chart), QStringLiteral("No data to chart"));
    }
    /// The pixel at that percent of the circle and at that distance from its centre.
    static QRgb At(const QImage& picture, double percent, double radius) {
        const double angle = percent * 6.28318530718 / 100;
        return picture.pixel(qFloor(126 + qCos(angle) * radius),
                             qFloor(121 - qSin(angle) * radius));
    }
    const QRgb paper = TheStyle().paper.rgb();
};

TEST_F(ucPieChartTest, StartsWithThreeEqualSectors) {
    const ucPieChart chart;
    EXPECT_EQ(PieCaptions(chart), Captions("Fat 33%", "Protein 33%", "Carbs. 33%"));
    const QImage temp = PieOf(chart).temp();
    EXPECT_EQ(At(temp, 33, 60), Red);
    EXPECT_EQ(At(temp, 34, 60), Orange);
    EXPECT_EQ(At(temp, 66, 60), Orange);
    EXPECT_EQ(At(temp, 67, 60), Green);
}

TEST_F(ucPieChartTest, SectorsFillACircleOf112AboutTheirCentre) {
    EatFood(1000, 25 / 9., 25 / 4., 50 / 4.);
    ucPieChart chart;
    Update(chart);
    EXPECT_EQ(PieCaptions(chart), Captions("Fat 25%", "Protein 25%", "Carbs. 50%"));
    const QImage temp = PieOf(chart).temp();
    EXPECT_EQ(temp.size(), QSize(252, 242));
    for (int percent = 1; percent < 100; percent += 2) {
        const QRgb colour = percent < 25 ? Red : percent < 50 ? Orange : Green;
        EXPECT_EQ(At(temp, percent, 30), colour) << percent;
        EXPECT_EQ(At(temp, percent, 110), colour) << percent;
        EXPECT_EQ(At(temp, percent, 115), paper) << percent;
    }
}

TEST_F(ucPieChartTest, ThePieIsLaidOverTheBackgroundPicture) {
    const ucPieChart chart;
    const QImage shown = PieOf(chart).picPIE();
    EXPECT_NE(shown.pixel(126, 4), paper);
    EXPECT_EQ(PieOf(chart).temp().pixel(126, 4), paper);
    const QRgb green = At(shown, 80, 100);
    EXPECT_NEAR(qRed(green), (56 * 153 + 250 * 102) / 255, 4);
    EXPECT_NEAR(qGreen(green), (250 * 153 + 245 * 102) / 255, 4);
}

TEST_F(ucPieChartTest, OtherCaloriesHaveNoSector) {
    EatFood(2000, 50 / 9., 50 / 4., 100 / 4.);
    ucPieChart chart;
    Update(chart);
    EXPECT_EQ(PieCaptions(chart), Captions("Fat 25%", "Protein 25%", "Carbs. 50%"));
}

TEST_F(ucPieChartTest, SharesOfAveragesAreThoseOfTheSums) {
    EatFood(500, 20, 10, 40, First);
    EatFood(501, 0, 30, 12.5, First.addDays(3));
    EatFood(700.4, 7, 0, 0, Last);
    ucPieChart chart;
    Update(chart);
    const double total = 27 * 9 + 40 * 4 + 52.5 * 4;
    EXPECT_DOUBLE_EQ(PieOf(chart).Shares()[0], 27 * 9 / total * 100);
    EXPECT_DOUBLE_EQ(PieOf(chart).Shares()[1], 40 * 4 / total * 100);
    EXPECT_DOUBLE_EQ(PieOf(chart).Shares()[2], 52.5 * 4 / total * 100);
}

TEST_F(ucPieChartTest, WithoutFoodThereIsNoData) {
    EatFood(1000, 10, 10, 10, First.addDays(-1));
    EatFood(1000, 10, 10, 10, Last.addDays(1));
    EatAs(User::Current().UID + 1, {{QStringLiteral("Calories"), 900}}, First);
    ucPieChart chart;
    Update(chart);
    ExpectNoData(chart);
    chart.updatePie(Last.addDays(1), Last.addDays(1));
    EXPECT_NE(PieText(chart), QStringLiteral("No data to chart"));
    chart.updatePie(Last.addDays(9), First);
    ExpectNoData(chart);
}

TEST_F(ucPieChartTest, AverageCaloriesBelowOneAreNoData) {
    EatFood(1, 5, 5, 5, First);
    EatFood(0, 5, 5, 5, Last);
    ucPieChart chart;
    Update(chart);
    ExpectNoData(chart); // 0.5 rounds to the even 0
    Users(QStringLiteral("UPDATE USER_FOODS SET Calories = 1.5"));
    Update(chart);
    EXPECT_EQ(PieCaptions(chart), Captions("Fat 53%", "Protein 24%", "Carbs. 24%"));
}

TEST_F(ucPieChartTest, OneKilocalorieADayIsDrawn) {
    EatFood(1, 5, 5, 5, First);
    EatFood(1, 5, 5, 5, Last);
    ucPieChart chart;
    Update(chart);
    EXPECT_EQ(PieCaptions(chart), Captions("Fat 53%", "Protein 24%", "Carbs. 24%"));
}

TEST_F(ucPieChartTest, NoDataIsPrintedAt90And90OnPlainGround) {
    ucPieChart chart;
    Update(chart);
    const QImage shown = PieOf(chart).picPIE();
    int darkest = 255;
    for (int y = 0; y < 242; ++y)
        for (int x = 0; x < 252; ++x) {
            const bool printed = QRect(90, 90, 110, 18).contains(x, y);
            ASSERT_TRUE(printed || shown.pixel(x, y) == paper) << x << "," << y;
            darkest = qMin(darkest, qGray(shown.pixel(x, y)));
        }
    EXPECT_LT(darkest, 100); // nothing is laid over the text
    QImage expected(shown.size(), shown.format());
    expected.fill(paper);
    QPainter painter(&expected);
    painter.setPen(TheStyle().barRowText);
    SmoothedPrint(painter, QPointF(90, 90), QStringLiteral("No data to chart"), TheStyle().small);
    painter.end();
    EXPECT_EQ(shown, expected);
}

TEST_F(ucPieChartTest, CaloriesFromNoneOfTheThreeClearThePieAndKeepTheLabels) {
    EatFood(1000, 25, 10, 0);
    ucPieChart chart;
    Update(chart);
    const QStringList before = PieCaptions(chart);
    Users(QStringLiteral("UPDATE USER_FOODS SET TotalFat = 0, Protein = 0, carbs = 0"));
    Update(chart);
    EXPECT_EQ(PieCaptions(chart), before);
    EXPECT_EQ(At(PieOf(chart).temp(), 10, 60), paper);
    EXPECT_EQ(PieText(chart), QString());
}

TEST_F(ucPieChartTest, PureFatLeavesSlivers) {
    EatFood(900, 100, 0, 0);
    ucPieChart chart;
    Update(chart);
    EXPECT_EQ(PieCaptions(chart), Captions("Fat 100%", "Protein 0%", "Carbs. 0%"));
    EXPECT_EQ(PieOf(chart).Shares()[0], 99.8);
    EXPECT_EQ(At(PieOf(chart).temp(), 99, 100), Red);
    EXPECT_NE(At(PieOf(chart).temp(), 99.9, 108), Red);
}

TEST_F(ucPieChartTest, AtTheBoundaryFatIsClampedAndTheOthersAreNot) {
    ucPieChart chart;
    EatFood(36000, 999 * 36 / 9., 18 / 4., 18 / 4.);
    Update(chart);
    EXPECT_EQ(PieOf(chart).Shares()[0], 99.8);
    Users(QStringLiteral("UPDATE USER_FOODS SET TotalFat = 2, Protein = 8991, carbs = 4.5"));
    Update(chart);
    EXPECT_EQ(PieOf(chart).Shares()[1], 99.9);
    Users(QStringLiteral("UPDATE USER_FOODS SET TotalFat = 2, carbs = 8991, Protein = 4.5"));
    Update(chart);
    EXPECT_EQ(PieOf(chart).Shares()[2], 99.9);
    Users(QStringLiteral("UPDATE USER_FOODS SET carbs = 9100"));
    Update(chart);
    EXPECT_EQ(PieOf(chart).Shares()[2], 99.8);
}

TEST_F(ucPieChartTest, FailuresOfTheStoreAreNotCaught) {
    ucPieChart chart;
    Users(QStringLiteral("DROP TABLE USER_FOODS"));
    EXPECT_THROW(Update(chart), RuntimeError);
    EXPECT_EQ(PieCaptions(chart), Captions("Fat 33%", "Protein 33%", "Carbs. 33%"));
}

TEST_F(ucPieChartTest, ABorderStandsRoundTheWholeChartAndTheHeaderSpansIt) {
    ucPieChart chart;
    chart.resize(700, 450);
    chart.show();
    const QWidget* header = Find(&chart, QStringLiteral("ucHeader1"));
    EXPECT_EQ(header->mapTo(&chart, QPoint()), QPoint(1, 1));
    EXPECT_EQ(header->width(), 698);
    const QImage shown = Grab(&chart);
    for (const QPoint at : {QPoint(350, 0), QPoint(0, 225), QPoint(699, 225), QPoint(350, 449)})
        EXPECT_EQ(shown.pixel(at), qRgb(180, 105, 12)) << at.x() << "," << at.y();
}

TEST_F(ucPieChartTest, EachLabelHasItsSwatch) {
    ucPieChart chart;
    chart.resize(738, 476);
    chart.show();
    const QImage shown = Grab(&chart);
    const auto colours = PieOf(chart).ShownColours();
    const std::array labels{"aafat", "aaprotein", "aacarbs"};
    for (size_t i = 0; i < 3; ++i) {
        const QWidget* swatch = Find(&chart, QStringLiteral("Image%1").arg(i + 1));
        const QWidget* label = Find(&chart, QLatin1String(labels[i]));
        EXPECT_LT(swatch->geometry().right(), label->x());
        EXPECT_EQ(shown.pixel(swatch->mapTo(&chart, swatch->rect().center())), colours[i].rgb());
        EXPECT_NEAR(swatch->geometry().center().y(), label->geometry().center().y(), 1);
    }
}

TEST_F(ucPieChartTest, MovesOverTheChartAndItsPartsAreRaisedButNotOverTheHeader) {
    ucPieChart chart;
    chart.resize(738, 476);
    chart.show();
    QSignalSpy moves(&chart, &ucPieChart::MouseMove);
    Hover(Find(&chart, QStringLiteral("ucHeader1")));
    EXPECT_EQ(moves.count(), 0);
    Hover(&chart, QPoint(5, 470));
    int expected = 1;
    for (const char* part :
         {"picPIE", "Image1", "Image2", "Image3", "aafat", "aaprotein", "aacarbs"}) {
        Hover(Find(&chart, QLatin1String(part)));
        EXPECT_EQ(moves.count(), ++expected) << part;
    }
}

TEST_F(ucPieChartTest, AssistiveProgramsReadTheShares) {
    ucPieChart chart;
    const auto value = [&] {
        return QAccessible::queryAccessibleInterface(&chart)->text(QAccessible::Value);
    };
    EXPECT_EQ(value(), QStringLiteral("Fat 33%, Protein 33%, Carbs. 33%"));
    Update(chart);
    EXPECT_EQ(value(), QStringLiteral("No data to chart"));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&chart)->role(), QAccessible::Chart);
}

TEST_F(ucPieChartTest, ItsPictureForPaperIsSharp) {
    ucPieChart chart;
    chart.resize(738, 476);
    QImage same(chart.size(), QImage::Format_RGB32);
    QPainter onSame(&same);
    chart.PaintChart(onSame, same.rect());
    onSame.end();
    chart.show();
    EXPECT_EQ(same, Grab(&chart));

    constexpr int times = 6;
    QImage print(chart.size() * times, QImage::Format_RGB32);
    QPainter onPrint(&print);
    chart.PaintChart(onPrint, print.rect());
    onPrint.end();
    // A row through the pie's left edge changes from background to sector within a few pixels.
    const QWidget* picture = Find(&chart, QStringLiteral("picPIE"));
    const QPoint centre = picture->mapTo(&chart, QPoint(126, 121)) * times;
    int mixed = 0;
    for (int x = centre.x() - 113 * times; x < centre.x() - 111 * times; ++x) {
        const int blue = qBlue(print.pixel(x, centre.y()));
        mixed += blue > 115 && blue < 200;
    }
    EXPECT_LE(mixed, 3);
}

} // namespace
