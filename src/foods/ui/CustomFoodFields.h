#pragma once

#include "foods/CustomFood.h"
#include "model/ui/AmountFields.h"
#include "toolkit/Labels.h"

#include <QWidget>

#include <span>

class QGridLayout;
class QLineEdit;

/// The fields of a custom food, laid out like the label on a package: name and serving, and below a
/// heavy rule the 31 amounts of one serving in three columns. Owned by the screen of custom foods.
class CustomFoodFields : public QWidget {
    Q_OBJECT

public:
    explicit CustomFoodFields(QWidget* parent = nullptr);

    void Clear();
    void SetNew(); ///< placeholders for name and serving, no amounts
    void Show(const CustomFood& food);
    CustomFood Entered() const;
    void FieldLock(bool on); ///< usable or not
    void ChooseName();       ///< selects the name, so that typing replaces it
    void FocusOn(const CustomFoodProblem& problem);

Q_SIGNALS:
    void Changed(); ///< the text of a field has changed, typed or not

protected:
    void paintEvent(QPaintEvent*) override;

private:
    void AddNames();
    void AddHint();
    void AddColumn(std::span<const Nutrient> nutrients, int column);
    QLineEdit* AddField(const char* name, const char* caption, TextRole role);

    QGridLayout* grid_;
    QLineEdit* txtFoodName_ = nullptr;
    QLineEdit* txtServing_ = nullptr;
    QLabel* lblHint_ = nullptr;
    AmountFields amounts_;
    QList<QLabel*> captions_;  ///< in the order of fields_
    QList<QLineEdit*> fields_; ///< all, in reading order
};
