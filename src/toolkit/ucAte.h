#pragma once

#include "toolkit/ListRow.h"

class ucButtonA;

/// One line of a list of foods: name, serving, quantity and the trash can. A day's list is drawn
/// anew at every change, so a line is one painted widget with the trash can as its only child.
class ucAte : public ListRow {
    Q_OBJECT
    Q_PROPERTY(QString FoodName READ FoodName WRITE SetFoodName)
    Q_PROPERTY(QString Serv READ Serv WRITE SetServ)
    Q_PROPERTY(QString QTY READ QuantityShown WRITE SetQTY)
    Q_PROPERTY(QString ID READ ID WRITE SetID)
    Q_PROPERTY(QString Caption READ Caption)

public:
    explicit ucAte(QWidget* parent = nullptr);

    QString FoodName() const { return foodName_; }
    void SetFoodName(const QString& name); ///< also the tip over it
    QString Serv() const { return serv_; }
    void SetServ(const QString& serving);
    void SetQTY(const QString& quantity); ///< the user cannot edit it
    QString ID() const { return id_; }
    void SetID(const QString& id);
    void KeepClear(int room); ///< no text at its right end, so many pixels wide; 0 at first
    QString Caption() const;  ///< the line in words, for assistive tools
    void Remove();            ///< raises RemoveFood, as a click on the trash can does

    ucButtonA* imgTrash() const { return imgTrash_; }

    struct Layout {
        QRect imgFoodIcon, lblFood, lblServ, lblQTY, imgTrash;
    };
    Layout layoutRects() const;
    QSize sizeHint() const final;
    void Activate() override; ///< opens its context menu
    QAccessible::Role AccessibleRole() const override { return QAccessible::ListItem; }

Q_SIGNALS:
    void RemoveFood(qint32 ID);

protected:
    bool event(QEvent*) override;
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;

private:
    QString QuantityShown() const { return qty_; }
    QRect TrashPlace() const;
    QRect TextPlace() const;
    void PaintGround(QPainter& painter) const;
    void PaintTexts(QPainter& painter) const;

    QString foodName_, serv_, qty_, id_;
    ucButtonA* imgTrash_;
    int clear_ = 0;
};
