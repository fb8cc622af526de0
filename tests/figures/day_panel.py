"""The daily summary: bars, values and pie of one day."""

from conversions import shortest, single
from masks import rounded
from nutrients import DAY_ROWS, UNITS
from shares import fractions, percents
from sums import members, store_sums

TWIPS = 15
NO_VALUE = "." * 30 + "0"


def plain_number(value):
    """At most two decimals below 100, a whole number from there on.

    >>> [plain_number(v) for v in (0.0, 12.345, 99.996, 100.0, 1234.5)]
    [0.0, 12.35, 100.0, 100.0, 1235.0]
    """
    return float(rounded(value, 2 if value < 100 else 0)) if value else 0.0


def bar_width(value, target, panel_width):
    """Twips of a bar: a pixel a percent, up to the right edge of the panel.

    >>> bar_width(50.0, 100.0, 4000.0), bar_width(1.0, 0.0, 4000.0), bar_width(-5.0, 1.0, 4000.0)
    (750.0, 3910.0, 0.0)
    """
    width = TWIPS * 100 * (value / (target or 0.001))
    if single(panel_width - 30) < single(width + 60):
        width = panel_width - 30 - 60
    return max(width, 0.0)


def value_text(value, unit):
    """
    >>> value_text(1234.5, "kcal")
    '.......................1235 kcal'
    """
    return "." * 23 + shortest(plain_number(value)) + " " + unit


def has_data(entries):
    """Whether the day holds at least one kilocalorie, after rounding."""
    return bool(entries) and members(store_sums(entries))["Calories"] >= 1


def rows(entries, targets, panel_width):
    """Name, width and text of each of the 28 rows."""
    if not has_data(entries):
        return [(name, 0.0, NO_VALUE) for name in DAY_ROWS]
    record = members(store_sums(entries))
    return [(name, bar_width(record[name], targets[name], panel_width),
             value_text(record[name], UNITS[name])) for name in DAY_ROWS]


def pie(entries):
    """The shares of the day's pie; None when the pie stays as it was."""
    return percents(fractions(members(store_sums(entries))))
