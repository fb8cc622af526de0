#include "commands/Program.h"

#include <QCoreApplication>

#include <iostream>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    return RunCommand(QCoreApplication::arguments(), std::cout, std::cerr);
}
