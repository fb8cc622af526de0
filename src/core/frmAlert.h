#pragma once

#include "toolkit/Dialog.h"

class QObject;
class ucButton;

/// The message dialog of the program. Its size is fixed; a text that does not fit can be scrolled.
class frmAlert : public Dialog {
    Q_OBJECT

public:
    frmAlert(const QString& message, bool showCancel, QWidget* owner);

    bool Result() const { return result_; } ///< true after OK, otherwise false

    /// Shows a message modally over the owner's window and returns the result. `owner` may be null.
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
