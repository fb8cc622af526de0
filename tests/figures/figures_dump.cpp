// Prints the figures of the cases in a file, a line for each group, as the program calculates and
// shows them. compare.py writes the file and knows what the lines must be.

#include "figures/CaseLine.h"
#include "figures/FigureLine.h"
#include "figures/LogFigures.h"
#include "figures/SingleFigures.h"
#include "runtime/Seams.h"
#include "toolkit/ApplyStyle.h"

#include <QApplication>
#include <QFile>

#include <cstdio>
#include <map>

#include <sqlite3.h>

namespace {

using Calculate = void (*)(const CaseLine&);

const std::map<QByteArray, Calculate> Single{
    {"text", &SingleFigures::OfText},
    {"number", &SingleFigures::OfNumber},
    {"days", &SingleFigures::OfDays},
    {"person", &SingleFigures::OfPerson},
};

void Take(const CaseLine& line, LogFigures& log) {
    if (const auto single = Single.find(line.Kind()); single != Single.end())
        single->second(line);
    else if (!log.Take(line))
        qFatal("unknown case: %s", line.Kind().constData());
}

void PrintStore() {
    FigureLine("store") << sqlite3_libversion_number();
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    ApplyStyle(application);
    QApplication::setQuitOnLastWindowClosed(false);
    TheSeams().ShowAlert = [](const QString&, QObject*, bool) { return true; };
    QFile cases(application.arguments().value(1));
    if (!cases.open(QIODevice::ReadOnly))
        qFatal("use: figures_dump CASES");
    LogFigures log;
    PrintStore();
    log.Shown().PrintMeasures();
    while (!cases.atEnd())
        Take(CaseLine(cases.readLine().chopped(1)), log);
    return 0;
}
