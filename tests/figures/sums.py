"""Sums and averages of what was logged.

A sum takes the rows day by day, and within a day in the order of entry.
"""

from amounts import store_sum
from conversions import bounded, to_display_integer
from nutrients import INTEGER_MEMBERS, NUTRIENTS


def in_period(log, first, last):
    """The entries from the first day to the last, in the order in which they are added up."""
    return sorted((entry for entry in log if first <= entry["day"] <= last),
                  key=lambda entry: entry["day"])


def store_sums(entries):
    """The plain sum of each nutrient, or None where nothing was logged."""
    return {name: store_sum([entry["amounts"][name] for entry in entries]) for name in NUTRIENTS}


def members(sums):
    """Sums as the record of nutrients holds them: eight are whole numbers."""
    return {name: to_display_integer(total) if name in INTEGER_MEMBERS else bounded(total)
            for name, total in sums.items()}


def logged_days(entries):
    """The number of different days with something logged."""
    return len({entry["day"] for entry in entries})


def average_weight(weights, first, last):
    """The average weight of a period, or None without a weight above 0.

    >>> from datetime import date
    >>> d = [date(2026, 3, n) for n in (1, 2, 3)]
    >>> average_weight([(d[0], 150.0), (d[1], 0.0), (d[2], 151.0)], d[0], d[2])
    150.5
    """
    chosen = [weight for day, weight in sorted(weights) if first <= day <= last and weight > 0]
    total = store_sum(chosen)
    return None if total is None else total / len(chosen)
