#pragma once

#include "toolkit/Dialog.h"

/// The agreement, shown at start until it has been accepted. Any way out but Accept declines it.
class frmEULA : public Dialog {
    Q_OBJECT

public:
    frmEULA();

    /// Shows the agreement modally. True where it was accepted, which is then remembered.
    static bool Ask();

private:
    void LayText(const QRect& place);
    void Accept();
};
