#pragma once

#include <QTextLayout>

class Pages;
struct ReportFigures;

/// Writes the meals of each day in two columns, from where the pages stand to as many new pages as
/// they need.
class MealColumns {
public:
    explicit MealColumns(Pages& pages);

    void Write(const ReportFigures& figures);

private:
    void WriteDay(const QString& day, const QString& calories);
    void WriteMeal(const QString& name, const QString& text);
    void WriteLines(const QTextLayout& layout);
    void MakeRoom(double height); ///< in this column, or the next one
    double Left() const;

    Pages& pages_;
    double width_;
    double top_; ///< of both columns on this page
    double y_;
    int column_ = 0;
};
