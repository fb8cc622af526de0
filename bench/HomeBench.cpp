#include "Ground.h"
#include "Table.h"

#include "core/frmMain.h"
#include "runtime/AppState.h"

#include <QImage>

namespace {
constexpr QSize NestSize(766, 562);
constexpr double OneFrame = 1.0 / 60; // seconds

void RepaintOurs(benchmark::State& state) {
    const Ground ground(true);
    App().CurrentDate = Ground::Day(Ground::Days / 2);
    App().TipOfTheDay = QStringLiteral("A handful of nuts is about 170 kilocalories. Weigh one "
                                       "handful once, and you will judge the next hundred well.");
    frmMain home;
    home.resize(NestSize);
    home.DoWinInit();
    QImage surface(NestSize, QImage::Format_RGB32);
    for (auto _ : state)
        home.render(&surface);
}

void RepaintLimit(benchmark::State& state) {
    for (auto _ : state)
        state.SetIterationTime(OneFrame);
}

[[maybe_unused]] const bool aims = [] {
    Table::Aim("repaint of the home screen, beside one frame", 1);
    return true;
}();
} // namespace

BENCHMARK(RepaintOurs)->Name("repaint of the home screen, beside one frame/ours");
BENCHMARK(RepaintLimit)
    ->Name("repaint of the home screen, beside one frame/limit")
    ->UseManualTime();
