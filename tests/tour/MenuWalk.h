#pragma once

class Guide;
class QWidget;

/// The menu bar on the tour.
class MenuWalk {
public:
    explicit MenuWalk(Guide& guide);

    void Look();            ///< at each menu, open and under the pointer
    void Choose(int index); ///< the item of that index

private:
    QWidget* Frame();
    void About();

    Guide& guide_;
};
