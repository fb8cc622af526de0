"""Where the calories came from: shares, angles and labels of the pie."""

from conversions import bounded, to_display_integer
from masks import whole

TURN = 6.28318530718
LABELS = ("Fat ", "Protein ", "Carbs. ")
NO_DATA = ("Total Fat --", "Protein --", "Carbs. --")
NO_DATA_MONTH = ("Total Fat: --", "Protein: --", "Carbs: --")


def daily_averages(sums, days):
    """Averages a logged day; energy is rounded as a sum and again as an average.

    >>> daily_averages({"Calories": 1.0, "TotalFat": 3.0, "Protein": 0.0, "Carbs": 0.0}, 2)
    {'Calories': 0, 'TotalFat': 1.5, 'Protein': 0.0, 'Carbs': 0.0}
    """
    averages = {name: bounded(sums[name]) / days for name in ("TotalFat", "Protein", "Carbs")}
    energy = to_display_integer(to_display_integer(sums["Calories"]) / days)
    return {"Calories": energy, **averages}


def fractions(record):
    """Fat, protein and carbohydrate as fractions of the stated calories.

    >>> fractions({"Calories": 1800, "TotalFat": 60.0, "Protein": 90.0, "Carbs": 225.0})
    (0.3, 0.2, 0.5)
    """
    energy = record["Calories"]
    return (record["TotalFat"] * 9 / energy, record["Protein"] * 4 / energy,
            record["Carbs"] * 4 / energy)


def clamped(percents, with_boundary):
    """A share that fills the circle becomes 99.8; the flag says for which 99.9 itself does.

    >>> clamped((99.9, 99.9, 99.91), (True, False, False))
    (99.8, 99.9, 99.8)
    """
    return tuple(99.8 if share > 99.9 or (share == 99.9 and boundary) else share
                 for share, boundary in zip(percents, with_boundary))


def percents(parts, with_boundary=(True, False, False)):
    """The three shares of the circle in percent, or None when there is nothing to draw.

    >>> percents((0.0, 0.0, 0.0)) is None
    True
    >>> [round(share, 6) for share in percents((0.3, 0.2, 0.5))]
    [30.0, 20.0, 50.0]
    >>> percents((1.0, 0.0, 0.0))[0]
    99.8
    """
    fat, protein, carbs = (0.0001 if part == 0 else part for part in parts)
    total = fat + protein + carbs
    if not total > 0.00031:
        return None
    return clamped((fat / total * 100, protein / total * 100, carbs / total * 100), with_boundary)


def slices(shares):
    """From and to of the three slices, in percent of the circle."""
    fat, protein, _ = shares
    return ((0.001, fat), (fat, fat + protein), (fat + protein, 99.999))


def angle(percent):
    """Radians from the positive x axis, against the clock.

    >>> angle(100.0), angle(25.0)
    (6.28318530718, 1.570796326795)
    """
    return percent * TURN / 100


def labels(shares):
    """The three texts beside the pie.

    >>> labels((99.8, 0.0001, 0.0001))
    ('Fat 100%', 'Protein 0%', 'Carbs. 0%')
    """
    return tuple(f"{label}{whole(share)}%" for label, share in zip(LABELS, shares))
