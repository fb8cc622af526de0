#include "probes/Probe.h"

#include <QApplication>

/// A bare window of the toolkit library: what start time and memory are set against.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    window.resize(850, 620);
    ReportFirstPaint report(&window);
    window.show();
    return QApplication::exec();
}
