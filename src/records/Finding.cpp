#include "records/Finding.h"

QString Finding::Line() const {
    const QString found = rows == 0 ? problem
                                    : QString::number(rows) + (rows == 1 ? " row " : " rows ") +
                                          problem + " (the first has the key " + first + u')';
    const QString after =
        repair.isEmpty() ? advice : QStringLiteral("`check --repair` puts it right.");
    return where + ": " + found + ". " + meaning + u' ' + after;
}
