#pragma once

#include "toolkit/Screen.h"

#include <QHash>
#include <QObject>
#include <QPointer>

#include <functional>

class frmHOME;

/// The screens in the frame: what is registered, what is loaded, what stands in front. Owns the
/// frame, which owns the screens. One screen shows at a time; `frmProfile` alone leaves the one
/// before it in place, which comes back when it closes.
class Navigation : public QObject {
    Q_OBJECT

public:
    using Factory = std::function<Screen*(QWidget* parent)>;

    Navigation();
    ~Navigation() override;

    void Register(const QString& name, const Factory& factory);
    template <class T> void Register(const QString& name) {
        Register(name, [](QWidget* parent) { return new T(parent); });
    }
    void InstallSeams(); ///< makes this what the seams of the lower floors reach

    bool HasFrame() const;
    frmHOME* Frame(); ///< loaded on first use
    Screen* Front() const { return front_; }

    bool HasScreen(const QString& name) const;
    Screen* LoadScreen(const QString& name);
    Screen* ShowScreen(const QString& name);
    void ShowHome();
    void GatherWindows(); ///< lays all loaded screens over the nest
    void CloseAll();      ///< what is being typed is taken over first
    void Reset();         ///< forgets frame, screens and registrations

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void LeaveOthers(const Screen* fresh);
    void Cover(Screen* next);
    void Uncover();
    void Bring(Screen* screen);
    void Close(Screen* screen);
    void ShowTitle(const QString& title);

    QHash<QString, Factory> factories_;
    QHash<QString, QPointer<Screen>> loaded_;
    QPointer<frmHOME> frame_;
    QPointer<Screen> front_;
    QPointer<Screen> beneath_; ///< what `frmProfile` has covered
    bool arranging_ = false;   ///< this object hides and closes screens itself
};

/// The navigation of this process.
Navigation& TheNavigation();
