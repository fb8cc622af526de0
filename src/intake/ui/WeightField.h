#pragma once

#include "toolkit/LineField.h"

/// The text field of the day's weight. It tells when the person leaves it, and not when another
/// window comes in front or a menu opens: the person is still in it then.
class WeightField : public LineField {
    Q_OBJECT

public:
    explicit WeightField(QWidget* parent = nullptr);

    bool HoldsUnsaved() const { return isModified(); }
    void Leave(); ///< as if the focus went; nothing where the field is not being edited

Q_SIGNALS:
    void Left();

protected:
    void focusInEvent(QFocusEvent*) override;
    void focusOutEvent(QFocusEvent*) override;

private:
    bool entered_ = false;
};
