#pragma once

#include "recipes/net/ExchangeClient.h"
#include "toolkit/Dialog.h"

#include <functional>

class QLineEdit;
class ucButton;

/// What the two dialogs that speak with the recipe exchange share: fields with their captions, the
/// button that starts and Cancel, and how they stand while the exchange is waited for. A mouse move
/// over anything but a button takes the hover look off the buttons.
class ExchangeDialog : public Dialog {
    Q_OBJECT

public:
    ExchangeClient& Exchange() { return exchange_; }
    void reject() override; ///< not while it waits

protected:
    ExchangeDialog(const QString& name, const QString& title, QSize size, QWidget* owner);

    /// A caption and beside it a field, both from `top` on; gives the field.
    QLineEdit* AddField(int top, const char* label, const char* caption, const char* field);
    /// The row of buttons, in the tab order behind what is there.
    ucButton* AddButtons(const char* start, const char* caption);
    void Watch(QWidget* control); ///< mouse moves over it count as moves over the form
    int FieldLeft() const;

    /// Runs `work` with the starting button disabled and the pointer busy. Gives whether it went
    /// through.
    bool Wait(const std::function<void()>& work);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void SetWaiting(bool waiting);

    ExchangeClient exchange_;
    ucButton* start_ = nullptr;
    bool waiting_ = false;
};
