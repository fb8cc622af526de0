#pragma once

#include <QString>

class User;

/// The statement that selects the row of the table RDI for the person's life stage. An age between
/// two bands (13.5) or above 999 selects no row.
QString ReferenceStatement(const User& user);
