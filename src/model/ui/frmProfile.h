#pragma once

#include "toolkit/Screen.h"

#include <QPoint>

class ProfileBasics;
class ProfileTargets;
struct Profile;
class ucButton;
class ucTitleFlat;

/// Where a person's profile is created and edited: the first user modally, one more user, or an
/// edit in the nest. The page of targets lies under `picCover`, which holds the basic page.
class frmProfile : public Screen {
    Q_OBJECT
    Q_PROPERTY(QString Tag READ Tag) ///< "0" while `picCover` covers the targets, else "1"

public:
    explicit frmProfile(QWidget* parent = nullptr);

    static void CreateFirstUser(); ///< modal, centred; ends by saving or by ending the process
    void CreateUser();
    static void EditUser(qint32 uid); ///< fills the form and brings it forward by ShowScreen

    bool SaveNewUser(); ///< True if the profile was saved
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
    bool Accept(const QString& problem); ///< shows a problem; an empty one is none
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
    bool leaving_ = false; ///< saved, or the process is ending: the form may close
    qint32 uid_ = -1;
    QPoint grip_; ///< where the form is held while it is dragged
    bool dragging_ = false;
};
