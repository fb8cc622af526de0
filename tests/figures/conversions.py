"""Conversions between texts, doubles and 32-bit integers."""

import math
import re
import struct
from decimal import Decimal

LOWEST, HIGHEST = -2**31, 2**31 - 1

LEADING_NUMBER = re.compile(r"[+-]?([0-9]+\.?[0-9]*|\.[0-9]+)([eE][+-]?[0-9]+)?")


def nearest(value):
    """The nearest whole number; a tie goes to the even neighbour.

    >>> nearest(2.5), nearest(3.5), nearest(-0.5), nearest(150.5), nearest(151.5)
    (2, 4, 0, 150, 152)
    """
    return round(value)


def to_integer(value):
    """Converts to a 32-bit integer, and refuses what does not fit.

    >>> to_integer(2147483647.4)
    2147483647
    >>> to_integer(2147483647.5)
    Traceback (most recent call last):
    OverflowError: 2147483648
    """
    whole = nearest(value)
    if not LOWEST <= whole <= HIGHEST:
        raise OverflowError(whole)
    return whole


def bounded(value):
    """What is shown lies within the bounds of a 32-bit integer."""
    return min(max(value, float(LOWEST)), float(HIGHEST))


def to_display_integer(value):
    """As to_integer, but what does not fit becomes the nearest bound.

    >>> to_display_integer(3e9), to_display_integer(-1e300), to_display_integer(0.5)
    (2147483647, -2147483648, 0)
    """
    return nearest(bounded(value))


def val(text):
    """The number at the start of a text, or 0. Blanks count for nothing.

    >>> val("1 2.5 lb"), val("abc"), val("-.5x"), val("1e2"), val("5."), val(".")
    (12.5, 0.0, -0.5, 100.0, 5.0, 0.0)

    A number that is too large or too small for a double is 0, too.

    >>> val("1e999"), val("-1e-999"), val("-0")
    (0.0, 0.0, -0.0)
    """
    match = LEADING_NUMBER.match(text.replace(" ", ""))
    if not match:
        return 0.0
    value, digits = float(match.group()), float(match.group(1))
    return value if math.isfinite(value) and (value or not digits) else 0.0


def shortest(value):
    """The shortest plain decimal text that reads back as the same double.

    >>> shortest(2.0), shortest(1.5), shortest(0.1), shortest(1e-7), shortest(1e21)
    ('2', '1.5', '0.1', '0.0000001', '1000000000000000000000')
    """
    plain = format(Decimal(repr(value)), "f")
    if "." in plain:
        plain = plain.rstrip("0").rstrip(".")
    return "0" if plain == "-0" else plain


def single(value):
    """The value in single precision, as a double.

    >>> single(0.1), single(0.5)
    (0.10000000149011612, 0.5)
    """
    return struct.unpack("f", struct.pack("f", value))[0]
