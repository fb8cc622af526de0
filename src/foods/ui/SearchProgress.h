#pragma once

#include <QElapsedTimer>
#include <QWidget>

class QLabel;

/// The panel `picStatus` with the progress bar `picHome`, shown while a search runs. A search
/// blocks the interface, so the panel paints the bar itself, at most once per frame of the display.
class SearchProgress : public QWidget {
    Q_OBJECT
    Q_PROPERTY(double Fraction READ Fraction WRITE SetFraction)

public:
    explicit SearchProgress(QWidget* parent);

    void Begin(); ///< empties the bar, shows the panel and paints it
    void SetFraction(double fraction);
    double Fraction() const { return fraction_; }
    int FilledPixels() const; ///< how much of the bar is filled

protected:
    void paintEvent(QPaintEvent*) override;

private:
    QLabel* caption_;
    QWidget* picHome_;
    QLabel* picSlide_; ///< hidden; holds the picture that fills the bar
    QElapsedTimer painted_;
    double fraction_ = 0;
};
