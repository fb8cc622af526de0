#pragma once

#include "toolkit/DrawnControl.h"

#include <QColor>

/// Base of the rows of lists: ground, ink, border and the picture in front. Every change of what a
/// row shows calls Refresh; setting the same value again costs nothing.
class ListRow : public DrawnControl {
    Q_OBJECT
    Q_PROPERTY(QString FoodIcon READ FoodIcon WRITE SetFoodIcon)
    Q_PROPERTY(QColor BackColor READ BackColor WRITE SetBackColor)
    Q_PROPERTY(QColor ForeColor READ ForeColor WRITE SetForeColor)
    Q_PROPERTY(bool Enabled READ isEnabled WRITE setEnabled)
    Q_PROPERTY(QFont Font READ font WRITE setFont)
    Q_PROPERTY(int BackStyle READ BackStyle WRITE SetBackStyle)
    Q_PROPERTY(int BorderStyle READ BorderStyle WRITE SetBorderStyle)

public:
    explicit ListRow(QWidget* parent = nullptr);

    QString FoodIcon() const { return foodIcon_; }
    QColor BackColor() const { return backColor_; }
    QColor ForeColor() const { return foreColor_; }
    int BackStyle() const { return backStyle_; }
    int BorderStyle() const { return borderStyle_; }
    void SetFoodIcon(const QString& picture) { Take(foodIcon_, picture); }
    void SetBackColor(const QColor& color) { Take(backColor_, color); }
    void SetForeColor(const QColor& color) { Take(foreColor_, color); }
    void SetBackStyle(int style) { Take(backStyle_, style); }     ///< 0 transparent, 1 opaque
    void SetBorderStyle(int style) { Take(borderStyle_, style); } ///< 0 none, 1 a line

    virtual void Refresh() { update(); }

protected:
    template <class Value> void Take(Value& field, const Value& value) {
        if (field == value)
            return;
        field = value;
        Refresh();
    }

private:
    QString foodIcon_;
    QColor backColor_, foreColor_;
    int backStyle_ = 1;
    int borderStyle_ = 0;
};
