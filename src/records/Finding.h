#pragma once

#include <QString>

/// One thing that a check has found.
struct Finding {
    QString where;    ///< the table or the file
    QString problem;  ///< "rows belong to no profile"
    qint64 rows = 0;  ///< how many; 0: it is not about rows
    QString first;    ///< the key of the first of them
    QString meaning;  ///< what follows from it
    QString advice;   ///< what the user can do
    QString repair{}; ///< the statement that puts it right; empty: the user decides

    QString Line() const;
};
