#include "records/report/ReportCharts.h"

#include "analysis/charts/Pie.h"
#include "analysis/charts/WeightCurvePainting.h"
#include "drawing/Style.h"

#include <QBuffer>
#include <QPainter>

namespace {
constexpr int PieEdge = 150;
constexpr double PieRadius = 70;
constexpr QSize WholeCurve = WeightCurvePainting::UsualSize;
constexpr double SmallestScale = 0.56;
constexpr double LargestScale = 0.72;
constexpr double Sharpness = 4; ///< dots to a pixel

PieForm FormOfPie() {
    PieForm form;
    form.size = ReportCharts::PieSize();
    form.centre = QPointF(PieEdge, PieEdge) / 2;
    form.radius = PieRadius;
    form.noDataCaptions = {"", "", ""};
    form.ground = TheStyle().paper;
    return form;
}

template <class Paint> QByteArray Picture(QSize size, Paint paint) {
    QImage image((QSizeF(size) * Sharpness).toSize(), QImage::Format_RGB32);
    image.fill(TheStyle().paper);
    QPainter painter(&image);
    painter.scale(Sharpness, Sharpness);
    paint(painter);
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}
} // namespace

QSize ReportCharts::PieSize() {
    return {PieEdge, PieEdge};
}

void ReportCharts::PaintPie(QPainter& painter, const EnergyShares& shares) {
    Pie pie(FormOfPie());
    pie.Show(shares);
    painter.drawImage(QPointF(), pie.picPIE(Sharpness));
}

std::array<QColor, 3> ReportCharts::PieColours() {
    return Pie(FormOfPie()).ShownColours();
}

QSize ReportCharts::WeightSize(int room) {
    const double scale = double(room) / WholeCurve.height();
    return (QSizeF(WholeCurve) * qBound(SmallestScale, scale, LargestScale)).toSize();
}

void ReportCharts::PaintWeights(QPainter& painter, const WeightCurve& curve, QSize size) {
    painter.save();
    painter.scale(double(size.width()) / WholeCurve.width(),
                  double(size.height()) / WholeCurve.height());
    WeightCurvePainting::Paint(painter, curve, WholeCurve);
    painter.restore();
}

QByteArray ReportCharts::PiePicture(const EnergyShares& shares) {
    return Picture(PieSize(), [&](QPainter& painter) { PaintPie(painter, shares); });
}

QByteArray ReportCharts::WeightPicture(const WeightCurve& curve) {
    return Picture(WholeCurve,
                   [&](QPainter& painter) { PaintWeights(painter, curve, WholeCurve); });
}
