#pragma once

#include "toolkit/Dialog.h"

/// The agreement, shown at start until it is accepted. Every way out except Accept declines it.
class frmEULA : public Dialog {
    Q_OBJECT

public:
    frmEULA();

    /// Shows the agreement modally. True if the user accepts it, which is remembered.
    static bool Ask();

private:
    void LayText(const QRect& place);
    void Accept();
};
