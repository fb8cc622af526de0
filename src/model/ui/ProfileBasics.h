#pragma once

#include "model/Profile.h"

#include <QWidget>

#include <array>

class QLineEdit;
class ucRadio;

/// The basic page of the profile screen: who the person is. Its name is `picCover`, as it covers
/// the page of targets.
class ProfileBasics : public QWidget {
    Q_OBJECT

public:
    explicit ProfileBasics(QWidget* parent = nullptr);

    void Show(const Profile& profile);
    Profile Entered() const; ///< without the targets
    void FocusFirst();

private:
    QWidget* MakePersonBox();
    QWidget* MakeGenderBox();
    QWidget* MakeActivityBox();

    QLineEdit* txtUserName_ = nullptr;
    QLineEdit* txtAge_ = nullptr;
    QLineEdit* txtFeet_ = nullptr;
    QLineEdit* txtInches_ = nullptr;
    QLineEdit* txtWeight_ = nullptr;
    QLineEdit* txtDWeight_ = nullptr;
    std::array<ucRadio*, 2> opGender_{};
    std::array<ucRadio*, 4> opAct_{};
};
