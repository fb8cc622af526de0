"""The 31 nutrients: name, unit, and the column each has in the log."""

INTEGER_MEMBERS = frozenset(
    "Calcium Calories Cholesterol Folate Magnesium Phosphorus Potassium Sodium".split())

UNITS = {
    "Ash": "g", "Calcium": "mg", "Calories": "kcal", "Carbs": "g", "Cholesterol": "mg",
    "Copper": "mg", "Fiber": "g", "Folate": "mcg", "Iron": "mg", "Magnesium": "mg",
    "Manganese": "mg", "MonoFat": "g", "Niacin": "mg", "Panto": "mg", "Phosphorus": "mg",
    "PolyFat": "g", "Potassium": "mg", "Protein": "g", "Riboflavin": "mg", "SatFat": "g",
    "Selenium": "mg", "Sodium": "mg", "Thiamin": "mg", "TotalFat": "g", "VitaminA": "iu",
    "VitaminB12": "mcg", "VitaminB6": "mg", "VitaminC": "mg", "VitaminE": "mg", "Water": "g",
    "Zinc": "mg",
}

# The order of the columns in the log, the catalogue and the ingredients.
NUTRIENTS = """VitaminC VitaminE VitaminB12 VitaminB6 VitaminA SatFat Potassium PolyFat MonoFat
Folate Water Calories Protein TotalFat Carbs Fiber Ash Calcium Phosphorus Iron Sodium Magnesium
Panto Zinc Copper Manganese Selenium Thiamin Riboflavin Niacin Cholesterol""".split()

DAY_ROWS = """Calories TotalFat SatFat PolyFat MonoFat Cholesterol Sodium Carbs Fiber Protein
Calcium Copper Folate Iron Magnesium Manganese Niacin Phosphorus Potassium Riboflavin Thiamin
Selenium VitaminA VitaminB6 VitaminB12 VitaminC VitaminE Zinc""".split()

PERIOD_ROWS = """Calories TotalFat SatFat PolyFat MonoFat Cholesterol Sodium Carbs Fiber Protein
Ash Calcium Copper Folate Iron Magnesium Manganese Niacin Panto Phosphorus Potassium Riboflavin
Thiamin Selenium VitaminA VitaminB6 VitaminB12 VitaminC VitaminE Water Zinc""".split()


def period_unit(name):
    """The unit behind an average; water alone is written "gm" there.

    >>> period_unit("Water"), period_unit("Protein")
    ('gm', 'g')
    """
    return "gm" if name == "Water" else UNITS[name]
