#pragma once

#include "toolkit/Dialog.h"

#include <array>

class QCheckBox;
class QVBoxLayout;
class ucRadio;

/// The preferences: three settings with a box each, a box for shadows that has no effect, and the
/// style.
class frmPrefs : public Dialog {
    Q_OBJECT

public:
    explicit frmPrefs(QWidget* owner = nullptr);

private:
    void LayBoxes(const QRect& place);
    QCheckBox* AddBox(QVBoxLayout* column, const char* name, const char* caption, const char* note);
    void AddStyles(QVBoxLayout* column);
    void AddNote(QVBoxLayout* column, const QString& name, const char* note);
    void Read();
    void Save();

    QCheckBox* ckFast_ = nullptr;
    QCheckBox* ckLimit_ = nullptr;
    QCheckBox* ckAUTO_ = nullptr;
    QCheckBox* ckDrop_ = nullptr;
    std::array<ucRadio*, 4> opStyle_{};
};
