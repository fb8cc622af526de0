#pragma once

#include "support/HalvaneTest.h"

#include "toolkit/ScreenForm.h"

#include <QHash>
#include <QStringList>

/// What the screens of a test did, in order: "frmDay made", "frmDay DoWinInit", ...
QStringList& ScreenLog();

/// A screen that records the calls to it.
class LoggedScreen : public ScreenForm {
public:
    LoggedScreen(const QString& name, const QString& title, QWidget* parent);
    ~LoggedScreen() override;
    void BeforeShow() override;
    void DoWinInit() override;

    static inline QString failing; ///< name of the screen whose DoWinInit fails

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void Note(const char* what);
};

/// A fixture with the real navigation and the real frame, and screens that record their calls.
class CoreTest : public HalvaneTest {
protected:
    void SetUp() override;
    void TearDown() override;

    /// Copies the delivered files beside the program, without opening them.
    void Deliver();
    void WriteFile(const QString& name, const QByteArray& bytes);
    QByteArray ReadFile(const QString& name);
    void AddLoggedScreen(const QString& name, const QString& title);

    /// Runs the start. `answers` holds, by object name, how to answer each modal window. By default
    /// the splash is clicked away and the agreement accepted.
    int RunMain();

    /// Runs a step that fails, accepts the message that ends the program, and returns its text.
    QString MessageOf(const std::function<void()>& step);

    /// The message with which the program ended during some work; empty if there was none.
    QString EndingDuring(const std::function<void()>& work);
    /// Runs it in the handler of an event, as a screen does.
    static void InEvent(const std::function<void()>& work);

    static void ChooseFromMenu(int index); ///< the item of the frame's menu bar

    QWidget* Window(const QString& name);  ///< the open top-level window of that name, or null
    static void Activate(QWidget* window); ///< and waits until it has the keyboard
    static void RunDeferredDeletes();

    QStringList modals; ///< names of the modal windows during RunMain
    QHash<QString, std::function<void(QWidget*)>> answers;
    QString stderrText; ///< what RunMain, MessageOf or EndingDuring wrote to standard error
};
