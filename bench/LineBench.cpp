#include "BareStore.h"
#include "Ground.h"
#include "Table.h"

#include "analysis/ui/frmReport.h"
#include "analysis/ui/ucLineChart.h"
#include "drawing/Style.h"
#include "model/Nutrients.h"
#include "model/User.h"
#include "runtime/Format.h"
#include "store/Connection.h"
#include "toolkit/ucButton.h"

#include <QLineEdit>
#include <QPainter>

#include <SQLiteCpp/SQLiteCpp.h>

namespace {
const QSize ChartSize(738, 476);
constexpr int AWeek = 7;
constexpr int AYear = 365;
constexpr int Decades = 5;

/// The ten-year log with a weight on each day.
struct WeighedGround {
    Ground ground{true};

    WeighedGround() {
        SQLite::Transaction transaction(UserDB().Raw());
        UserDB().Raw().exec("DELETE FROM USER_WEIGHTS");
        SQLite::Statement insert(UserDB().Raw(),
                                 "INSERT INTO USER_WEIGHTS (UID, UDate, Weight) VALUES (?, ?, ?)");
        for (int day = 0; day < Ground::Days; ++day) {
            insert.bind(1, User::Current().UID);
            insert.bind(2, Ground::Day(day).toString(Qt::ISODate).toStdString());
            insert.bind(3, 150.5 + day * 11 % 60);
            insert.exec();
            insert.reset();
        }
        transaction.commit();
    }
};

/// A period of the log; successive runs use different ones if the log is long enough.
struct Days {
    QDate from, to;

    Days(int count, int run) {
        const int first = count == Ground::Days ? 0 : run * 37 % (Ground::Days - count);
        from = Ground::Day(first);
        to = from.addDays(count - 1);
    }
    std::string Where() const {
        return " WHERE UID=" + std::to_string(User::Current().UID) + " AND UDate BETWEEN '" +
               from.toString(Qt::ISODate).toStdString() + "' AND '" +
               to.toString(Qt::ISODate).toStdString() + "'";
    }
};

void BareLine(const Days& days) {
    SQLite::Database& users = UserDB().Raw();
    BareStore::Read(users,
                    "SELECT * FROM USER_WEIGHTS" + days.Where() + " AND Weight > 0 ORDER BY UDate");
    BareStore::Read(users, "SELECT Min(Weight), Max(Weight) FROM USER_WEIGHTS" + days.Where() +
                               " AND Weight > 0");
}

void BareReport(const Days& days) {
    SQLite::Database& users = UserDB().Raw();
    static const std::string sums = NutrientSumSQL(QStringLiteral("USER_FOODS")).toStdString();
    BareStore::Read(users, "SELECT Avg(Weight) FROM USER_WEIGHTS" + days.Where());
    BareStore::Read(users, sums + " FROM USER_FOODS" + days.Where());
    BareStore::Read(users, "SELECT Sum(Calories), Sum(Protein), Sum(TotalFat), Sum(carbs) "
                           "FROM USER_FOODS" +
                               days.Where());
    for (int chart = 0; chart < 2; ++chart)
        BareStore::Read(users, "SELECT DISTINCT UDate FROM USER_FOODS" + days.Where());
    BareLine(days);
}

void LineOurs(benchmark::State& state, int count) {
    const WeighedGround ground;
    ucLineChart chart;
    chart.resize(ChartSize);
    chart.show();
    int run = 0;
    for (auto _ : state) {
        const Days days(count, run++);
        chart.updateLineChart(days.from, days.to);
    }
}

void LineLimit(benchmark::State& state, int count) {
    const WeighedGround ground;
    int run = 0;
    for (auto _ : state)
        BareLine(Days(count, run++));
}

/// The ten years five times over, one after the other.
void RepeatToFiftyYears() {
    SQLite::Database& users = UserDB().Raw();
    users.exec("CREATE TEMP TABLE foods AS SELECT * FROM USER_FOODS;"
               "CREATE TEMP TABLE weights AS SELECT * FROM USER_WEIGHTS;"
               "UPDATE temp.foods SET RecID = NULL");
    SQLite::Transaction transaction(users);
    const std::string later =
        " SET UDate = date(UDate, '+" + std::to_string(Ground::Days) + " days')";
    for (int decade = 1; decade < Decades; ++decade)
        users.exec("UPDATE temp.foods" + later + "; UPDATE temp.weights" + later +
                   "; INSERT INTO USER_FOODS SELECT * FROM temp.foods;"
                   "INSERT INTO USER_WEIGHTS SELECT * FROM temp.weights");
    transaction.commit();
    users.exec("DROP TABLE temp.foods; DROP TABLE temp.weights");
}

/// A log of so many decades.
struct LongGround {
    WeighedGround ground;
    Days days{Ground::Days, 0};

    explicit LongGround(int decades) {
        if (decades == Decades)
            RepeatToFiftyYears();
        days.to = days.from.addDays(decades * Ground::Days - 1);
    }
};

void RefreshOurs(benchmark::State& state, int decades) {
    const LongGround log(decades);
    frmReport screen;
    screen.findChild<QLineEdit*>(QStringLiteral("txtStart"))
        ->setText(FormatShortDate(log.days.from));
    screen.findChild<QLineEdit*>(QStringLiteral("txtEnd"))->setText(FormatShortDate(log.days.to));
    auto* cmdRefresh = screen.findChild<ucButton*>(QStringLiteral("cmdRefresh"));
    for (auto _ : state)
        cmdRefresh->Activate();
}

void RefreshLimit(benchmark::State& state, int decades) {
    const LongGround log(decades);
    for (auto _ : state)
        BareReport(log.days);
}

void PaintOurs(benchmark::State& state) {
    const WeighedGround ground;
    ucLineChart chart;
    chart.resize(ChartSize);
    chart.updateLineChart(Ground::Day(0), Ground::Day(Ground::Days - 1));
    QImage surface(ChartSize, QImage::Format_RGB32);
    for (auto _ : state)
        chart.render(&surface);
}

/// A bare painter with the same pens and as many points: two lines and four dots for each day.
void PaintLimit(benchmark::State& state) {
    QImage surface(ChartSize, QImage::Format_RGB32);
    const Style& style = TheStyle();
    const auto at = [](int day) { return QPointF(96 + day * 2 / 15.0, 300 + day * 11 % 60 / 4.0); };
    for (auto _ : state) {
        surface.fill(style.paper);
        QPainter painter(&surface);
        painter.setRenderHint(QPainter::Antialiasing);
        for (int pen = 3; pen < 5; ++pen)
            for (int day = 1; day < Ground::Days; ++day) {
                painter.setPen(
                    QPen(style.ln[pen].colour, style.ln[pen].width, Qt::SolidLine, Qt::RoundCap));
                painter.drawLine(at(day - 1), at(day));
                painter.setPen(Qt::NoPen);
                for (const int width : {style.ln[pen].width + 4, 3, 2})
                    if (pen == 4 || width > 3) {
                        painter.setBrush(style.ln[pen].colour);
                        painter.drawEllipse(at(day - 1), width / 2.0, width / 2.0);
                    }
            }
    }
}

[[maybe_unused]] const bool aims = [] {
    for (const char* span : {"7 days", "a year", "ten years"})
        Table::Aim(std::string("report, line, ") + span, 2);
    Table::Aim("report, refresh, ten years", 1);
    Table::Aim("report, refresh, fifty years", 1);
    Table::Aim("report, line painted, ten years", 2);
    return true;
}();
} // namespace

BENCHMARK_CAPTURE(LineOurs, week, AWeek)->Name("report, line, 7 days/ours");
BENCHMARK_CAPTURE(LineLimit, week, AWeek)->Name("report, line, 7 days/limit");
BENCHMARK_CAPTURE(LineOurs, year, AYear)->Name("report, line, a year/ours");
BENCHMARK_CAPTURE(LineLimit, year, AYear)->Name("report, line, a year/limit");
BENCHMARK_CAPTURE(LineOurs, decade, Ground::Days)->Name("report, line, ten years/ours");
BENCHMARK_CAPTURE(LineLimit, decade, Ground::Days)->Name("report, line, ten years/limit");
BENCHMARK_CAPTURE(RefreshOurs, ten, 1)->Name("report, refresh, ten years/ours");
BENCHMARK_CAPTURE(RefreshLimit, ten, 1)->Name("report, refresh, ten years/limit");
BENCHMARK_CAPTURE(RefreshOurs, fifty, Decades)->Name("report, refresh, fifty years/ours");
BENCHMARK_CAPTURE(RefreshLimit, fifty, Decades)->Name("report, refresh, fifty years/limit");
BENCHMARK(PaintOurs)->Name("report, line painted, ten years/ours");
BENCHMARK(PaintLimit)->Name("report, line painted, ten years/limit");
