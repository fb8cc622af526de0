#pragma once

#include <QDate>
#include <QString>

/// The days from one to another, both counted. With the end before the start there are none.
struct Period {
    QDate from, to;

    QString Condition() const; ///< on `UDate`, for a statement
};
