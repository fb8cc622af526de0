#pragma once

#include "toolkit/PaintedPanel.h"

#include <QPixmap>

/// A large caption with a shadow, over a picture where one is set.
class ucTextRaised : public PaintedPanel {
    Q_OBJECT
    Q_PROPERTY(QPixmap Picture READ Picture WRITE SetPicture)

public:
    explicit ucTextRaised(QWidget* parent = nullptr);
    QPixmap Picture() const { return picture_; }
    void SetPicture(const QPixmap& picture);
    QSize sizeHint() const final;

protected:
    void paintEvent(QPaintEvent*) override;

private:
    QPixmap picture_;
};
