#pragma once

#include <QString>

#include <map>

class RecordsChange;

/// The settings that a document holds: those of the person. What belongs to one machine stays
/// there.
namespace DocumentSettings {
std::map<QString, QString> All(); ///< those that have a value
/// Makes the person's settings those of a document, with the commit of the change. One that the
/// document does not hold becomes empty; one that this program does not know is left out.
void Take(const std::map<QString, QString>& settings, RecordsChange& change);
} // namespace DocumentSettings
