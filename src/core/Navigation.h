#pragma once

#include "toolkit/ScreenForm.h"

#include <QHash>
#include <QObject>
#include <QPointer>

#include <functional>

class frmHOME;

/// Knows which screens are registered, which are loaded and which is in front. Owns the frame, and
/// the frame owns the screens. Only one screen is visible. `frmProfile` alone does not close the
/// screen before it, which returns when the profile closes.
class Navigation : public QObject {
    Q_OBJECT

public:
    using Factory = std::function<ScreenForm*(QWidget* parent)>;

    Navigation();
    ~Navigation() override;

    void Register(const QString& name, const Factory& factory);
    template <class T> void Register(const QString& name) {
        Register(name, [](QWidget* parent) { return new T(parent); });
    }
    void InstallSeams(); ///< lets the lower floors call this object

    bool HasFrame() const;
    frmHOME* Frame(); ///< loaded on first use
    ScreenForm* Front() const { return front_; }

    bool HasScreen(const QString& name) const;
    ScreenForm* LoadScreen(const QString& name);
    ScreenForm* ShowScreen(const QString& name);
    void ShowHome();
    void GatherWindows(); ///< lays all loaded screens over the nest
    void CloseAll();      ///< commits the text that is being typed first
    void Reset();         ///< forgets frame, screens and registrations

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void LeaveOthers(const ScreenForm* fresh);
    void Cover(ScreenForm* next);
    void Uncover();
    void Bring(ScreenForm* screen);
    void Close(ScreenForm* screen);
    void ShowTitle(const QString& title);

    QHash<QString, Factory> factories_;
    QHash<QString, QPointer<ScreenForm>> loaded_;
    QPointer<frmHOME> frame_;
    QPointer<ScreenForm> front_;
    QPointer<ScreenForm> beneath_; ///< the screen below `frmProfile`
    bool arranging_ = false;       ///< hiding and closing screens is our own doing
};

/// The navigation of this process.
Navigation& TheNavigation();
