#pragma once

#include "analysis/EnergyShares.h"

#include <QColor>
#include <QImage>
#include <QPainterPath>
#include <QPointF>
#include <QString>

#include <array>
#include <optional>

class QPainter;

/// Where a pie stands in its picture, and what differs between the places that show one.
/// Lengths are pixels.
struct PieForm {
    QSize size; ///< of the picture
    QPointF centre;
    double radius = 0;
    std::optional<QPointF> noDataPlace; ///< upper left corner of the text; centred where unset
    bool overlayWithoutData = false;    ///< `temp` is blended over the text, too
    bool coverWithoutData = true;       ///< without data the background picture is not shown
    std::array<const char*, 3> noDataCaptions; ///< fat, protein, carbohydrate
    QColor ground;                             ///< behind the pie
    double background = 0; ///< from the centre to the edge of its picture; 0: there is none
};

/// Paints shares of the energy as a pie: three sectors in `temp`, which is then blended over
/// `picPIE`. It paints only when a picture is asked for. Shares without sectors leave the captions
/// as they were.
class Pie {
public:
    static constexpr int OverlayAlpha = 153; ///< of 255

    explicit Pie(PieForm form);

    const PieForm& Form() const { return form_; }
    void Show(const EnergyShares& shares);
    void AddOverLay(); ///< blends `temp` over `picPIE`, or copies it where it cannot be blended
    void Paint(QPainter& painter); ///< at the painter's origin, as sharp as its device allows

    const std::array<QString, 3>& Captions() const { return captions_; }
    const std::array<double, 3>& Shares() const { return shares_.Percents(); }
    QString Summary() const { return shares_.Summary(); }
    const EnergyShares& EnergyParts() const { return shares_; }
    QPainterPath SectorPath(const EnergyShares::Sector& sector) const; ///< empty if not finite
    /// The caption of the sector at that place of the picture; empty outside the pie.
    QString CaptionAt(QPointF place) const;
    QImage picPIE(double ratio = 1);
    QImage temp(double ratio = 1);

    /// The colours of the three sectors as they stand in `picPIE`, in the order of the captions.
    std::array<QColor, 3> ShownColours() const;

    /// Mixes `over` into `onto` with a constant alpha of 255. Returns false and changes nothing if
    /// the pictures differ in size or format.
    static bool Blend(QImage& onto, const QImage& over, int alpha);

private:
    void SetNoDataCaptions();
    void Render(double ratio);
    QImage Blank() const;
    void PaintBackground();
    void DrawPie(); ///< the sectors onto `temp`, then `temp` over `picPIE`
    void AddPieSlice(const QColor& colour, const EnergyShares::Sector& sector);
    void PaintOutlines(QPainter& painter) const;
    void PaintNoData();

    PieForm form_;
    EnergyShares shares_;
    std::array<QString, 3> captions_;
    QImage picPIE_, temp_;
    double ratio_ = 0; ///< device pixels to a pixel; 0 while the pictures are out of date
};
