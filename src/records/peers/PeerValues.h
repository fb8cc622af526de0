#pragma once

#include "records/peers/Imported.h"
#include "records/peers/PeerChoices.h"

#include <QTime>

/// The values of other programs' files that are neither amounts nor plain texts. What cannot be
/// read fails, and the message says why.
namespace PeerValues {
/// A name or a serving without line ends and doubled blanks.
QString Line(const QString& text);
QString Name(const QString& text); ///< fails where there is none

QDate IsoDay(const QString& text);                                 ///< "2026-03-02", "2012-9-10"
QDate SlashDay(const QString& text, PeerChoices::DateOrder order); ///< "03/02/2026"
/// A day whose form is told by its text: with slashes only if the order is known.
QDate Day(const QString& text, std::optional<PeerChoices::DateOrder> order);
/// The day itself; fails if it is none, or of a year in which nobody kept such records.
QDate SoundDay(QDate day, const QString& text);
QTime Time(const QString& text); ///< "7:45 AM", "08:15"; invalid for no text

/// Serving and quantity. Measured units stay with their number, counted ones become a quantity:
/// "40 g" once, but "slice" twice.
void SetPortion(ImportedFood& food, double number, const QString& unit);
void SetPortion(ImportedFood& food, const QString& amount); ///< "2.00 slice"

double Pounds(std::optional<double> weight, WeightUnit unit); ///< fails for what is no weight
} // namespace PeerValues
