#pragma once

#include "foods/ui/FoodRowLayout.h"

#include <QObject>

class ElidedLabel;
class QLineEdit;
class QWidget;
class ucButtonA;

/// The controls for one serving in a result row: text, quantity, add button, examine button. A
/// click on the text adds, too. The row owns the controls.
class ServingLine : public QObject {
    Q_OBJECT

public:
    enum Letter { A, B };

    ServingLine(QWidget* row, Letter letter);

    void SetPlace(const FoodRowLayout::Line& place);
    void SetVisible(bool visible);
    void SetTexts(const QString& food, const QString& serving);
    void SetFont(const QFont& font);
    double Quantity() const; ///< 0 if the box holds no number
    void ResetButtons(const QObject* except);
    QList<QWidget*> Controls() const; ///< in tab order

Q_SIGNALS:
    void Eat();
    void Examine();
    void MouseMove(int Button, int Shift, double X, double Y);

private:
    void BuildQuantity(QWidget* row, const QString& name);
    ucButtonA* BuildButton(QWidget* row, const QString& name, const QString& picture,
                           const QString& tip);

    ElidedLabel* lblServ_;
    QLineEdit* txtQTY_;
    ucButtonA* cmdEAT_;
    ucButtonA* imgInfo_W_;
};
