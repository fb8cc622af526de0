#include "runtime/Counted.h"

QString Counted(qint64 count, const char* one, const char* many) {
    return QString::number(count) + u' ' + QLatin1String(count == 1 ? one : many);
}
