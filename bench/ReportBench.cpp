#include "BareStore.h"
#include "Ground.h"
#include "Table.h"

#include "analysis/ui/ucBarChart.h"
#include "analysis/ui/ucPieChart.h"
#include "drawing/Style.h"
#include "model/Nutrients.h"
#include "model/User.h"
#include "store/Connection.h"

#include <QPainter>

namespace {
struct Span {
    const char* name;
    int days;
};
constexpr Span Spans[] = {{"7 days", 7}, {"a year", 365}, {"ten years", Ground::Days}};

/// A period in the log; successive runs use different ones if the log is long enough.
struct BenchPeriod {
    QDate from, to;
    BenchPeriod(int days, int count) {
        const int first = days == Ground::Days ? 0 : count * 37 % (Ground::Days - days);
        from = Ground::Day(first);
        to = from.addDays(days - 1);
    }
    std::string Where() const {
        return " WHERE UID=" + std::to_string(User::Current().UID) + " AND UDate BETWEEN '" +
               from.toString(Qt::ISODate).toStdString() + "' AND '" +
               to.toString(Qt::ISODate).toStdString() + "'";
    }
};

void ReadAll(const std::string& sql) {
    BareStore::Read(UserDB().Raw(), sql);
}

void ReadDays(const BenchPeriod& period) {
    ReadAll("SELECT DISTINCT UDate FROM USER_FOODS" + period.Where());
}

void BareBars(const BenchPeriod& period) {
    ReadAll("SELECT Avg(Weight) FROM USER_WEIGHTS" + period.Where() + " AND Weight > 0");
    ReadAll(BareStore::SumsOf(PeriodOrder()) + period.Where());
    ReadDays(period);
}

void BarePie(const BenchPeriod& period) {
    using enum Nutrient;
    ReadAll(BareStore::SumsOf(std::array{Calories, Protein, TotalFat, Carbs}) + period.Where());
    ReadDays(period);
}

/// A benchmark for each span: the chart, and its statements alone.
template <class Chart> struct Work {
    const char* name;
    void (*ours)(Chart& chart, const BenchPeriod& period);
    void (*bare)(const BenchPeriod& period);

    void Register() const {
        for (const Span& span : Spans) {
            const std::string work = std::string("report, ") + name + ", " + span.name;
            Table::Aim(work, 2);
            benchmark::RegisterBenchmark((work + "/ours").c_str(), [*this, span](auto& state) {
                const Ground ground(true);
                Chart chart;
                chart.show();
                int count = 0;
                for (auto _ : state)
                    ours(chart, BenchPeriod(span.days, count++));
            });
            benchmark::RegisterBenchmark((work + "/limit").c_str(), [*this, span](auto& state) {
                const Ground ground(true);
                int count = 0;
                for (auto _ : state)
                    bare(BenchPeriod(span.days, count++));
            });
        }
    }
};

constexpr Work<ucBarChart> Bars{
    "bars",
    [](ucBarChart& chart, const BenchPeriod& period) { chart.updateBars(period.from, period.to); },
    BareBars};
constexpr Work<ucPieChart> Pie{
    "pie",
    [](ucPieChart& chart, const BenchPeriod& period) { chart.updatePie(period.from, period.to); },
    BarePie};

QImage Surface() {
    return QImage(738, 476, QImage::Format_RGB32);
}

void ViewChangeOurs(benchmark::State& state) {
    const Ground ground(true);
    ucBarChart chart;
    chart.updateBars(Ground::Day(0), Ground::Day(6));
    chart.show();
    QImage surface = Surface();
    int view = 0;
    for (auto _ : state) {
        chart.Toggle(++view % 2);
        chart.render(&surface);
    }
}

/// Paints the text and bars of both views without controls.
void ViewChangeLimit(benchmark::State& state) {
    QImage surface = Surface();
    const QString value = QString(148, u'.') + QStringLiteral("1,234 mg");
    const QImage bar(7, 8, QImage::Format_RGB32);
    int view = 0;
    for (auto _ : state) {
        QPainter painter(&surface);
        painter.setFont(TheStyle().small);
        painter.fillRect(surface.rect(), TheStyle().paper);
        for (int x = 162; x < 733; x += 20)
            painter.fillRect(x, 0, 1, 474, TheStyle().gridLight);
        ++view;
        for (int row = 0; row < NutrientCount; ++row) {
            const int top = 18 + 14 * row;
            const auto* name = Info(PeriodOrder()[size_t(row)]).chartCaption;
            painter.drawText(QPoint(8, top + 12), QLatin1String(name));
            if (view % 2)
                painter.drawText(QPoint(162, top + 12), value);
            else
                painter.drawImage(QRect(163, top + 3, 40 + 10 * row, 8), bar);
        }
    }
}

[[maybe_unused]] const bool registered = [] {
    Bars.Register();
    Pie.Register();
    Table::Aim("report, view change, painted", 2);
    return true;
}();
} // namespace

BENCHMARK(ViewChangeOurs)->Name("report, view change, painted/ours");
BENCHMARK(ViewChangeLimit)->Name("report, view change, painted/limit");
