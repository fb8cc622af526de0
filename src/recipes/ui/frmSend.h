#pragma once

#include "recipes/ui/ExchangeDialog.h"

class QCheckBox;

/// The modal dialog that sends a recipe to a friend and, if asked to, publishes it. The two
/// addresses are kept from one send to the next.
class frmSend : public ExchangeDialog {
    Q_OBJECT

public:
    explicit frmSend(qint32 RecipeID, QWidget* owner = nullptr);

private:
    void AddShare(int top);
    void cmdSend_Click();
    void startSend();
    QString Reply(); ///< of the exchange, or what is said instead

    qint32 recipeID_;
    QLineEdit* txtEmail_ = nullptr;
    QLineEdit* txtFrom_ = nullptr;
    QCheckBox* ckShare_ = nullptr;
};
