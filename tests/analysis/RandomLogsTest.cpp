#include "AnalysisTest.h"
#include "analysis/ui/ChartBar.h"
#include "analysis/ui/ChartLabel.h"
#include "analysis/ui/PiePicture.h"
#include "analysis/ui/ucBarChart.h"
#include "analysis/ui/ucGlance.h"
#include "analysis/ui/ucPieChart.h"
#include "model/User.h"
#include "runtime/AppState.h"
#include "runtime/RuntimeError.h"
#include "store/Connection.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <cmath>
#include <random>
#include <set>

namespace {

const QDate FirstDay(2002, 1, 1);
constexpr int LogDays = 12;
constexpr int Nutrient31 = 31;

struct Entry {
    int day;
    bool own;                                 ///< of the current user
    std::array<int, Nutrient31> sixtyFourths; ///< so that every sum is exact
};
struct Weighing {
    int day;
    int quarters; ///< of a pound
};
struct Log {
    std::vector<Entry> entries;
    std::vector<Weighing> weighings;
    int from, to; ///< the period asked for
};

/// Calculates in whole numbers, without the program's own code, what the charts must show.
class Expected {
public:
    explicit Expected(const Log& log) {
        std::set<int> days;
        for (const Entry& entry : log.entries) {
            if (!entry.own || entry.day < log.from || entry.day > log.to)
                continue;
            days.insert(entry.day);
            for (size_t i = 0; i < Nutrient31; ++i)
                sums_[i] += entry.sixtyFourths[i];
        }
        days_ = int(days.size());
        for (const Weighing& weighing : log.weighings) {
            const bool counts =
                weighing.quarters > 0 && weighing.day >= log.from && weighing.day <= log.to;
            weighings_ += counts;
            quarters_ += counts ? weighing.quarters : 0;
        }
    }

    int Days() const { return days_; }
    bool HasWeight() const { return weighings_ > 0; }
    int AverageWeight() const { return int(HalfToEven(quarters_, 4LL * weighings_)); }

    /// The sum in the record, in sixty-fourths.
    long long Sum(Nutrient id) const {
        const long long sum = sums_[size_t(id)];
        return Info(id).whole ? 64 * HalfToEven(sum, 64) : sum;
    }
    double Average(Nutrient id) const { return double(Sum(id)) / 64 / days_; }

    /// The number as shown: up to two decimals below 100, a thousands separator above.
    QString Text(Nutrient id) const {
        const long long sum = Sum(id);
        const long long unit = 64LL * days_;
        if (sum == 0)
            return QStringLiteral("0");
        if (sum < 100 * unit) {
            const long long hundredths = (200 * sum + unit) / (2 * unit);
            QString text = QString::number(hundredths / 100) + u'.';
            const int decimals = int(hundredths % 100);
            if (decimals != 0)
                text += decimals % 10 == 0 ? QString::number(decimals / 10)
                                           : QStringLiteral("%1").arg(decimals, 2, 10, QChar(u'0'));
            return text;
        }
        QString text = QString::number((2 * sum + unit) / (2 * unit));
        for (qsizetype at = text.size() - 3; at > 0; at -= 3)
            text.insert(at, u',');
        return text;
    }

    long long AverageCalories() const {
        return HalfToEven(HalfToEven(sums_[size_t(Nutrient::Calories)], 64), days_);
    }

    /// Percent from fat, protein and carbohydrate; a sliver for a share of 0. NaN if all three are
    /// 0.
    std::array<double, 3> Shares() const {
        std::array<double, 3> shares{9. * double(sums_[size_t(Nutrient::TotalFat)]),
                                     4. * double(sums_[size_t(Nutrient::Protein)]),
                                     4. * double(sums_[size_t(Nutrient::Carbs)])};
        if (shares == std::array<double, 3>{})
            return {NAN, NAN, NAN};
        for (double& share : shares)
            share = share == 0 ? 0.0001 : share / 64 / days_ / double(AverageCalories());
        const double total = shares[0] + shares[1] + shares[2];
        for (double& share : shares)
            share = 100 * share / total;
        return shares;
    }

private:
    static long long HalfToEven(long long value, long long by) {
        const long long whole = value / by;
        const long long rest = 2 * (value % by);
        return whole + (rest > by || (rest == by && whole % 2 != 0) ? 1 : 0);
    }

    std::array<long long, Nutrient31> sums_{};
    int days_ = 0;
    int weighings_ = 0;
    long long quarters_ = 0;
};

/// The energy target of a man of 40 years and 70 inches, moderately active, who wants 170 pounds.
double EnergyFor(int pounds) {
    const double basal = 66 + 13.7 * (pounds / 2.2) + 5 * (70 * 2.54) - 6.8 * 40;
    const double active = basal * 0.72;
    const double total = std::nearbyint(basal + active + (basal + active) * 0.1);
    if (total >= 1501 && pounds > 170)
        return total - 500;
    return pounds < 170 ? total + 500 : total;
}

class RandomLogsTest : public AnalysisTest {
protected:
    Log NewLog() {
        Log log;
        log.from = Pick(0, LogDays - 1);
        log.to = Pick(log.from, LogDays - 1);
        log.entries.resize(size_t(Pick(0, 14)));
        for (Entry& entry : log.entries) {
            entry.day = Pick(0, LogDays - 1);
            entry.own = Pick(0, 9) > 0;
            for (int& amount : entry.sixtyFourths)
                amount = Pick(0, 4) == 0 ? 0 : Pick(0, 1 << Pick(2, 17));
        }
        log.weighings.resize(size_t(Pick(0, 5)));
        for (Weighing& weighing : log.weighings)
            weighing = {Pick(0, LogDays - 1), Pick(0, 4) == 0 ? 0 : Pick(90 * 4, 250 * 4)};
        return log;
    }
    int Pick(int from, int to) { return std::uniform_int_distribution(from, to)(random_); }

    void Store(const Log& log) {
        SQLite::Database& users = UserDB().Raw();
        SQLite::Transaction transaction(users);
        users.exec("DELETE FROM USER_FOODS; DELETE FROM USER_WEIGHTS");
        std::string columns = "INSERT INTO USER_FOODS (UID, UDate";
        std::string values = ") VALUES (?, ?";
        for (const NutrientInfo& nutrient : Nutrients()) {
            columns += std::string(", ") + nutrient.logColumn;
            values += ", ?";
        }
        SQLite::Statement food(users, columns + values + ")");
        for (const Entry& entry : log.entries) {
            food.reset();
            food.bind(1, User::Current().UID + (entry.own ? 0 : 1));
            food.bind(2, DayText(entry.day));
            for (int i = 0; i < Nutrient31; ++i)
                food.bind(3 + i, entry.sixtyFourths[size_t(i)] / 64.0);
            food.exec();
        }
        SQLite::Statement weight(users,
                                 "INSERT INTO USER_WEIGHTS (UID, UDate, Weight) VALUES (?, ?, ?)");
        for (const Weighing& weighing : log.weighings) {
            weight.reset();
            weight.bind(1, User::Current().UID);
            weight.bind(2, DayText(weighing.day));
            weight.bind(3, weighing.quarters / 4.0);
            weight.exec();
        }
        transaction.commit();
    }
    static std::string DayText(int day) {
        return FirstDay.addDays(day).toString(Qt::ISODate).toStdString();
    }

    void CheckBars(ucBarChart& chart, const Log& log, const Expected& expected) {
        const auto update = [&] {
            chart.updateBars(FirstDay.addDays(log.from), FirstDay.addDays(log.to));
        };
        User::Current().CurrentWeight = 205;
        RecalcTargets();
        if (!expected.HasWeight()) {
            EXPECT_THROW(update(), RuntimeError);
            return;
        }
        update();
        EXPECT_EQ(chart.AverageWeight(), expected.AverageWeight());
        const bool food = expected.Days() > 0;
        EXPECT_EQ(User::Current().CurrentWeight, food ? 205 : expected.AverageWeight());
        EXPECT_EQ(Users("SELECT current_weight FROM profiles"), User::Current().CurrentWeight);
        EXPECT_EQ(User::Current().RDIs.Calories(), EnergyFor(User::Current().CurrentWeight));
        int row = 1;
        for (const Nutrient id : PeriodOrder())
            CheckRow(chart, row++, id, expected);
    }

    void CheckRow(ucBarChart& chart, int row, Nutrient id, const Expected& expected) {
        const auto* bar = Find<ChartBar>(&chart, QStringLiteral("imgBar%1").arg(row));
        if (expected.Days() == 0) {
            EXPECT_EQ(bar->Width(), 0);
            EXPECT_TRUE(bar->isHidden());
            return;
        }
        const double target = TargetFor(id, expected.AverageWeight());
        const double ratio = expected.Average(id) / (target == 0 ? 0.001 : target);
        const double width = std::min(8010.0, 6000 * ratio);
        EXPECT_NEAR(bar->Width(), width, 1e-8) << row;
        EXPECT_EQ(bar->width(), int(std::floor(bar->Width() / 15 + 0.5))) << row;
        EXPECT_EQ(bar->isHidden(), bar->Width() <= 15) << row;
        const QString unit =
            id == Nutrient::Water ? QStringLiteral("gm") : QLatin1String(Info(id).unit);
        EXPECT_EQ(Caption(chart, QStringLiteral("lblVal%1").arg(row).toLatin1()),
                  QString(148, u'.') + expected.Text(id) + u' ' + unit)
            << row;
    }

    double TargetFor(Nutrient id, int pounds) {
        const double energy = EnergyFor(pounds);
        const double fat = std::nearbyint(energy / 9 * 0.3);
        switch (id) {
        case Nutrient::Calories:
            return energy;
        case Nutrient::Protein:
            return std::nearbyint(energy / 4 * 0.3);
        case Nutrient::Carbs:
            return std::nearbyint(energy / 4 * 0.4);
        case Nutrient::TotalFat:
            return fat;
        case Nutrient::SatFat:
        case Nutrient::MonoFat:
        case Nutrient::PolyFat:
            return std::nearbyint(fat / 3);
        default:
            return targets_[id];
        }
    }

    void CheckPie(const QWidget& chart, const Expected& expected, bool glance) {
        const QString text = PieText(chart);
        if (expected.Days() == 0 || expected.AverageCalories() < 1) {
            EXPECT_EQ(text, QStringLiteral("No data to chart"));
            return;
        }
        const std::array<double, 3> shares = expected.Shares();
        if (std::isnan(shares[0])) {
            EXPECT_EQ(text, QString());
            return;
        }
        const auto& shown = Find<PiePicture>(&chart, QStringLiteral("picPIE"))->pie().Shares();
        const std::array names{"Fat ", "Protein ", "Carbs. "};
        for (size_t i = 0; i < 3; ++i) {
            const double exact = shares[i];
            const bool clamped = i == 0 || glance ? exact >= 99.9 : exact > 99.9;
            const double expectedShare = clamped ? 99.8 : exact;
            EXPECT_NEAR(shown[i], expectedShare, 1e-9) << i;
            const QString caption = PieCaptions(chart)[qsizetype(i)];
            const double read = caption.mid(qsizetype(qstrlen(names[i]))).chopped(1).toDouble();
            EXPECT_TRUE(caption.startsWith(QLatin1String(names[i])));
            EXPECT_LE(std::abs(read - expectedShare), 0.5 + 1e-9) << i;
        }
    }

    void SetUp() override {
        AnalysisTest::SetUp();
        targets_ = User::Current().RDIs;
        App().AppInfo.AUTOUPDATERDI = true;
        UserDB().Raw().exec("PRAGMA synchronous=OFF");
    }

    std::mt19937 random_{20021121};
    Nuts targets_;
};

TEST_F(RandomLogsTest, ChartsAgreeWithAnIndependentCalculation) {
    ucBarChart bars;
    ucPieChart pie;
    ucGlance glance;
    int withFood = 0;
    int withoutWeight = 0;
    for (int i = 0; i < 1000 && !HasFailure(); ++i) {
        SCOPED_TRACE(i);
        const Log log = NewLog();
        const Expected expected(log);
        Store(log);
        CheckBars(bars, log, expected);
        pie.updatePie(FirstDay.addDays(log.from), FirstDay.addDays(log.to));
        CheckPie(pie, expected, false);
        glance.UpdateGlance(FirstDay.addDays(log.from), FirstDay.addDays(log.to));
        CheckPie(glance, expected, true);
        if (expected.Days() > 0 && expected.AverageCalories() >= 1) {
            EXPECT_EQ(Caption(glance, "lblAvgCals"),
                      QStringLiteral("Average daily calories: %1").arg(expected.AverageCalories()));
        }
        withFood += expected.Days() > 0;
        withoutWeight += !expected.HasWeight();
    }
    EXPECT_GT(withFood, 500);
    EXPECT_GT(withoutWeight, 100);
}

} // namespace
