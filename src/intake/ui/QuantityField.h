#pragma once

#include "toolkit/LineField.h"

class ucAte;

/// The field for the quantity of a line, to the left of its trash can. The line owns it, as long as
/// a person changes the quantity. Enter and leaving the field ask its host to keep the number,
/// Escape closes it. Another window in front or an open menu does not count as leaving: the person
/// comes back to the field.
class QuantityField : public LineField {
    Q_OBJECT

public:
    QuantityField(ucAte* line, double quantity);

    qint32 RecID() const { return recID_; }
    double Old() const { return old_; }
    double Quantity() const; ///< 0 if the text is no number
    void Close();            ///< the line gets the focus, unless it is elsewhere already

Q_SIGNALS:
    void Entered();
    void Left();

protected:
    void keyPressEvent(QKeyEvent*) override;
    void focusOutEvent(QFocusEvent*) override;

private:
    ucAte* line_;
    qint32 recID_;
    double old_;
    bool open_ = true;
};
