#pragma once

#include "toolkit/LineField.h"

/// The text field of the day's weight. It signals when the person leaves it. Another window in
/// front or an open menu does not count: the person comes back to the field.
class WeightField : public LineField {
    Q_OBJECT

public:
    explicit WeightField(QWidget* parent = nullptr);

    bool HoldsUnsaved() const { return isModified(); }
    void Leave(); ///< as if the focus left; does nothing if the field is not being edited

Q_SIGNALS:
    void Left();

protected:
    void focusInEvent(QFocusEvent*) override;
    void focusOutEvent(QFocusEvent*) override;

private:
    bool entered_ = false;
};
