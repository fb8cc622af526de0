#include "tour/Guide.h"
#include "tour/Walk.h"

#include "core/Appearance.h"
#include "core/Application.h"
#include "drawing/Style.h"
#include "toolkit/ApplyStyle.h"

#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

namespace {
/// Each is a start of the program in a process of its own.
struct Stage {
    const char* name;
    void (Walk::*go)();
};
constexpr Stage Stages[] = {{"first", &Walk::Go},
                            {"again", &Walk::GoAgain},
                            {"friend", &Walk::GoAsFriend},
                            {"blocked", &Walk::GoWithoutSnapshots},
                            {"damaged", &Walk::GoDamaged}};

/// Starts the program in a process of its own, as a person does.
bool Start(const QString& stage, const QString& pictures, const QString& folder) {
    QProcess start;
    start.setProcessChannelMode(QProcess::ForwardedChannels);
    start.start(QCoreApplication::applicationFilePath(), {pictures, folder, stage});
    return start.waitForFinished(-1) && start.exitStatus() == QProcess::NormalExit &&
           start.exitCode() == 0;
}

void TakeFont(QApplication& application, const QString& family) {
    if (family.isEmpty())
        return;
    SetFontFamily(family);
    ApplyStyle(application);
}

/// The style of the person who walks it does not count.
void TakeStyle(QApplication& application, const QString& name) {
    static const QHash<QString, StyleKind> kinds{
        {QStringLiteral("dark"), StyleKind::Dark},
        {QStringLiteral("contrast"), StyleKind::HighContrast}};
    UseStyle(kinds.value(name, StyleKind::Light));
    ApplyStyle(application);
}

int WalkStage(const QStringList& arguments) {
    Guide guide(arguments[1]);
    Walk walk(guide, arguments[2]);
    for (const Stage& stage : Stages)
        if (arguments[3] == QLatin1String(stage.name))
            (walk.*stage.go)();
    return guide.Failures() ? 1 : 0;
}
} // namespace

/// tour PICTURES: walks through all real screens in a fresh folder, from the agreement to a month
/// of logged foods. Then it starts the program again and finds everything there. A friend with a
/// folder of her own imports the recipe that was sent. At last it starts where no snapshot can be
/// made, and with a damaged file. Pictures go to the folder PICTURES.
/// In the environment, TOUR_FONT names another font than the delivered one and TOUR_DAY another
/// day. TOUR_STYLE is "dark" or "contrast" for the tour in that style; otherwise it is light. Locale
/// and time zone are those of the environment, too.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    const QTemporaryDir fresh;
    const bool isStage = argc == 4; // it has the environment of the whole tour
    for (const char* folder : {"XDG_RUNTIME_DIR", "XDG_DATA_HOME"})
        if (!isStage)
            qputenv(folder, fresh.path().toLocal8Bit());
    Application application(argc, argv);
    Appearance::Take();
    QApplication::setQuitOnLastWindowClosed(false);
    TakeStyle(application, qEnvironmentVariable("TOUR_STYLE"));
    TakeFont(application, qEnvironmentVariable("TOUR_FONT"));
    const QStringList arguments = QCoreApplication::arguments();
    if (isStage)
        return WalkStage(arguments);
    const QString pictures = arguments.value(1, fresh.filePath(QStringLiteral("pictures")));
    const bool through = std::ranges::all_of(Stages, [&](const Stage& stage) {
        return Start(QLatin1String(stage.name), pictures, fresh.path());
    });
    std::printf("%s\n", through ? "the tour went through" : "the tour failed");
    return through ? 0 : 1;
}
