#include "records/RecordsFolder.h"
#include "records/RecordsLock.h"

#include <QCoreApplication>
#include <QThread>

#include <cstdio>

/// lock_holder FOLDER [MILLISECONDS]: holds the lock of the records as a command does, for so long
/// or until it is killed. It prints a line once it has the lock.
int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    if (argc < 2)
        return 2;
    const RecordsLock lock{RecordsFolder(QString::fromLocal8Bit(argv[1]))};
    std::puts("held");
    std::fflush(stdout);
    constexpr unsigned long forever = 60'000;
    QThread::msleep(argc > 2 ? QByteArray(argv[2]).toULong() : forever);
    return 0;
}
