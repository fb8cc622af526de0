"""The table of days: totals of what is known, the share of the targets, and the coverage."""

from amounts import added
from nutrients import PERIOD_ROWS


def grams(entry):
    """Grams of an entry; what is no food of the catalogue counts as 100 grams a serving."""
    weight = 100.0 if entry["grams"] is None else entry["grams"]
    return abs(weight * entry["quantity"])


def known_amount(entry, name):
    """The logged amount, or None where the catalogue does not know the food's value."""
    return None if entry["values"][name] is None else entry["amounts"][name]


def share(part, whole):
    """
    >>> share(50.0, 200.0), share(None, 200.0), share(1.0, 0)
    (25.0, None, None)
    """
    return None if part is None or not whole else part / whole * 100


def coverage(entries, name):
    """The part of the logged grams whose amount is known."""
    known = added([grams(e) for e in entries if known_amount(e, name) is not None])
    return (known or 0.0) / added([grams(e) for e in entries])


def cells(entries, targets, name):
    """Total, target, percent and coverage of one nutrient."""
    known = [known_amount(entry, name) for entry in entries]
    total = added([amount for amount in known if amount is not None])
    return total, targets[name], share(total, targets[name]), coverage(entries, name) * 100


def day_rows(log, targets):
    """Day, number of entries, grams, and the cells of the 31 nutrients, a row a logged day."""
    rows = []
    for day in sorted({entry["day"] for entry in log}):
        entries = [entry for entry in log if entry["day"] == day]
        rows.append((day, len(entries), added([grams(e) for e in entries]),
                     [cells(entries, targets, name) for name in PERIOD_ROWS]))
    return rows
