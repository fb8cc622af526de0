#include "analysis/ui/PieChart.h"

#include "drawing/DevicePixels.h"
#include "drawing/Style.h"
#include "toolkit/ucAALBL.h"

#include <QPainter>

namespace {
constexpr int LegendGap = 20;
constexpr int LegendLine = 24;
constexpr int SwatchSize = 12;
constexpr int SwatchGap = 8;

int LegendWidth() {
    const QString longest = QStringLiteral("Protein 100%");
    return SwatchSize + SwatchGap + QFontMetrics(TheStyle().text).horizontalAdvance(longest);
}

/// A square of the legend. Its edge shows where its colour is light.
class Swatch : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        PaintFrame(painter, rect(), TheStyle().gridDark);
    }
};

} // namespace

PieChart::PieChart(PieForm form, QWidget* parent)
    : QWidget(parent)
    , picture_(new PiePicture(form, this)) {
    picture_->setObjectName(QStringLiteral("picPIE"));
    AddSwatches();
    AddLabels();
    setMouseTracking(true);
    picture_->setMouseTracking(true);
    for (ucAALBL* label : labels_)
        label->setMouseTracking(true);
}

void PieChart::AddSwatches() {
    const auto colours = picture_->pie().ShownColours();
    for (size_t i = 0; i < swatches_.size(); ++i) {
        swatches_[i] = new Swatch(this);
        swatches_[i]->setObjectName(QStringLiteral("Image%1").arg(i + 1));
        swatches_[i]->setPalette(colours[i]);
        swatches_[i]->setAutoFillBackground(true);
        swatches_[i]->setMouseTracking(true);
    }
}

void PieChart::AddLabels() {
    constexpr std::array names{"aafat", "aaprotein", "aacarbs"};
    for (size_t i = 0; i < labels_.size(); ++i) {
        labels_[i] = new ucAALBL(this);
        labels_[i]->setObjectName(QLatin1String(names[i]));
        labels_[i]->SetBackColor(QColor());
        labels_[i]->SetForeColor(TheStyle().ink);
        labels_[i]->SetFont(TheStyle().text);
    }
    ShowCaptions();
}

void PieChart::Show(const EnergyShares& shares) {
    picture_->Show(shares);
    ShowCaptions();
}

void PieChart::ShowCaptions() {
    const auto& captions = picture_->pie().Captions();
    for (size_t i = 0; i < labels_.size(); ++i)
        if (labels_[i]->Caption() != captions[i])
            labels_[i]->SetCaption(captions[i]);
}

QRect PieChart::SwatchPlace(size_t i) const {
    const int left = (width() - LegendWidth()) / 2;
    const int top = picture_->geometry().bottom() + 1 + LegendGap + int(i) * LegendLine;
    return {left, top + (LegendLine - SwatchSize) / 2, SwatchSize, SwatchSize};
}

void PieChart::resizeEvent(QResizeEvent*) {
    const int legend = LegendGap + int(labels_.size()) * LegendLine;
    const int free = height() - picture_->height() - legend;
    picture_->move((width() - picture_->width()) / 2, qMax(0, free * 2 / 5));
    const int line = QFontMetrics(TheStyle().text).height();
    for (size_t i = 0; i < labels_.size(); ++i) {
        const QRect swatch = SwatchPlace(i);
        swatches_[i]->setGeometry(swatch);
        labels_[i]->move(swatch.right() + 1 + SwatchGap, swatch.center().y() - line / 2);
    }
}
