#pragma once

#include <QWidget>

/// The background of percent bars.
class BarGrid : public QWidget {
    Q_OBJECT

public:
    explicit BarGrid(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent*) override;
};
