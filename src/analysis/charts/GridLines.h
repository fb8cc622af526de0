#pragma once

class QPainter;

/// The vertical lines behind percent bars, in twips from the left: one every `step` from `origin`
/// to `end`, a dark one every `darkStep`.
struct GridLines {
    int origin, step, darkStep, end;

    static constexpr int Foot = 30; ///< twips that stay free below the lines

    void DrawGrid(QPainter& painter, int height) const; ///< pixels
};
