#include "analysis/charts/FigureRows.h"

#include "analysis/charts/BarPainting.h"
#include "analysis/charts/ChartText.h"
#include "drawing/Twips.h"

void FigureRows::PaintTexts(QPainter& painter, const Figures& figures,
                            const std::function<QRect(int)>& place,
                            const std::function<QString(const NutrientFigure&)>& text) {
    int row = 0;
    for (const NutrientFigure& figure : figures)
        PaintChartText(painter, place(++row), text(figure), Qt::AlignLeft | Qt::AlignBottom);
}

void FigureRows::PaintBars(QPainter& painter, const Figures& figures,
                           const std::function<QPoint(int)>& place,
                           const std::function<double(const NutrientFigure&)>& width) {
    int row = 0;
    for (const NutrientFigure& figure : figures) {
        const double twips = width(figure);
        const QRect bar(place(++row), QSize(Twips::ToPixels(twips), BarPainting::Height));
        if (!BarPainting::IsNarrow(twips))
            BarPainting::Paint(painter, bar, false);
    }
}
