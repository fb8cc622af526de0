#pragma once

class QWidget;

/// Types a letter into a field and waits until it is painted.
void TypeLetter(QWidget& field);
