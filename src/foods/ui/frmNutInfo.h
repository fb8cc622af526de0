#pragma once

#include "foods/ScaledFood.h"
#include "model/Nutrients.h"
#include "toolkit/Dialog.h"
#include "toolkit/Labels.h"

class ElidedLabel;
struct FactsPage;
struct PrintJob;
class ucButton;

/// The nutrition facts of a chosen food, laid out like the label on a package: first seven amounts
/// with their share of the current user's targets, then the others. The amounts are scaled already.
class frmNutInfo : public Dialog {
    Q_OBJECT

public:
    explicit frmNutInfo(QWidget* owner = nullptr);

    /// Fills the labels and shows the panel modally. If an entry is missing, it shows nothing.
    void showFood(const ScaledFood& item);
    PrintJob Printed() const; ///< what is shown

protected:
    void paintEvent(QPaintEvent*) override;

private:
    static constexpr int HeadlineCount = 7;

    void BuildName();
    void BuildCalories();
    void BuildHeadlines();
    void BuildOthers();
    void BuildDone();
    QLabel* AddCaption(const QRect& place, const QString& name, const QString& text, TextRole role);
    QLabel* AddFigure(const QRect& place, const QString& name, const QString& caption);
    void AddAmount(const QRect& place, Nutrient id, TextRole captionRole);

    void Fill(const ScaledFood& item);
    void FillPercents(const ScaledFood& item);
    void CapFatCalories();
    FactsPage Page() const;

    ElidedLabel* aaFoodName_ = nullptr;
    ElidedLabel* aaServSize_ = nullptr;
    QLabel* lblFatCals_ = nullptr;
    std::array<QLabel*, NutrientCount> amounts_{};
    std::array<QLabel*, HeadlineCount> percents_{};
    ucButton* cmdDone_ = nullptr;
};
