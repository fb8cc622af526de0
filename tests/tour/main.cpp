#include "tour/Guide.h"
#include "tour/Walk.h"

#include "core/Application.h"
#include "drawing/Style.h"
#include "toolkit/ApplyStyle.h"

#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>

namespace {
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

int WalkStage(const QStringList& arguments) {
    Guide guide(arguments[1]);
    Walk walk(guide, arguments[2]);
    if (arguments[3] == u"first")
        walk.Go();
    else if (arguments[3] == u"again")
        walk.GoAgain();
    else
        walk.GoAsFriend();
    return guide.Failures() ? 1 : 0;
}
} // namespace

/// tour PICTURES: walks through all real screens in a fresh folder, from the agreement to a month
/// of logged foods. Then it starts the program again and finds everything there. A friend with a
/// folder of her own imports the recipe that was sent. Pictures go to the folder PICTURES.
/// TOUR_FONT in the environment names another font than the delivered one.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    const QTemporaryDir fresh;
    for (const char* folder : {"XDG_RUNTIME_DIR", "XDG_DATA_HOME"})
        qputenv(folder, fresh.path().toLocal8Bit());
    Application application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    TakeFont(application, qEnvironmentVariable("TOUR_FONT"));
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 4)
        return WalkStage(arguments);
    const QString pictures = arguments.value(1, fresh.filePath(QStringLiteral("pictures")));
    const bool through = Start(QStringLiteral("first"), pictures, fresh.path()) &&
                         Start(QStringLiteral("again"), pictures, fresh.path()) &&
                         Start(QStringLiteral("friend"), pictures, fresh.path());
    std::printf("%s\n", through ? "the tour went through" : "the tour failed");
    return through ? 0 : 1;
}
