#pragma once

#include <QObject>

/// Takes no input from the user while it lives: keys, mouse, touch and the closing of windows are
/// dropped, not put off, so that a button pressed in impatience is not pressed once more
/// afterwards. The windows go on painting.
class InputHold : public QObject {
    Q_OBJECT

public:
    InputHold();

    bool eventFilter(QObject* watched, QEvent* event) override;
};
