#pragma once

#include "recipes/net/ExchangeClient.h"
#include "toolkit/Dialog.h"

#include <functional>

class QLineEdit;
class ucButton;

/// What the two dialogs of the recipe exchange share: fields with captions, the starting button and
/// Cancel, and the state while they wait for the exchange. A mouse move over anything but a button
/// takes the hover look off the buttons.
class ExchangeDialog : public Dialog {
    Q_OBJECT

public:
    ExchangeClient& Exchange() { return exchange_; }
    void reject() override; ///< not while it waits

protected:
    ExchangeDialog(const QString& name, const QString& title, QSize size, QWidget* owner);

    /// Adds a caption with a field beside it at `top`; gives the field.
    QLineEdit* AddField(int top, const char* label, const char* caption, const char* field);
    /// Adds the row of buttons, last in the tab order; gives the starting button.
    ucButton* AddButtons(const char* start, const char* caption);
    void Watch(QWidget* control); ///< mouse moves over it then count as moves over the form
    int FieldLeft() const;

    /// Runs `work` with the starting button disabled and the pointer busy. False if it failed.
    bool Wait(const std::function<void()>& work);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void SetWaiting(bool waiting);

    ExchangeClient exchange_;
    ucButton* start_ = nullptr;
    bool waiting_ = false;
};
