"""The home screen's glance at a month."""

from shares import daily_averages, fractions, percents
from sums import in_period, logged_days, store_sums

ALL_CLAMPED = (True, True, True)


def averages(log, first, last):
    """The averages a logged day, or None with less than one kilocalorie."""
    entries = in_period(log, first, last)
    if not entries:
        return None
    found = daily_averages(store_sums(entries), logged_days(entries))
    return found if found["Calories"] >= 1 else None


def caption(record):
    """
    >>> caption({"Calories": 2000})
    'Average daily calories: 2000'
    """
    return f"Average daily calories: {record['Calories']}"


def shares(record):
    """Here a share of exactly 99.9 becomes 99.8 for each of the three."""
    return percents(fractions(record), ALL_CLAMPED)
