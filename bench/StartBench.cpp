#include "StartBench.h"

#include "Ground.h"
#include "SpeedFile.h"

#include "core/StyleChoice.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {
constexpr int Runs = 11;

struct Medians {
    double milliseconds;
    double megabytes;
};

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

Medians Measure(const QString& probe, const QStringList& arguments) {
    std::vector<double> times;
    std::vector<double> sizes;
    for (int run = 0; run < Runs; ++run) {
        QProcess process;
        QElapsedTimer clock;
        clock.start();
        process.start(QCoreApplication::applicationDirPath() + u'/' + probe, arguments);
        process.waitForReadyRead();
        times.push_back(double(clock.nsecsElapsed()) / 1e6);
        process.waitForFinished();
        sizes.push_back(process.readAllStandardOutput().trimmed().toDouble() / 1024);
    }
    return {Median(times), Median(sizes)};
}

struct StyleRow {
    int choice; ///< its place in StyleChoice::All
    const char* start;
    const char* memory;
};

constexpr StyleRow StyleRows[] = {
    {0, "start to the painted frame", "memory with the home screen open"},
    {2, "start to the painted frame, dark", "memory with the home screen, dark"},
    {3, "start to the frame, high contrast", "memory with the home, high contrast"}};

void Report(const char* work, const char* unit, double ours, double bare, double mostMore) {
    const QString named = QStringLiteral("%1 (%2)").arg(QLatin1String(work), QLatin1String(unit));
    std::printf("%-46s %12.1f %12.1f %8.1f %8.1f\n", qPrintable(named), ours, bare, ours - bare,
                mostMore);
    SpeedFile::Add(work, unit, ours, bare, mostMore);
}
} // namespace

void MeasureStart() {
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    qputenv("XDG_RUNTIME_DIR", settings.path().toLocal8Bit());
    Ground::LayOut(settings.path());
    const Medians bare = Measure(QStringLiteral("bare_window"), {});
    std::printf("\n%-46s %12s %12s %8s %8s\n", "whole process, median of 11", "ours", "bare window",
                "more", "aim");
    for (const StyleRow& row : StyleRows) {
        StyleChoice::Keep(row.choice);
        const Medians ours = Measure(QStringLiteral("start_probe"), {settings.path()});
        Report(row.start, "ms", ours.milliseconds, bare.milliseconds, 100);
        Report(row.memory, "MB", ours.megabytes, bare.megabytes, 30);
    }
}
