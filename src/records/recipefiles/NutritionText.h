#pragma once

#include "records/recipefiles/RecipeDraft.h"

#include <QJsonObject>

/// Keeps the nutrition of a serving that a file states, as a remark, and its energy for comparison.
void ReadNutrition(RecipeDraft& draft, const QJsonObject& nutrition);
