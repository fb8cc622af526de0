"""Numbers as texts by the masks of the screens. Halves go away from zero, in decimal."""

from decimal import ROUND_HALF_UP, Decimal, localcontext


def rounded(value, places):
    """The decimal number with that many places that lies nearest.

    >>> rounded(0.125, 2), rounded(-2.5, 0)
    (Decimal('0.13'), Decimal('-3'))
    """
    with localcontext() as context:
        context.prec = 400
        return Decimal(repr(value)).quantize(Decimal(1).scaleb(-places), ROUND_HALF_UP)


def two_decimals(value):
    """The mask "0.##": up to two decimals; the point stays without any.

    >>> [two_decimals(v) for v in (12.0, 99.996, 0.5, 0.001, 99.994, -3.456)]
    ['12.', '100.', '0.5', '0.', '99.99', '-3.46']
    """
    number = rounded(value, 2)
    if number == 0:
        return "0."
    return format(number, "f").rstrip("0")


def thousands(value):
    """The masks "###,###" and "##,###" of a number of 100 or more.

    >>> thousands(100.0), thousands(999.5), thousands(1234567.4)
    ('100', '1,000', '1,234,567')
    """
    return format(int(rounded(value, 0)), ",")


def whole(value):
    """The mask "##0".

    >>> whole(33.333), whole(99.8), whole(0.0001), whole(0.5)
    ('33', '100', '0', '1')
    """
    return str(int(rounded(value, 0)))


def percent(value):
    """The mask "##,##0%", which multiplies by 100.

    >>> percent(0.154), percent(12.345), percent(0.0)
    ('15%', '1,235%', '0%')
    """
    with localcontext() as context:
        context.prec = 400
        hundredfold = (Decimal(repr(value)) * 100).quantize(Decimal(1), ROUND_HALF_UP)
    return format(int(hundredfold), ",") + "%"
