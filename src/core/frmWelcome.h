#pragma once

#include "toolkit/Dialog.h"

/// The first window of a program that has no profile yet. It leads to the profile screen; closed in
/// another way it ends the process, as no other window stands open.
class frmWelcome : public Dialog {
    Q_OBJECT

public:
    frmWelcome();

    static void Open(); ///< shows it, not modally

    void reject() override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void LayText(const QRect& place);
    void Begin();
};
