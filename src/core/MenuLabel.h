#pragma once

#include "toolkit/DrawnControl.h"

/// A title of the menu bar or an item of a panel. It acts when the mouse button goes down. Leading
/// blanks of a caption are neither drawn nor spoken.
class MenuLabel : public DrawnControl {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption)
    Q_PROPERTY(bool Enabled READ isEnabled WRITE setEnabled)
    Q_PROPERTY(bool Hilited READ Hilited WRITE SetHilited)

public:
    enum class Kind { Title, Item };

    MenuLabel(Kind kind, const QString& name, const QString& caption, QWidget* parent);

    QString Caption() const { return caption_; }
    bool Hilited() const { return hilited_; }
    void SetHilited(bool hilited);
    void SetOpen(bool open); ///< its panel is open
    QSize sizeHint() const final;
    bool IsTitle() const { return kind_ == Kind::Title; }
    bool IsOpen() const { return open_; }
    QAccessible::Role AccessibleRole() const override { return QAccessible::MenuItem; }
    QAccessibleInterface* MakeAccessible() override;

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void leaveEvent(QEvent*) override;

private:
    void PaintTitle(QPainter& painter) const;
    void PaintItem(QPainter& painter) const;

    Kind kind_;
    QString caption_;
    bool hilited_ = false;
    bool open_ = false;
};
