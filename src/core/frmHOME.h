#pragma once

#include <QList>
#include <QWidget>

class QLabel;
class QTimer;
struct ScreenRow;
class WindowEdge;
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

    void Load(); ///< restores its position; shows the first screen if there is a user
    QWidget* picNest() const { return picNest_; }
    QPoint Place() const; ///< upper left corner on the desktop, even if minimised

    /// Marks the button of the screen in front, and prints `WindowTitle`.
    void ShowFront(const QString& screen);
    /// Resets all navigation buttons except the named one. An empty name also restores the title of
    /// the active screen.
    void AllOff(const QString& name);
    void ResetMenu();               ///< closes the menus
    void Tell(const QString& note); ///< shows it for a while in the band of the menu bar

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
    struct NavigationButton {
        ucButtonA* button;
        QString screen; ///< empty: it opens the community page
    };

    void LayTop();
    void LayCommands();
    void LayNote();
    void LayNavigation();
    void LayNest();
    void AddShortcuts();
    ucButtonA* AddNavigationButton(const ScreenRow& row);
    ucButtonA* AddTitleButton(const char* name, const char* picture, const char* tip, int left);
    void OnHover(ucButtonA* button, const QString& text);

    QWidget* picFrameTop_ = nullptr;
    QWidget* picNest_ = nullptr;
    ucTitleBar* ucTitle_ = nullptr;
    ucAALBL* aaWindow_ = nullptr;
    WindowEdge* edge_ = nullptr;
    ucMenu* menu_ = nullptr;
    QLabel* lblNote_ = nullptr;
    QTimer* noteEnd_ = nullptr;
    QList<NavigationButton> buttons_;
};
