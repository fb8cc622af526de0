#pragma once

#include "toolkit/Screen.h"

/// The screen "Daily Details": the chosen day's foods, totals and weight.
class frmDay : public Screen {
    Q_OBJECT

public:
    explicit frmDay(QWidget* parent = nullptr);

    void BeforeShow() override; ///< passes the chosen day to the list and the panel
    void DoWinInit() override;
    void AllOff(const QString& except) override;
    void buildDate();
};
