"""The figures that need no records: of a text, a number, two days, a person."""

from datetime import date

import dates
import day_panel
import facts_panel
import period_chart
import targets
from conversions import shortest, to_display_integer, to_integer, val
from figure_line import line
from masks import percent, whole
from nutrients import NUTRIENTS

ENERGY = "Calories Protein Carbs TotalFat SatFat MonoFat PolyFat".split()


def or_refused(calculate, *arguments):
    try:
        return calculate(*arguments)
    except OverflowError:
        return "refused"


def text_figures(text):
    value = val(text)
    yield line("text", value, or_refused(to_integer, value))


def number_figures(field):
    value = float(field)
    fact = facts_panel.amount(value)
    yield line("number", fact, facts_panel.whole_caption(fact), day_panel.plain_number(value),
               period_chart.average_text(value, 1), percent(value), whole(value), shortest(value),
               to_display_integer(value), or_refused(to_integer, value))


def days_figures(first, second):
    day = date.fromisoformat(first)
    yield line("days", dates.short(day), dates.padded(day), dates.long(day),
               dates.last_day_of_month(day), dates.weekday_from_sunday(day),
               (date.fromisoformat(second) - day).days)


def person_figures(reference, gender, age, *whole_numbers):
    height, weight, desired, activity, lactating, pregnant, later = map(int, whole_numbers)
    person = targets.Person(int(gender), float(age), height, weight, desired, activity,
                            bool(lactating), bool(pregnant))
    try:
        found = targets.first_targets(person, reference)
        yield line("targets", *(found[name] for name in NUTRIENTS))
    except targets.NoTargets:
        yield line("targets", "refused")
    person.weight = later
    found = targets.energy_targets(person)
    yield line("reweighed", *(found[name] for name in ENERGY))
