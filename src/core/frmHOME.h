#pragma once

#include <QWidget>

#include <array>

class ucAALBL;
class ucButtonA;
class ucMenu;
class ucTitleBar;

/// The frame: title bar, menu bar, column of navigation buttons, and the nest over
/// which the screens are laid. Created and owned by the navigation.
class frmHOME : public QWidget {
    Q_OBJECT

public:
    frmHOME();

    void Load(); ///< takes its stored place, and shows the first screen where there is a user
    QWidget* picNest() const { return picNest_; }
    QPoint Place() const; ///< upper left corner on the desktop, also while minimised

    /// The screen of that name stands in front; its title is in `WindowTitle`.
    void ShowFront(const QString& screen);
    /// Takes the highlight off all navigation buttons but the one named; an empty name also brings
    /// the title of the active screen back.
    void AllOff(const QString& name);
    void ResetMenu(); ///< called before a change of screen

Q_SIGNALS:
    void QuitRequested();
    void Gather(); ///< activated, or dragged to another place

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void LayTop();
    void LayCommands();
    void LayNavigation();
    void LayNest();
    void AddShortcuts();
    ucButtonA* AddNavigationButton(int index);
    ucButtonA* AddTitleButton(const char* name, const char* picture, const char* tip, int left);
    void OnHover(ucButtonA* button, const QString& text);

    QWidget* picFrameTop_ = nullptr;
    QWidget* picNest_ = nullptr;
    ucTitleBar* ucTitle_ = nullptr;
    ucAALBL* aaWindow_ = nullptr;
    ucMenu* menu_ = nullptr;
    std::array<ucButtonA*, 7> buttons_{}; ///< those that open something; the last one is the logo
};
