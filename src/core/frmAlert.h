#pragma once

#include "toolkit/Dialog.h"

class QObject;
class ucButton;

/// The one message of the program, in place of the platform's message box. Its size is fixed: a
/// text that does not fit can be scrolled.
class frmAlert : public Dialog {
    Q_OBJECT

public:
    frmAlert(const QString& message, bool showCancel, QWidget* owner);

    bool Result() const { return result_; } ///< True after OK, False after any other way out

    /// Shows a message modally over the window of its owner, which may be null, and gives the
    /// result.
    static bool Ask(const QString& message, QObject* owner, bool showCancel);

protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void LayButtons(bool showCancel);
    void LayMessage(const QRect& place, const QString& message);

    ucButton* cmdOK_;
    ucButton* cmdCancel_;
    QRect picture_;
    bool result_ = false;
};
