#include "records/Finding.h"

QString Finding::Line() const {
    const QString found = rows == 0 ? problem
                                    : "rows that " + problem + ": " + QString::number(rows) +
                                          " (the first has the key " + first + u')';
    const QString after =
        repair.isEmpty() ? advice : QStringLiteral("`check --repair` puts it right.");
    return where + ": " + found + ". " + meaning + u' ' + after;
}
