#pragma once

#include <QWidget>

#include <array>

class QLineEdit;
class Recordset;
class ucRadio;

/// The basic page of the profile screen: who the person is. As `picCover` it lies over the page of
/// targets. It shows a row of `profiles`, gives what is entered, and knows what is wrong with it.
class ProfileBasics : public QWidget {
    Q_OBJECT

public:
    explicit ProfileBasics(QWidget* parent = nullptr);

    void Fill(const Recordset& row);
    void FocusFirst();

    /// The message of the first test that the entries fail; empty where they pass all.
    QString FirstProblem() const;

    QString UserName() const;
    double Age() const;
    double Height() const; ///< inches; feet that are not wholly a number fail (13)
    double CurrentWeight() const;
    double DesiredWeight() const;
    int Gender() const;        ///< 0 female, 1 male, -1 where neither is selected
    int ActivityLevel() const; ///< 0 to 3, -1 where none is selected

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
