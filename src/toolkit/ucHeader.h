#pragma once

#include "toolkit/PaintedPanel.h"

/// A section header of three slices.
class ucHeader : public PaintedPanel {
    Q_OBJECT
    Q_PROPERTY(bool CenterAlignText READ CenterAlignText WRITE SetCenterAlignText)

public:
    explicit ucHeader(QWidget* parent = nullptr);
    bool CenterAlignText() const { return centerAlignText_; }
    void SetCenterAlignText(bool center);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    bool centerAlignText_ = true;
};

/// A caption strip of one slice.
class ucStrip : public PaintedPanel {
    Q_OBJECT

public:
    explicit ucStrip(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent*) override;
};

/// A large caption with a shadow, over a picture where one is set.
class ucTextRaised : public PaintedPanel {
    Q_OBJECT
    Q_PROPERTY(QPixmap Picture READ Picture WRITE SetPicture)

public:
    explicit ucTextRaised(QWidget* parent = nullptr);
    QPixmap Picture() const;
    void SetPicture(const QPixmap& picture);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    QPixmap picture_;
};
