#include "Ground.h"
#include "Table.h"

#include "core/Navigation.h"
#include "core/Screens.h"
#include "core/frmHOME.h"
#include "runtime/AppState.h"
#include "runtime/ScreenTable.h"
#include "runtime/Seams.h"

#include <QCoreApplication>
#include <QImage>

namespace {
constexpr QSize NestSize(766, 562);
constexpr double OneFrame = 1.0 / 60; // seconds

/// The frame with all screens, on ten years of records. A screen that is left is closed.
class OpenFrame {
public:
    OpenFrame() {
        App().AppInfo.FAST = false;
        App().CurrentDate = Ground::Day(Ground::Days / 2);
        TheNavigation().InstallSeams();
        RegisterScreens(TheNavigation());
        ::ShowHome();
    }
    ~OpenFrame() { TheNavigation().Reset(); }

    /// The profile would keep the screen before it.
    void Leave(const ScreenRow& row) {
        const bool home = &row == &Screens::Main;
        ::ShowScreen(QLatin1String(home ? Screens::FoodList.name : Screens::Main.name));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

private:
    Ground ground_{true};
};

/// Made, filled and painted.
void OpenOurs(benchmark::State& state, const ScreenRow& row) {
    OpenFrame frame;
    QImage surface(NestSize, QImage::Format_RGB32);
    frame.Leave(row);
    for (auto _ : state) {
        auto* screen = qobject_cast<QWidget*>(::ShowScreen(QLatin1String(row.name)));
        screen->render(&surface);
        state.PauseTiming();
        frame.Leave(row);
        state.ResumeTiming();
    }
}

void OpenLimit(benchmark::State& state) {
    for (auto _ : state)
        state.SetIterationTime(OneFrame);
}

[[maybe_unused]] const bool rows = [] {
    for (const ScreenRow* row : Screens::All) {
        const std::string work = std::string("open ") + row->name + ", beside one frame";
        benchmark::RegisterBenchmark((work + "/ours").c_str(), OpenOurs, *row);
        benchmark::RegisterBenchmark((work + "/limit").c_str(), OpenLimit)->UseManualTime();
        Table::Aim(work, 2);
    }
    return true;
}();
} // namespace
