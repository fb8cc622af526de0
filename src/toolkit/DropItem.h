#pragma once

#include "toolkit/ListRow.h"

/// One item of an open list: a text and a number. The list decides which item is lit.
class DropItem : public ListRow {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption)
    Q_PROPERTY(QString Tag READ Tag)

public:
    DropItem(const QString& caption, const QString& tag, QWidget* parent);

    QString Caption() const { return caption_; }
    QString Tag() const { return tag_; } ///< the number in decimal
    void SetLit(bool lit);
    bool IsLit() const;
    void SetChosen(bool chosen) { chosen_ = chosen; } ///< the closed list shows it
    bool Chosen() const { return chosen_; }
    QAccessibleInterface* MakeAccessible() override;
    QAccessible::Role AccessibleRole() const override { return QAccessible::ListItem; }

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;

private:
    QString caption_;
    QString tag_;
    bool chosen_ = false;
};
