#pragma once

#include <QStringList>

/// One input of the monkey, as far as it may explain what happens after it.
struct Action {
    enum Kind { Press, Key, Text, Drag, Move, Wheel, Close, Wait };

    Kind kind = Wait;
    QString detail;       ///< the key, the text, the place
    QString window;       ///< that took the input; of an alert its message, too
    QString screen;       ///< in front in the frame
    QStringList controls; ///< at the place of the input and with the focus, each up to its window

    QString Line() const;
    /// Neither the pointer nor the wheel nor time changes a record; they take the focus from no
    /// field.
    bool CanChange() const { return kind != Move && kind != Wheel && kind != Wait; }
};
