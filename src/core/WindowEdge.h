#pragma once

#include <QWidget>

/// The edge of the main window in the styles that have one. The frame owns it and keeps it above
/// all that it shows. The pointer reaches what lies below.
class WindowEdge : public QWidget {
    Q_OBJECT

public:
    explicit WindowEdge(QWidget* frame);

protected:
    void paintEvent(QPaintEvent*) override;
};
