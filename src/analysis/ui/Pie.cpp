#include "analysis/ui/Pie.h"

#include "runtime/Format.h"
#include "toolkit/Pictures.h"
#include "toolkit/SmoothedPrint.h"
#include "toolkit/Style.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace {

constexpr double ShareOfNone = 0.0001;
constexpr double SumOfNone = 0.00031;
constexpr double TooLarge = 99.9;
constexpr double Largest = 99.8;
constexpr double DegreesPerPercent = 3.6;

const QString NoDataText = QStringLiteral("No data to chart");

int Mixed(int onto, int over, int alpha) {
    return (over * alpha + onto * (255 - alpha) + 127) / 255;
}

QRgb Mixed(QRgb onto, QRgb over, int alpha) {
    return qRgb(Mixed(qRed(onto), qRed(over), alpha), Mixed(qGreen(onto), qGreen(over), alpha),
                Mixed(qBlue(onto), qBlue(over), alpha));
}

QString ShareCaption(const char* name, double share) {
    return QLatin1String(name) + Format(share, NumberMask::WholeNumber) + u'%';
}

} // namespace

Pie::Pie(PieForm form)
    : form_(std::move(form)) {
    SetNoDataCaptions();
}

void Pie::DrawPie(double fat, double protein, double carbs) {
    std::array<double, 3> shares{fat, protein, carbs};
    for (double& share : shares)
        share = share == 0 ? ShareOfNone : share;
    const double total = shares[0] + shares[1] + shares[2];
    if (!(total > SumOfNone))
        return SetContent(Content::Nothing);
    for (size_t i = 0; i < 3; ++i) {
        const double share = shares[i] / total * 100;
        const bool atBoundary = i == 0 || form_.clampAllFrom999;
        const bool clamped = atBoundary ? share >= TooLarge : share > TooLarge;
        shares_[i] = clamped ? Largest : share;
    }
    captions_ = {ShareCaption("Fat ", shares_[0]), ShareCaption("Protein ", shares_[1]),
                 ShareCaption("Carbs. ", shares_[2])};
    SetContent(Content::Slices);
}

void Pie::ShowNoData() {
    SetNoDataCaptions();
    SetContent(Content::NoData);
}

void Pie::SetNoDataCaptions() {
    for (size_t i = 0; i < captions_.size(); ++i)
        captions_[i] = QLatin1String(form_.noDataCaptions[i]);
}

void Pie::SetContent(Content content) {
    content_ = content;
    ratio_ = 0;
}

QString Pie::Summary() const {
    switch (content_) {
    case Content::Slices:
        return captions_[0] + u", " + captions_[1] + u", " + captions_[2];
    case Content::NoData:
        return NoDataText;
    default:
        return {};
    }
}

QImage Pie::picPIE(double ratio) {
    Render(ratio);
    return picPIE_;
}

QImage Pie::temp(double ratio) {
    Render(ratio);
    return temp_;
}

void Pie::Render(double ratio) {
    if (ratio_ == ratio)
        return;
    ratio_ = ratio;
    picPIE_ = Blank();
    PaintBackground();
    temp_ = Blank();
    if (content_ == Content::NoData)
        return PaintNoData();
    if (content_ == Content::Slices) {
        const Style& style = TheStyle();
        AddPieSlice(style.pieFat, 0.001, shares_[0]);
        AddPieSlice(style.pieProtein, shares_[0], shares_[0] + shares_[1]);
        AddPieSlice(style.pieCarbs, shares_[0] + shares_[1], 99.999);
    }
    AddOverLay();
}

QImage Pie::Blank() const {
    QImage picture((QSizeF(form_.size) * ratio_).toSize(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(ratio_);
    picture.fill(form_.ground);
    return picture;
}

void Pie::PaintBackground() {
    if (form_.background == 0)
        return;
    const QPointF reach(form_.background, form_.background);
    QPainter painter(&picPIE_);
    Pictures::Paint(painter, QRectF(form_.centre - reach, form_.centre + reach),
                    QStringLiteral("overlay"));
}

void Pie::AddPieSlice(const QColor& colour, double from, double to) {
    if (!std::isfinite(from) || !std::isfinite(to))
        return;
    const QPointF reach(form_.radius, form_.radius);
    QPainterPath sector(form_.centre);
    sector.arcTo(QRectF(form_.centre - reach, form_.centre + reach), from * DegreesPerPercent,
                 (to - from) * DegreesPerPercent);
    sector.closeSubpath();
    QPainter painter(&temp_);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 1, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.setBrush(colour);
    painter.drawPath(sector);
}

void Pie::PaintNoData() {
    const QFont font = TheStyle().small;
    {
        QPainter painter(&picPIE_);
        if (form_.coverWithoutData)
            painter.drawImage(0, 0, temp_);
        painter.setPen(TheStyle().barRowText);
        const QSizeF text = QFontMetricsF(SmoothedFont(font)).size(0, NoDataText);
        const QPointF centred((form_.size.width() - text.width()) / 2,
                              (form_.size.height() - text.height()) / 2);
        SmoothedPrint(painter, form_.noDataPlace.value_or(centred), NoDataText, font);
    }
    if (form_.overlayWithoutData)
        AddOverLay();
}

void Pie::AddOverLay() {
    if (ratio_ == 0)
        Render(1);
    if (!Blend(picPIE_, temp_, OverlayAlpha))
        picPIE_ = temp_;
}

std::array<QColor, 3> Pie::ShownColours() const {
    const Style& style = TheStyle();
    const QRgb ground = form_.ground.rgb();
    return {Mixed(ground, style.pieFat.rgb(), OverlayAlpha),
            Mixed(ground, style.pieProtein.rgb(), OverlayAlpha),
            Mixed(ground, style.pieCarbs.rgb(), OverlayAlpha)};
}

bool Pie::Blend(QImage& onto, const QImage& over, int alpha) {
    if (onto.isNull() || onto.size() != over.size() || onto.format() != QImage::Format_RGB32 ||
        over.format() != QImage::Format_RGB32)
        return false;
    for (int y = 0; y < onto.height(); ++y) {
        auto* target = reinterpret_cast<QRgb*>(onto.scanLine(y));
        const auto* source = reinterpret_cast<const QRgb*>(over.constScanLine(y));
        for (int x = 0; x < onto.width(); ++x)
            target[x] = Mixed(target[x], source[x], alpha);
    }
    return true;
}
