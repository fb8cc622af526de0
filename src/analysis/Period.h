#pragma once

#include <QDate>
#include <QString>

/// The days from the first to the last, both included. If the last lies before the first, there are
/// none.
struct Period {
    QDate from, to;

    QString Condition() const; ///< the SQL condition on `UDate`
};
