"""Dates as the program writes and counts them."""

import calendar

MONTHS = """January February March April May June July August September October November
December""".split()
WEEKDAYS = "Monday Tuesday Wednesday Thursday Friday Saturday Sunday".split()


def short(day):
    """Month first, no leading zeros, a year of four digits.

    >>> from datetime import date
    >>> short(date(2002, 4, 3)), short(date(202, 12, 31))
    ('4/3/2002', '12/31/0202')
    """
    return f"{day.month}/{day.day}/{day.year:04d}"


def padded(day):
    """The mask "mm/dd/yyyy".

    >>> from datetime import date
    >>> padded(date(2002, 4, 3))
    '04/03/2002'
    """
    return f"{day.month:02d}/{day.day:02d}/{day.year:04d}"


def long(day):
    """The mask "dddd, mmmm dd, yyyy".

    >>> from datetime import date
    >>> long(date(2002, 4, 3))
    'Wednesday, April 03, 2002'
    """
    return f"{WEEKDAYS[day.weekday()]}, {MONTHS[day.month - 1]} {day.day:02d}, {day.year:04d}"


def last_day_of_month(day):
    """The number of the last day of the month.

    >>> from datetime import date
    >>> [last_day_of_month(date(y, 2, 1)) for y in (1900, 2000, 2011, 2012)]
    [28, 29, 28, 29]
    """
    return calendar.monthrange(day.year, day.month)[1]


def weekday_from_sunday(day):
    """0 for Sunday to 6 for Saturday.

    >>> from datetime import date
    >>> weekday_from_sunday(date(2026, 3, 1)), weekday_from_sunday(date(2026, 3, 7))
    (0, 6)
    """
    return (day.weekday() + 1) % 7
