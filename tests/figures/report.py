"""The report for a doctor: averages with their coverage, meals, and the weights with a mean."""

import math

from amounts import added
from nutrients import PERIOD_ROWS
from sums import in_period, logged_days
from tables import coverage, known_amount
from weight_chart import RISE, chosen, height_of, places, weight_labels

MEALS = ["Breakfast", "Lunch", "Dinner", "Snacks", "Other"]
DAYS_OF_MEAN = 7
STEPS = 7


def averages(log, first, last):
    """Whether anything is known, the average and the coverage, for each nutrient."""
    entries = in_period(log, first, last)
    rows = []
    for name in PERIOD_ROWS:
        known = [known_amount(entry, name) for entry in entries]
        total = added([amount for amount in known if amount is not None])
        average = 0.0 if total is None else total / logged_days(entries)
        covered = coverage(entries, name) if entries else 0.0
        rows.append((total is not None, average, covered))
    return rows


def meal_of(entry):
    return entry["meal"] or "Other"


def meals(entries):
    """Name, calories and number of foods of each meal that has any."""
    found = []
    for name in MEALS:
        calories = [known_amount(e, "Calories") or 0.0 for e in entries if meal_of(e) == name]
        if calories:
            found.append((name, added(calories), len(calories)))
    return found


def day_meals(log, first, last):
    """Each logged day with its meals."""
    entries = in_period(log, first, last)
    return [(day, meals([entry for entry in entries if entry["day"] == day]))
            for day in sorted({entry["day"] for entry in entries})]


def meal_parts(days):
    """The part of the energy that each meal has; nothing without energy."""
    eaten = [(name, calories) for _, found in days for name, calories, _ in found]
    total = added([calories for _, calories in eaten]) or 0.0
    if not total > 0:
        return []
    sums = [(name, added([calories for other, calories in eaten if other == name]))
            for name in MEALS]
    return [(name, calories / total) for name, calories in sums if calories is not None]


def mean(points, place):
    """The mean of the weights of the seven days that end with that entry.

    >>> from datetime import date
    >>> points = [(date(2026, 3, n), w) for n, w in ((1, 150.0), (7, 152.0), (8, 157.0))]
    >>> [mean(points, place) for place in range(3)]
    [150.0, 151.0, 154.5]
    """
    last = points[place][0]
    window = [weight for day, weight in points[:place + 1] if (last - day).days < DAYS_OF_MEAN]
    return added(window) / len(window)


def axis(points):
    """The labels in whole pounds around all weights, as fine as these allow, and the greatest."""
    least = math.floor(min(weight for _, weight in points))
    span = math.ceil(max(weight for _, weight in points)) - least
    step = -(-span // STEPS)
    return weight_labels(least, max(step, 1)), least + step * STEPS, RISE / max(step * STEPS, 1)


def weights(log, first, last, label_width):
    """Labels, points and the points of the mean, or nothing without a weight."""
    points = chosen(log, first, last)
    if not points:
        return [], [], []
    labels, most, scale = axis(points)
    left = places([day for day, _ in points], label_width)
    line = [(x, height_of(weight, labels, most, scale), round(weight))
            for x, (_, weight) in zip(left, points)]
    means = [(x, height_of(mean(points, i), labels, most, scale)) for i, x in enumerate(left)]
    return labels, line, means
