#pragma once

#include "toolkit/Dialog.h"

class QCheckBox;
class QVBoxLayout;

/// The preferences: three settings, and a box for shadows that has no effect.
class frmPrefs : public Dialog {
    Q_OBJECT

public:
    explicit frmPrefs(QWidget* owner = nullptr);

private:
    void LayBoxes(const QRect& place);
    QCheckBox* AddBox(QVBoxLayout* column, const char* name, const char* caption, const char* note);
    void Read();
    void Save();

    QCheckBox* ckFast_ = nullptr;
    QCheckBox* ckLimit_ = nullptr;
    QCheckBox* ckAUTO_ = nullptr;
    QCheckBox* ckDrop_ = nullptr;
};
