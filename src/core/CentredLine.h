#pragma once

class QLabel;

/// Lays a line of text over the whole width of its window, in the middle.
void LayCentred(QLabel* line, int top);
