#pragma once

#include "toolkit/Dialog.h"

/// The first window if there is no profile yet. It leads to the profile screen. Closing it in
/// another way ends the process, because no other window is open.
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
