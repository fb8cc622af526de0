#pragma once

#include "core/CoreTest.h"

#include <Qt>

/// A person works the real screens with keys alone. The catalogue holds oats and butter.
class KeysAlone : public CoreTest {
protected:
    void SetUp() override;

    static void Press(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier);
    static void PressControl(Qt::Key key) { Press(key, Qt::ControlModifier); }
    static void Type(const QString& text);        ///< in place of what the field holds
    static void TabTo(const QString& name);       ///< presses Tab until that control has the focus
    static void TabAndPress(const QString& name); ///< presses Return there
    /// Presses Return on that control, which opens a dialog, and works in it.
    static void TabAndOpen(const QString& name, const std::function<void()>& within);
    /// Runs `open`, which opens a dialog, and works in it. Escape closes what is still open.
    static void InDialog(const std::function<void()>& open, const std::function<void()>& within);
    static void Search(const QString& words); ///< in a search dialog that has the keyboard
    static void WaitForMenu(const QString& name);

    void Log(const QString& meal); ///< oats, on the chosen day
    void AddRecipe();              ///< a soup of oats

    static QString Front();
    static QDate ChosenDay();
    const QDate today_{2026, 11, 21};
    qint32 person_ = 0;

private:
    static QWidget* Focus(); ///< what the next key goes to
};
