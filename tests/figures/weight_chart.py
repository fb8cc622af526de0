"""The weight line: date axis, weight axis and the points between them. All in twips."""

from datetime import timedelta

from conversions import to_integer
from dates import short

LEFT, WIDTH = 945, 8200
LABEL_TOPS = (570, 1230, 1890, 2550, 3225, 3885, 4545, 5205)
HALF_LABEL = 105
RISE = 1650


def step_of(days):
    """Days between two labels: four steps reach the last entry.

    >>> [step_of(days) for days in (4, 5, 6, 10, 100)]
    [1, 2, 2, 3, 25]
    """
    step = to_integer(days / 4)
    while step * 4 < days:
        step += 1
    return step


def marks(days):
    """Index, days after the first entry, and left edge of each date label."""
    if days == 0:
        return [(0, 0, LEFT + WIDTH / 2)]
    if days == 1:
        return [(0, 0, LEFT), (4, 1, LEFT + WIDTH)]
    if days == 2:
        return [(0, 0, LEFT), (2, 1, LEFT + WIDTH / 2), (4, 2, LEFT + WIDTH)]
    if days == 3:
        return [(label, k, LEFT + k * WIDTH / 3) for k, label in enumerate((0, 1, 3, 4))]
    return [(k, k * step_of(days), LEFT + k * WIDTH / 4) for k in range(5)]


def date_labels(first, days):
    """Index, text and left edge of each date label.

    >>> from datetime import date
    >>> [text for _, text, _ in date_labels(date(2026, 3, 1), 10)]
    ['3/1/2026', '3/4/2026', '3/7/2026', '3/10/2026', '3/13/2026']
    """
    return [(index, short(first + timedelta(after)), float(left))
            for index, after, left in marks(days)]


def twips_per_day(days):
    """
    >>> [twips_per_day(days) for days in (0, 1, 2, 3, 4, 10)]
    [0, 8200, 4100, 2733, 2050, 683]
    """
    if days == 0:
        return 0
    return to_integer(WIDTH / (days if days < 4 else step_of(days) * 4))


def tick_of(span, days):
    """Pounds between two weight labels; a long time makes a coarse scale too.

    >>> tick_of(0, 0), tick_of(0, 100), tick_of(70, 3)
    (1, 13, 10)
    """
    tick = to_integer(span / 7)
    while tick * 8 < days:
        tick += 1
    return max(tick, 1)


def weight_labels(least, tick):
    """The eight numbers from top to bottom.

    >>> weight_labels(150, 2)
    [164, 162, 160, 158, 156, 154, 152, 150]
    """
    return [max((7 - i) * tick + least, 0) for i in range(8)]


def middle(i):
    """The height on which a label's number lies."""
    return LABEL_TOPS[i] + HALF_LABEL


def between(weight, i, upper, lower):
    """The height of a weight on or between two labels, or None where it is not."""
    if weight == upper:
        return middle(i)
    if weight == lower:
        return middle(i + 1)
    if lower < weight < upper:
        gap = LABEL_TOPS[i + 1] - LABEL_TOPS[i]
        return to_integer(middle(i + 1) - gap * (weight - lower) / (upper - lower))
    return None


def height_of(weight, labels, most, scale):
    """A weight above the top label keeps the first, coarser height."""
    height = to_integer(middle(0) + (most - weight) * scale)
    for i in range(7):
        found = between(weight, i, labels[i], labels[i + 1])
        height = height if found is None else found
    return height


def chosen(weights, first, last):
    """The weights above 0 in the period, in the order of their days."""
    return [(day, weight) for day, weight in sorted(weights)
            if first <= day <= last and weight > 0]


def places(days, label_width):
    """How far right each day stands; the first is below the middle of its label."""
    span = (days[-1] - days[0]).days
    origin = to_integer(float(marks(span)[0][2]) + label_width / 2)
    return [origin + (day - days[0]).days * twips_per_day(span) for day in days]


def chart(weights, first, last, label_width):
    """Date labels, weight labels and points, or None without a weight."""
    points = chosen(weights, first, last)
    if not points:
        return None
    begin, days = points[0][0], (points[-1][0] - points[0][0]).days
    least = to_integer(min(weight for _, weight in points))
    most = to_integer(max(weight for _, weight in points))
    labels = weight_labels(least, tick_of(most - least, days))
    scale = RISE / max(most - least, 1)
    left = places([day for day, _ in points], label_width)
    line = [(x, height_of(weight, labels, most, scale), to_integer(weight))
            for x, (_, weight) in zip(left, points)]
    return date_labels(begin, days), labels, line
