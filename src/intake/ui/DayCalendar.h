#pragma once

#include "toolkit/ucBox.h"

#include <QDate>

class MonthCalendar;

/// The panel `picCal` "Select a date" with the month calendar `smCal` in it. It is hidden unless
/// opened, and hides where the focus goes elsewhere.
class DayCalendar : public ucBox {
    Q_OBJECT

public:
    explicit DayCalendar(QWidget* parent = nullptr);
    ~DayCalendar() override;

    void Open(QDate day); ///< shows that day and takes the focus
    QSize sizeHint() const override;

Q_SIGNALS:
    void Picked(QDate day); ///< the host closes the panel

protected:
    void resizeEvent(QResizeEvent*) override;

private:
    void OnPick(QDate day);
    bool HasPart(const QObject* control) const;
    void FollowFocus(QWidget* old, QWidget* now);

    MonthCalendar* smCal_;
};
