#pragma once

#include "toolkit/ucBox.h"

#include <QDate>

class MonthCalendar;

/// The panel `picCal` "Select a date" around the month calendar `smCal`. It is hidden until it is
/// opened, and hides again when the focus leaves it.
class DayCalendar : public ucBox {
    Q_OBJECT

public:
    explicit DayCalendar(QWidget* parent = nullptr);
    ~DayCalendar() override;

    /// Shows that day under a caption and takes the focus.
    void Open(QDate day, const QString& caption);
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
