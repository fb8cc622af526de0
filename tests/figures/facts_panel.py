"""The nutrition facts of a chosen food."""

from conversions import shortest, to_display_integer
from masks import percent, thousands, two_decimals
from nutrients import NUTRIENTS

HEADLINES = "TotalFat SatFat Cholesterol Sodium Carbs Fiber Protein".split()


def amount(value):
    """
    >>> [amount(v) for v in (0.0, 0.001, 12.0, 99.994, 100.0, 1234.5)]
    ['0', '0.', '12.', '99.99', '100', '1,235']
    """
    if value == 0:
        return "0"
    return two_decimals(value) if value < 100 else thousands(value)


def whole_caption(caption):
    """A caption read back as a whole number."""
    return to_display_integer(float(caption.replace(",", "")))


def fat_calories(amounts):
    """Never more than the calories themselves.

    >>> fat_calories({"Calories": 10.0, "TotalFat": 2.0})
    '10.'
    >>> fat_calories({"Calories": 30.0, "TotalFat": 2.5})
    '22.5'
    """
    fat, energy = amount(amounts["TotalFat"] * 9), amount(amounts["Calories"])
    return energy if whole_caption(fat) > whole_caption(energy) else fat


def shares(amounts, targets):
    """The percentages of the daily value; without a target there is none."""
    return {name: percent(amounts[name] / targets[name]) if targets[name] else "--"
            for name in HEADLINES}


def serving(text, quantity):
    """
    >>> serving("1 cup", 1.5)
    '1 cup (X 1.5)'
    """
    return f"{text} (X {shortest(quantity)})"


def texts(amounts):
    """The text of each amount."""
    return {name: amount(amounts[name]) for name in NUTRIENTS}
