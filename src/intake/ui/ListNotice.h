#pragma once

#include <QLabel>

class QTimer;

/// The status of a list: a line over its lower edge that says what has just been done. It
/// disappears after some seconds and at the next change of the list. Assistive tools are told its
/// text.
class ListNotice : public QLabel {
    Q_OBJECT

public:
    explicit ListNotice(QWidget* list);

    void Say(const QString& text);

protected:
    void paintEvent(QPaintEvent*) override;
    void hideEvent(QHideEvent*) override;

private:
    QTimer* tmrHider_;
};
