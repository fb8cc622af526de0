#pragma once

#include "monkey/RandomInput.h"
#include "monkey/RowWatch.h"
#include "monkey/Trail.h"

#include <QObject>
#include <QPointer>

/// Uses the program for a number of inputs, one after another, in whichever event loop runs; then
/// it closes all windows as a person does.
class Monkey : public QObject {
public:
    Monkey(quint32 seed, int inputs, Trail& trail, RowWatch& rows);

private:
    void Schedule();
    void Wake();
    void Act();
    void Leave(QWidget* window);
    void LookAt(QWidget* window);

    RandomInput input_;
    int left_;
    Trail& trail_;
    RowWatch& rows_;
    QPointer<QWidget> seen_; ///< the last message of the toolkit library
    bool acting_ = false;
    int level_ = 0; ///< of the event loop that the present input came from
};
