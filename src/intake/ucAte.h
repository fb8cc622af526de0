#pragma once

#include "toolkit/DrawnControl.h"

class ucButtonA;

/// One line of a list of foods: name, serving, quantity and the trash can. A day's list is drawn
/// anew at every change, so a line is one painted widget with the trash can as its only child, and
/// telling it what it shows already costs nothing.
class ucAte : public DrawnControl {
    Q_OBJECT
    Q_PROPERTY(QString FoodName READ FoodName WRITE SetFoodName)
    Q_PROPERTY(QString Serv READ Serv WRITE SetServ)
    Q_PROPERTY(QString QTY READ QuantityShown WRITE SetQTY)
    Q_PROPERTY(QString ID READ ID WRITE SetID)
    Q_PROPERTY(QString FoodIcon READ FoodIcon WRITE SetFoodIcon)
    Q_PROPERTY(QColor BackColor READ BackColor WRITE SetBackColor)
    Q_PROPERTY(QColor ForeColor READ ForeColor WRITE SetForeColor)
    Q_PROPERTY(bool Enabled READ isEnabled WRITE setEnabled)
    Q_PROPERTY(QFont Font READ font WRITE setFont)
    Q_PROPERTY(int BackStyle READ BackStyle WRITE SetBackStyle)
    Q_PROPERTY(int BorderStyle READ BorderStyle WRITE SetBorderStyle)
    Q_PROPERTY(QString Caption READ Caption)

public:
    explicit ucAte(QWidget* parent = nullptr);

    QString FoodName() const { return foodName_; }
    void SetFoodName(const QString& name); ///< also the tip over it
    QString Serv() const { return serv_; }
    void SetServ(const QString& serving);
    void SetQTY(const QString& quantity); ///< only ever set: the quantity of a line is not edited
    QString ID() const { return id_; }
    void SetID(const QString& id);
    QString FoodIcon() const { return foodIcon_; }
    void SetFoodIcon(const QString& picture);
    QColor BackColor() const { return backColor_; }
    void SetBackColor(const QColor& color);
    QColor ForeColor() const { return foreColor_; }
    void SetForeColor(const QColor& color);
    int BackStyle() const { return backStyle_; }
    void SetBackStyle(int style); ///< 0 transparent, 1 opaque
    int BorderStyle() const { return borderStyle_; }
    void SetBorderStyle(int style); ///< 0 none, 1 a line below
    QString Caption() const;        ///< the line in words, for assistive tools
    void Refresh() { update(); }
    void Remove(); ///< raises RemoveFood, as a click on the trash can does

    ucButtonA* imgTrash() const { return imgTrash_; }

    struct Layout {
        QRect imgFoodIcon, lblFood, lblServ, lblQTY, imgTrash;
    };
    Layout layoutRects() const;
    QSize sizeHint() const override;
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
    void ShowTip(QPoint place, QPoint globalPlace);
    void PaintGround(QPainter& painter) const;
    void PaintTexts(QPainter& painter) const;

    QString foodName_, serv_, qty_, id_, foodIcon_;
    QColor backColor_, foreColor_;
    int backStyle_ = 1;
    int borderStyle_ = 1;
    ucButtonA* imgTrash_;
};
