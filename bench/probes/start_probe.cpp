#include "probes/Probe.h"

#include "core/Appearance.h"
#include "core/Application.h"
#include "core/Flow.h"
#include "core/Navigation.h"
#include "core/Screens.h"
#include "runtime/AppPath.h"

/// start_probe FOLDER: a complete start in that folder, with the agreement accepted and the splash
/// closed at once, until the frame is painted. Then it quits, as a person does.
int main(int argc, char** argv) {
    Application application(argc, argv);
    Appearance::ReadAhead();
    SetApplicationPath(QString::fromLocal8Bit(argv[1]));
    QTimer splash;
    splash.callOnTimeout([] {
        if (QWidget* modal = QApplication::activeModalWidget())
            modal->close();
    });
    splash.start(0);
    RegisterScreens(TheNavigation());
    TheNavigation().InstallSeams();
    Flow::Main(application.Instance());
    splash.stop();
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == QStringLiteral("frmHOME"))
            new ReportFirstPaint(window, &Flow::QuitApp);
    return QApplication::exec();
}
