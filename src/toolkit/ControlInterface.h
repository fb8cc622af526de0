#pragma once

#include "toolkit/SpokenControl.h"

#include <QAccessibleWidget>

/// What assistive tools see of a drawn control. Its name is `accessibleName`; if that is empty, the
/// caption; if that is empty too, the tip. Its description is the tip, unless that says the same.
/// Its press action calls Activate, by PressLater. A control with a state or a value of its own
/// derives from this class.
class ControlInterface : public QAccessibleWidget {
public:
    explicit ControlInterface(SpokenControl* control);

    QString text(QAccessible::Text kind) const override;
    QStringList actionNames() const override;
    void doAction(const QString& name) override;

private:
    QString Name() const;
    bool Presses() const;
};
