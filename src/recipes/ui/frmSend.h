#pragma once

#include "recipes/ui/ExchangeDialog.h"

class QCheckBox;

/// The modal dialog that sends a recipe to a friend and, if ticked, publishes it. It keeps the two
/// addresses for the next time.
class frmSend : public ExchangeDialog {
    Q_OBJECT

public:
    explicit frmSend(qint32 RecipeID, QWidget* owner = nullptr);

private:
    void AddShare(int top);
    void cmdSend_Click();
    void startSend();
    QString Reply(); ///< the answer of the exchange, or the message of a failure

    qint32 recipeID_;
    QLineEdit* txtEmail_ = nullptr;
    QLineEdit* txtFrom_ = nullptr;
    QCheckBox* ckShare_ = nullptr;
};
