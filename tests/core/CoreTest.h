#pragma once

#include "support/HalvaneTest.h"

#include "toolkit/Screen.h"

#include <QHash>
#include <QStringList>

/// What the screens of a test have done, in order: "frmDay made", "frmDay DoWinInit", ...
QStringList& ScreenLog();

/// A screen that notes what is done to it.
class LoggedScreen : public Screen {
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

/// A fixture with the real navigation and the real frame, over screens that note what happens.
class CoreTest : public HalvaneTest {
protected:
    void SetUp() override;
    void TearDown() override;

    /// The files that are delivered beside the program, not opened.
    void Deliver();
    void WriteFile(const QString& name, const QByteArray& bytes);
    QByteArray ReadFile(const QString& name);
    void AddLoggedScreen(const QString& name, const QString& title);

    /// Runs the start. Each modal window that comes is answered by its object name through
    /// `answers`; the splash is clicked away and the agreement accepted where nothing else is said.
    int RunMain();

    static void ChooseFromMenu(int index); ///< the item of the frame's menu bar

    QWidget* Window(const QString& name);  ///< the open top-level window of that name, or null
    static void Activate(QWidget* window); ///< and waits until it takes the keyboard
    static void RunDeferredDeletes();

    QStringList modals; ///< names of the modal windows that RunMain has met
    QHash<QString, std::function<void(QWidget*)>> answers;
    QString stderrText; ///< what RunMain has written to standard error
};
