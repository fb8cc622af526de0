#pragma once

#include "toolkit/TitleControl.h"

/// The title of a dialog: docks itself across the top of its parent whenever it is shown.
class ucTitleFlat : public TitleControl {
    Q_OBJECT

public:
    explicit ucTitleFlat(QWidget* parent = nullptr);
    QSize sizeHint() const final;

protected:
    void paintEvent(QPaintEvent*) override;
    void showEvent(QShowEvent*) override;
    bool eventFilter(QObject*, QEvent*) override; ///< follows the parent's width

private:
    void Dock();
};
