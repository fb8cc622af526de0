#pragma once

#include <QString>

#include <vector>

class Pages;

/// The nutrition facts of a food on paper: a table of captions, amounts and percents.
struct FactsPage {
    struct Row {
        QString caption, amount;
        QString percent = {}; ///< of the target; empty where none is shown
    };

    QString food;
    QString serving;
    std::vector<Row> headlines;
    std::vector<Row> others;

    void Paint(Pages& pages) const;
};
