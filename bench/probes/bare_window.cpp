#include "probes/Probe.h"

#include <QApplication>

/// A bare window of the toolkit library: the limit for start time and memory.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    window.resize(850, 620);
    ReportFirstPaint report(&window, &QApplication::quit);
    window.show();
    return QApplication::exec();
}
