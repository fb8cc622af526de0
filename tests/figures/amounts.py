"""The amounts of a food or a recipe at a quantity."""

import functools
import operator

from conversions import to_integer, val
from nutrients import NUTRIENTS

NO_CALORIES = "Calories: --"


def known(value):
    """Unknown counts as 0."""
    return 0.0 if value is None else value


def scaled(values, grams, quantity):
    """Amounts of a food, from its values in 100 grams.

    >>> scaled({"Calories": 250.0}, 30.0, 2.0)["Calories"]
    150.0
    >>> scaled({"Calories": None}, None, 2.0)["Calories"]
    0.0
    """
    weight = 100.0 if grams is None else grams
    return {name: known(value) / 100 * weight * quantity for name, value in values.items()}


def added(values):
    """The values one after the other, from the first; None without any.

    >>> added([0.1, 0.2, 0.3]), added([-0.0]), added([])
    (0.6000000000000001, 0.0, None)
    """
    return functools.reduce(operator.add, values, 0.0) if values else None


def compensated(values):
    """The same, with the error of each step kept and added at the end (Kahan, Babuska, Neumaier).

    >>> compensated([1e16, 1.0, -1e16]), compensated([0.1] * 10), compensated([])
    (1.0, 1.0, None)
    """
    if not values:
        return None
    total = error = 0.0
    for value in values:
        step = total + value
        big, small = (total, value) if abs(total) > abs(value) else (value, total)
        error += (big - step) + small
        total = step
    return total + error


class Store:
    """How the store adds up: SQLite compensates from 3.43 on."""

    version = 3040000


def store_sum(values):
    """The store's sum of a column, or None without a row."""
    return compensated(values) if Store.version >= 3043000 else added(values)


def recipe_sums(ingredients):
    """The 31 sums over the ingredients of a recipe; None without any."""
    return {name: store_sum([row[name] for row in ingredients]) for name in NUTRIENTS}


def recipe_amounts(ingredients, quantity):
    """A quantity of 1 is the whole recipe, whatever its yield."""
    return scaled(recipe_sums(ingredients), 100.0, quantity)


def calories_caption(ingredients, yield_text):
    """The line of the recipe card, if there is a figure and it fits a whole number.

    >>> calories_caption([{"Calories": 1000.0}], "3"), calories_caption([], "3")
    ('Calories: 333 per serving', 'Calories: --')
    >>> [calories_caption([{"Calories": c}], "2") for c in (5.0, 7.0)]
    ['Calories: 2 per serving', 'Calories: 4 per serving']
    >>> calories_caption([{"Calories": 5.0}], "abc")
    'Calories: 5 per serving'
    """
    total = store_sum([row["Calories"] for row in ingredients])
    if total is None:
        return NO_CALORIES
    try:
        each = to_integer(total / (val(yield_text) or 1.0))
    except OverflowError:
        return NO_CALORIES
    return f"Calories: {each} per serving"
