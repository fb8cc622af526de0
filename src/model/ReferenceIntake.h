#pragma once

#include <QString>

class User;

/// The statement that selects the person's life stage in the table RDI. The bands end at whole
/// years, so an age between two of them (13.5) or above 999 selects no row.
QString ReferenceStatement(const User& user);
