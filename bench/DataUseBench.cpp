#include "DataUseBench.h"

#include "Ground.h"
#include "SpeedFile.h"

#include "runtime/AppPath.h"
#include "store/Connection.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {
constexpr int Runs = 11;
constexpr double MostMilliseconds = 100;

double Milliseconds(const QStringList& arguments) {
    QProcess process;
    QElapsedTimer clock;
    clock.start();
    process.start(QStringLiteral(HALVANE_BUILD_DIR "/src/halvane-data"),
                  QStringList{QStringLiteral("--folder"), ApplicationPath()} + arguments);
    process.waitForFinished();
    if (process.exitCode() != 0)
        std::printf("%s", process.readAllStandardError().constData());
    return double(clock.nsecsElapsed()) / 1e6;
}

double Median(const QStringList& arguments) {
    std::vector<double> times;
    for (int run = 0; run < Runs; ++run)
        times.push_back(Milliseconds(arguments));
    std::ranges::sort(times);
    return times[Runs / 2];
}

std::vector<QStringList> Commands() {
    const QString day = Ground::Day(Ground::Days - 2).toString(Qt::ISODate);
    const QString next = Ground::Day(Ground::Days - 1).toString(Qt::ISODate);
    return {{"log", "16096", "--meal", "Lunch", "--date", day},
            {"weigh", "150", "--date", day},
            {"copy-day", day, next},
            {"copy-meal", "Lunch", day, next},
            {"show", day},
            {"search", "butter", "salted"},
            {"why", "log:40000"}};
}
} // namespace

void MeasureUse() {
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    qputenv("XDG_DATA_HOME", settings.path().toLocal8Bit());
    const Ground ground(true);
    UserDB().Close();
    FoodDB().Close();
    std::printf("\n%-46s %12s %8s\n", "halvane-data at ten years, median of 11", "ours", "aim");
    for (const QStringList& command : Commands()) {
        const double median = Median(command);
        std::printf("%-46s %12.1f %8.0f\n", qPrintable(command.first() + " (ms)"), median,
                    MostMilliseconds);
        SpeedFile::Add("halvane-data " + command.first(), "ms", median, {}, MostMilliseconds);
    }
}
