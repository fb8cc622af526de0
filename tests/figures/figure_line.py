"""A line of figures, as the program prints it."""


def text_of(figure):
    """17 digits tell every double.

    >>> text_of(0.1), text_of(2), text_of("12."), text_of(None)
    ('0.10000000000000001', '2', '12.', '')
    """
    if figure is None:
        return ""
    return "%.17g" % figure if isinstance(figure, (int, float)) else str(figure)


def line(what, *figures):
    return "\t".join([what, *map(text_of, figures)])
