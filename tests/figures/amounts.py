"""The amounts of a food or a recipe at a quantity."""

from conversions import shortest, to_display_integer, val
from nutrients import NUTRIENTS


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
    """The values one after the other, from the first.

    >>> added([0.1, 0.2, 0.3]), added([])
    (0.6000000000000001, None)
    """
    total = None
    for value in values:
        total = value if total is None else total + value
    return total


def recipe_sums(ingredients):
    """The 31 sums over the ingredients of a recipe; None without any."""
    return {name: added([row[name] for row in ingredients]) for name in NUTRIENTS}


def recipe_amounts(ingredients, quantity):
    """A quantity of 1 is the whole recipe, whatever its yield."""
    return scaled(recipe_sums(ingredients), 100.0, quantity)


def calories_caption(ingredients, yield_text):
    """The line of the recipe card.

    >>> calories_caption([{"Calories": 1000.0}], "3"), calories_caption([], "3")
    ('Calories: 333 per serving', 'Calories: --')
    >>> [calories_caption([{"Calories": c}], "2") for c in (5.0, 7.0)]
    ['Calories: 2 per serving', 'Calories: 4 per serving']
    >>> calories_caption([{"Calories": 5.0}], "abc")
    'Calories: 5 per serving'
    """
    total = added([row["Calories"] for row in ingredients])
    if total is None:
        return "Calories: --"
    servings = val(yield_text)
    each = to_display_integer(total / (servings or 1.0))
    return f"Calories: {each} per serving"


def quantity_text(quantity):
    """The quantity behind a line of a day or a recipe.

    >>> quantity_text(1.5), quantity_text(2.0)
    ('(x 1.5)', '(x 2)')
    """
    return f"(x {shortest(quantity)})"
