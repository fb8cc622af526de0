#pragma once

#include <QElapsedTimer>
#include <QWidget>

class QLabel;

/// The panel `picStatus`: "Search Progress" over the bar `picHome`, shown while a search runs.
/// A search blocks the interface, so the bar is painted at once, as often as an eye could follow.
class SearchProgress : public QWidget {
    Q_OBJECT
    Q_PROPERTY(double Fraction READ Fraction WRITE SetFraction)

public:
    explicit SearchProgress(QWidget* parent);

    void Begin(); ///< empties the bar, shows the panel and paints it
    void SetFraction(double fraction);
    double Fraction() const { return fraction_; }
    int FilledPixels() const; ///< of the bar's width

protected:
    void paintEvent(QPaintEvent*) override;

private:
    QLabel* caption_;
    QWidget* picHome_;
    QLabel* picSlide_; ///< hidden: holds the picture that fills the bar
    QElapsedTimer painted_;
    double fraction_ = 0;
};
