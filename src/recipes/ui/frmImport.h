#pragma once

#include "recipes/ui/ExchangeDialog.h"

/// The modal dialog that copies a recipe from the exchange by its ID. It closes on success and
/// stays open for another try after a failure.
class frmImport : public ExchangeDialog {
    Q_OBJECT

public:
    explicit frmImport(QWidget* owner = nullptr);

private:
    void cmdGo_Click();
    QString Import(); ///< gives the message to show; closes the dialog on success

    QLineEdit* txtRecID_ = nullptr;
};
