#include "runtime/AppPath.h"

#include <QCoreApplication>

#include <cstdio>

/// path_teller [FOLDER]: prints the folder of the delivered files and that of the records, each in
/// a line. FOLDER is set as a test does.
int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    if (argc > 1)
        SetApplicationPath(QString::fromLocal8Bit(argv[1]));
    std::puts(qPrintable(ApplicationPath()));
    std::puts(qPrintable(RecordsPath()));
    return 0;
}
