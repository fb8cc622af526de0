#include "analysis/charts/Pie.h"

#include "drawing/DevicePixels.h"
#include "drawing/Pictures.h"
#include "drawing/SmoothedPrint.h"
#include "drawing/Style.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QtMath>

#include <cmath>

namespace {

constexpr double DegreesPerPercent = 3.6;

int Mixed(int onto, int over, int alpha) {
    return (over * alpha + onto * (255 - alpha) + 127) / 255;
}

QRgb Mixed(QRgb onto, QRgb over, int alpha) {
    return qRgb(Mixed(qRed(onto), qRed(over), alpha), Mixed(qGreen(onto), qGreen(over), alpha),
                Mixed(qBlue(onto), qBlue(over), alpha));
}

} // namespace

Pie::Pie(PieForm form)
    : form_(form) {
    SetNoDataCaptions();
}

void Pie::Show(const EnergyShares& shares) {
    shares_ = shares;
    ratio_ = 0;
    if (shares.What() == EnergyShares::Content::Sectors)
        captions_ = shares.Captions();
    else if (shares.What() == EnergyShares::Content::NoData)
        SetNoDataCaptions();
}

void Pie::SetNoDataCaptions() {
    for (size_t i = 0; i < captions_.size(); ++i)
        captions_[i] = QLatin1String(form_.noDataCaptions[i]);
}

/// Sectors go round against the clock, from the right.
QString Pie::CaptionAt(QPointF place) const {
    const QPointF from = place - form_.centre;
    if (shares_.What() != EnergyShares::Content::Sectors ||
        std::hypot(from.x(), from.y()) > form_.radius)
        return {};
    const double degrees = qRadiansToDegrees(std::atan2(-from.y(), from.x()));
    const double percent = (degrees < 0 ? degrees + 360 : degrees) / DegreesPerPercent;
    const auto sectors = shares_.Sectors();
    size_t i = 0;
    while (i + 1 < sectors.size() && percent > sectors[i].to)
        ++i;
    return captions_[i];
}

void Pie::Paint(QPainter& painter) {
    {
        const DevicePixels device(painter);
        QImage picture = picPIE(device.Ratio());
        picture.setDevicePixelRatio(1);
        painter.drawImage(device.Of(QRect(QPoint(), form_.size)).topLeft(), picture);
    }
    PaintOutlines(painter);
}

/// The colours of the sectors are light; the lines between them show without any colour.
void Pie::PaintOutlines(QPainter& painter) const {
    if (shares_.What() != EnergyShares::Content::Sectors)
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(TheStyle().pieEdge);
    painter.setBrush(Qt::NoBrush);
    for (const EnergyShares::Sector& sector : shares_.Sectors())
        painter.drawPath(SectorPath(sector));
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
    if (shares_.What() == EnergyShares::Content::NoData)
        PaintNoData();
    else
        DrawPie();
}

void Pie::DrawPie() {
    if (shares_.What() == EnergyShares::Content::Sectors) {
        const auto [fat, protein, carbs] = shares_.Sectors();
        AddPieSlice(TheStyle().pieFat, fat);
        AddPieSlice(TheStyle().pieProtein, protein);
        AddPieSlice(TheStyle().pieCarbs, carbs);
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

QPainterPath Pie::SectorPath(const EnergyShares::Sector& sector) const {
    const auto [from, to] = sector;
    if (!std::isfinite(from) || !std::isfinite(to))
        return {};
    const QPointF reach(form_.radius, form_.radius);
    QPainterPath path(form_.centre);
    path.arcTo(QRectF(form_.centre - reach, form_.centre + reach), from * DegreesPerPercent,
               (to - from) * DegreesPerPercent);
    path.closeSubpath();
    return path;
}

void Pie::AddPieSlice(const QColor& colour, const EnergyShares::Sector& sector) {
    QPainter painter(&temp_);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 1, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.setBrush(colour);
    painter.drawPath(SectorPath(sector));
}

void Pie::PaintNoData() {
    const QFont font = TheStyle().small;
    {
        QPainter painter(&picPIE_);
        if (form_.coverWithoutData)
            painter.drawImage(0, 0, temp_);
        painter.setPen(TheStyle().barRowText);
        const QSizeF text = QFontMetricsF(SmoothedFont(font)).size(0, Summary());
        const QPointF centred((form_.size.width() - text.width()) / 2,
                              (form_.size.height() - text.height()) / 2);
        SmoothedPrint(painter, form_.noDataPlace.value_or(centred), Summary(), font);
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
