"""The report's averages: bars against the targets of the average weight, and values."""

from conversions import single, to_integer
from masks import thousands, two_decimals
from nutrients import PERIOD_ROWS, period_unit
from sums import average_weight, in_period, logged_days, members, store_sums

TWIPS = 15


class NoWeight(Exception):
    """The period holds no weight, so that there is no average."""


def average_text(total, days):
    """An average in the list of values.

    >>> average_text(24.0, 2), average_text(0.0, 2), average_text(2469.0, 2)
    ('12.', '0', '1,235')
    """
    if total == 0:
        return "0"
    average = total / days
    return two_decimals(average) if average < 100 else thousands(average)


def value_text(total, days, unit):
    """The run of points, the average and the unit."""
    return "." * 148 + average_text(total, days) + " " + unit


def bar_width(days, total, target):
    """Twips of a bar: four pixels a percent, up to 133.5 percent.

    >>> bar_width(2, 100.0, 100.0), bar_width(1, 1.0, 0.0), bar_width(1, -1.0, 1.0)
    (3000.0, 8010.0, 0.0)
    """
    width = TWIPS * 400 * (total / days / (target or 0.001))
    limit = TWIPS * 534
    if single(width) > limit:
        width = float(limit)
    return max(width, 0.0)


def report_weight(weights, first, last):
    """The average weight in whole pounds."""
    average = average_weight(weights, first, last)
    if average is None:
        raise NoWeight
    return to_integer(average)


def header(weight):
    """
    >>> header(150)
    ' Percent RDI (avg weight: 150 lbs)'
    """
    return f" Percent RDI (avg weight: {weight} lbs)"


def rows(log, first, last, targets):
    """Name, width and text of each of the 31 rows, or None without anything logged."""
    entries = in_period(log, first, last)
    if not entries:
        return None
    record, days = members(store_sums(entries)), logged_days(entries)
    return [(name, bar_width(days, record[name], targets[name]),
             value_text(record[name], days, period_unit(name))) for name in PERIOD_ROWS]
