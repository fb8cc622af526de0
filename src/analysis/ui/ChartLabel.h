#pragma once

#include "analysis/ui/ChartPiece.h"

#include <QColor>

/// A line of chart text.
class ChartLabel : public ChartPiece {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
    Q_PROPERTY(QColor ForeColor READ ForeColor WRITE SetForeColor)

public:
    explicit ChartLabel(QWidget* parent = nullptr);

    QString Caption() const { return caption_; }
    void SetCaption(const QString& caption);
    QColor ForeColor() const { return foreColor_; }
    void SetForeColor(const QColor& color);
    Qt::Alignment Alignment() const { return alignment_; }
    void SetAlignment(Qt::Alignment alignment) { alignment_ = alignment; }
    QString SpokenName() const override { return caption_; }
    QSize sizeHint() const override;

protected:
    virtual QString Shown() const { return caption_; } ///< the part of the caption that is painted
    void ShowAnew();                                   ///< after Shown() has changed
    void paintEvent(QPaintEvent*) override;

private:
    int TextWidth() const;

    QString caption_;
    mutable int textWidth_ = 0; ///< of the painted text; negative until it is measured
    QColor foreColor_;
    Qt::Alignment alignment_ = Qt::AlignLeft | Qt::AlignBottom;
};
