#pragma once

class QPainter;

/// The upright lines behind bars of percent, in twips from the left: one every `step` from `origin`
/// up to `end`, a dark one every `darkStep`.
struct GridLines {
    int origin, step, darkStep, end;

    static constexpr int Foot = 30; ///< twips below the lines

    void DrawGrid(QPainter& painter, int height) const; ///< on a surface of that many pixels
};
