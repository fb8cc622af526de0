#include "monkey/Life.h"
#include "monkey/Session.h"

#include "core/Appearance.h"
#include "core/Application.h"

#include <QElapsedTimer>

#include <cstdio>

/// monkey [SECONDS [SEED]]: uses the whole program at random for so long, in sessions with the
/// seeds SEED, SEED + 1 and so on; at least one. `monkey 0 SEED` repeats a session. A finding is
/// printed with the inputs before it, and the exit code is 1.
namespace {
int RunSessions(const QStringList& arguments) {
    const qint64 seconds = arguments.value(1, QStringLiteral("0")).toLongLong();
    quint32 seed = arguments.value(2, QStringLiteral("1")).toUInt();
    int found = 0;
    QElapsedTimer clock;
    clock.start();
    do {
        found += Session(seed++).Run() ? 0 : 1;
        std::fflush(stdout);
    } while (clock.elapsed() < seconds * 1000);
    const Session::Tally& total = Session::Total();
    std::printf(
        "%d starts, %lld inputs, %lld rows written, %lld alerts; %d sessions with findings, "
        "up to the seed %u\n",
        total.lives, total.inputs, total.changes, total.alerts, found, seed - 1);
    return found > 0 ? 1 : 0;
}
} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Application application(argc, argv);
    Appearance::Take();
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == u"--live")
        return Life(application, arguments[2]).Run(arguments[3].toUInt(), arguments[4].toInt());
    return RunSessions(arguments);
}
