#pragma once

#include "recipes/ui/ExchangeDialog.h"

/// The modal dialog that copies a recipe from the exchange, by its ID. It closes when it has done
/// so and stays open for another try when it has not.
class frmImport : public ExchangeDialog {
    Q_OBJECT

public:
    explicit frmImport(QWidget* owner = nullptr);

private:
    void cmdGo_Click();
    QString Import(); ///< gives the message that follows; closes the dialog on success

    QLineEdit* txtRecID_ = nullptr;
};
