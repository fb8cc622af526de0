#pragma once

#include "toolkit/ScreenForm.h"

#include <QPoint>

class ProfileBasics;
class ProfileTargets;
struct Profile;
class ucButton;
class ucTitleFlat;

/// The screen on which a profile is created or edited. The first user sees it as a modal window;
/// later it is a screen in the nest. The basic page, `picCover`, covers the page of targets.
class frmProfile : public ScreenForm {
    Q_OBJECT
    Q_PROPERTY(QString Tag READ Tag) ///< "0" while `picCover` is shown, else "1"

public:
    explicit frmProfile(QWidget* parent = nullptr);

    static void CreateFirstUser(); ///< returns when the profile is saved or the process ends
    void CreateUser();
    static void EditUser(qint32 uid); ///< fills the form and shows it

    bool SaveNewUser(); ///< whether the profile was saved
    void SaveChanges();

    QString Tag() const { return tag_; }
    void DoWinInit() override;

Q_SIGNALS:
    void Closed();

protected:
    void closeEvent(QCloseEvent*) override;
    void paintEvent(QPaintEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;

private:
    void MakePages();
    void AddButtons();
    void LayOut();
    void ShowModally();
    void LoadUser(qint32 uid);
    void cmdAdvanced_Click();
    void cmdSave_Click();
    void cmdCancel_Click();
    void Cover(bool covered);
    Profile Entered() const;
    bool Accept(const QString& problem); ///< shows the problem, if there is one
    void Leave();

    ucTitleFlat* title_;
    ProfileBasics* basics_ = nullptr;
    ProfileTargets* targets_ = nullptr;
    ucButton* cmdAdvanced_ = nullptr;
    ucButton* cmdSave_ = nullptr;
    ucButton* cmdCancel_ = nullptr;
    QString tag_;
    bool newUser_ = false;
    bool firstUser_ = false;
    bool leaving_ = false; ///< the form may close
    qint32 uid_ = -1;
    QPoint grip_; ///< the place in the form where the pointer holds it
    bool dragging_ = false;
};
