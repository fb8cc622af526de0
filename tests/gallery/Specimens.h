#pragma once

#include <QList>
#include <QString>

#include <functional>

class QWidget;

/// One control in one state. The gallery shows them all, and the tests of the toolkit walk the same
/// list. `apply` brings the control into the state once it has been shown.
struct Specimen {
    QString control;
    QString state;
    std::function<QWidget*(QWidget* parent)> make;
    std::function<void(QWidget*)> apply;
    bool tabStop = false; ///< can be reached with Tab
};

QList<Specimen> Specimens();
