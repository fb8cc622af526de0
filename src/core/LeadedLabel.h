#pragma once

#include <QLabel>

class QTextLayout;

/// A plain text of several lines with extra line spacing. A word that is too long for a line is
/// broken.
class LeadedLabel : public QLabel {
    Q_OBJECT

public:
    explicit LeadedLabel(const QString& name, QWidget* parent);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override { return {0, heightForWidth(width())}; }
    QSize minimumSizeHint() const override { return {0, heightForWidth(width())}; }

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;

private:
    struct Measured {
        QString text;
        QFont font;
        int width = 0;
        int height = 0;
    };

    int LayOut(QTextLayout& text, int width) const; ///< returns the height

    mutable Measured measured_; ///< the scroll area asks for the same height many times
};
