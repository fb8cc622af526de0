#pragma once

#include <QWidget>

/// The background of percent bars: a line every 10 % of the target, a dark one every 50 %. 100 % is
/// 1500 twips wide; 0 % is at Origin.
class BarGrid : public QWidget {
    Q_OBJECT

public:
    static constexpr int Origin = 60;    ///< twips
    static constexpr int Step = 150;     ///< twips between lines
    static constexpr int DarkStep = 750; ///< twips between dark lines

    explicit BarGrid(QWidget* parent = nullptr);
    static void Paint(QPainter& painter, QSize size); ///< from the origin

protected:
    void paintEvent(QPaintEvent*) override;
};
