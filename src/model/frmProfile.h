#pragma once

#include "toolkit/Screen.h"

/// Where a person's profile is created and edited: the first user modally, one more user, or an
/// edit in the nest.
class frmProfile : public Screen {
    Q_OBJECT

public:
    explicit frmProfile(QWidget* parent = nullptr);

    static void CreateFirstUser(); ///< modal, centred; ends by saving or by ending the process
    void CreateUser();
    static void EditUser(qint32 uid); ///< fills the form and brings it forward by ShowScreen

    bool SaveNewUser(); ///< True if the profile was saved
    void SaveChanges();
};
