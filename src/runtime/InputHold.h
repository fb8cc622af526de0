#pragma once

#include <QObject>

/// While it lives, the program takes no input: keys, mouse, touch and window closing are dropped,
/// not queued. So a second, impatient press has no effect later. Windows still paint.
class InputHold : public QObject {
    Q_OBJECT

public:
    InputHold();

    bool eventFilter(QObject* watched, QEvent* event) override;
};
