#pragma once

class Guide;
class QWidget;

/// The menu bar on the tour.
class MenuWalk {
public:
    explicit MenuWalk(Guide& guide);

    void Look();            ///< opens each menu and moves the pointer over it
    void Choose(int index); ///< the item of that index

private:
    QWidget* Frame();
    void About();

    Guide& guide_;
};
