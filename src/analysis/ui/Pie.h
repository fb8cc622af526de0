#pragma once

#include <QColor>
#include <QImage>
#include <QPointF>
#include <QString>

#include <array>
#include <optional>

/// Where a pie stands in its picture, and what differs between the places that show one.
/// Lengths are pixels.
struct PieForm {
    QSize size; ///< of the picture
    QPointF centre;
    double radius = 0;
    std::optional<QPointF> noDataPlace; ///< upper left corner of the text; centred where unset
    bool overlayWithoutData = false;    ///< the pie is laid over the picture without data too
    bool coverWithoutData = true; ///< without data the background picture is hidden behind the text
    bool clampAllFrom999 = false; ///< protein and carbohydrate too are clamped from 99.9 %, not
                                  ///< only above it
    std::array<const char*, 3> noDataCaptions; ///< fat, protein, carbohydrate
    QColor ground;                             ///< behind the pie
    double background =
        0; ///< reach of the background picture from the centre; 0 where there is none
};

/// The share of the calories that came from fat, protein and carbohydrate as three sectors. Holds
/// what is to be seen and paints it when it is asked for: the sectors into `temp`, which is then
/// blended over `picPIE`. Captions change with the sectors; without any they stay as they were.
class Pie {
public:
    static constexpr int OverlayAlpha = 153; ///< of 255

    explicit Pie(PieForm form);

    const PieForm& Form() const { return form_; }
    void DrawPie(double fat, double protein, double carbs);
    void ShowNoData();
    void AddOverLay(); ///< blends `temp` over `picPIE`, or copies it where it cannot be blended

    const std::array<QString, 3>& Captions() const { return captions_; }
    const std::array<double, 3>& Shares() const { return shares_; } ///< percent, as drawn
    QString Summary() const; ///< what is to be seen, in words
    QImage picPIE(double ratio = 1);
    QImage temp(double ratio = 1);

    /// The colours of the three sectors as they stand in `picPIE`, in the order of the captions.
    std::array<QColor, 3> ShownColours() const;

    /// Mixes `over` into `onto` with a constant alpha of 255. False, and nothing done, where the
    /// pictures do not fit.
    static bool Blend(QImage& onto, const QImage& over, int alpha);

private:
    enum class Content { Nothing, Slices, NoData };

    void SetContent(Content content);
    void SetNoDataCaptions();
    void Render(double ratio);
    QImage Blank() const;
    void PaintBackground();
    void AddPieSlice(const QColor& colour, double from, double to);
    void PaintNoData();

    PieForm form_;
    Content content_ = Content::Nothing;
    std::array<double, 3> shares_{};
    std::array<QString, 3> captions_;
    QImage picPIE_, temp_;
    double ratio_ = 0; ///< device pixels a pixel of the pictures; 0 while they are out of date
};
