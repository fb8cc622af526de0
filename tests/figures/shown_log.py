"""One person's records, and what the screens show of them."""

from datetime import date

import amounts
import day_panel
import facts_panel
import month_glance
import period_chart
import report
import shares
import sums
import tables
import targets
import weight_chart
from conversions import nearest, shortest, to_integer, val
from figure_line import line
from nutrients import INTEGER_MEMBERS, NUTRIENTS, PERIOD_ROWS
from pie_picture import LARGE, SMALL, Pie
from single_figures import ENERGY

HEAVIEST = 1_000_000
NULL_IN_NUMBER = 94
NARROW = 15


def unknown_or_number(field):
    return float(field) if field else None


def stored(values):
    """SQLite keeps no sign of a zero."""
    return {name: value + 0.0 for name, value in values.items()}


def visibility(width):
    return "shown" if width > NARROW else "hidden"


class Screens:
    """What the charts show; some of it stays until there is something else to show."""

    def __init__(self, panel_width, label_width):
        self.panel_width, self.label_width = panel_width, label_width
        self.day_pie = Pie("daypie", SMALL, shares.NO_DATA)
        self.month_pie = Pie("monthpie", SMALL, shares.NO_DATA_MONTH)
        self.period_pie = Pie("periodpie", LARGE, shares.NO_DATA,
                              ("Fat 33%", "Protein 33%", "Carbs. 33%"))
        self.month_caption = "Average daily calories:"
        self.average_texts = [""] * len(PERIOD_ROWS)
        self.weight_labels, self.date_labels = [""] * 8, []


class Log:
    """Takes what is entered, and answers each look with the lines of the figures shown."""

    def __init__(self, reference, screens, *fields):
        self.screens = screens
        self.foods, self.recipes, self.yields, self.entries, self.weights = [], [], [], [], []
        self.person, self.automatic = self.entered(fields), fields[7] == "1"
        self.targets = targets.first_targets(self.person, reference)
        self.kept_weight = self.person.weight

    @staticmethod
    def entered(fields):
        gender, age, feet, inches, weight, desired, activity = map(float, fields[:7])
        return targets.Person(int(gender), age, nearest(inches + feet * 12), nearest(weight),
                              nearest(desired), int(activity))

    def profile(self):
        yield line("profile", *(self.targets[name] for name in NUTRIENTS))
        yield self.person_line()

    def person_line(self):
        """The person in memory, then the row of the profile."""
        energy = [self.targets[name] for name in ENERGY]
        return line("person", self.person.weight, *energy, self.kept_weight, *energy)

    def weigh_person(self, weight):
        """Takes a weight, and the targets that follow from it where they are automatic."""
        self.person.weight = to_integer(weight)
        if self.automatic:
            self.targets.update(targets.energy_targets(self.person))
            self.kept_weight = self.person.weight

    def target(self, name, value):
        """A target as entered; those of energy stay only where they are not automatic."""
        entered = abs(float(value))
        self.targets[name] = to_integer(entered) if name in INTEGER_MEMBERS else entered
        self.weigh_person(self.kept_weight)
        return self.profile()

    # What is eaten

    def food(self, name, text_a, grams_a, text_b, grams_b, *values):
        self.foods.append({
            "name": name,
            "A": (text_a or "100 grams", unknown_or_number(grams_a)),
            "B": (text_b or "100 grams", unknown_or_number(grams_b)),
            "values": dict(zip(NUTRIENTS, map(unknown_or_number, values)))})
        return ()

    def recipe(self, servings):
        self.recipes.append([])
        self.yields.append(shortest(abs(val(servings))))
        return ()

    def chosen(self, kind, place, serving, quantity):
        """The entry of a food or a recipe, but for its day."""
        place, quantity = int(place), float(quantity)
        if kind == "recipe":
            rows = [row["amounts"] for row in self.recipes[place]]
            return {"amounts": amounts.recipe_amounts(rows, quantity), "quantity": quantity,
                    "name": "My Recipe", "serving": "1 bowl", "grams": None,
                    "values": dict.fromkeys(NUTRIENTS, 0.0)}
        food = self.foods[place]
        text, grams = food[serving]
        return {"amounts": amounts.scaled(food["values"], grams, quantity), "quantity": quantity,
                "name": food["name"], "serving": text, "grams": grams, "values": food["values"]}

    def ingredient(self, recipe, *choice):
        self.recipes[int(recipe)].append(self.chosen(*choice))
        return ()

    def card(self, recipe):
        rows = self.recipes[int(recipe)]
        caption = amounts.calories_caption([row["amounts"] for row in rows],
                                           self.yields[int(recipe)])
        yield line("card", caption, *(row["quantity"] for row in rows))

    def eat(self, day, meal, *choice):
        entry = {**self.chosen(*choice), "day": date.fromisoformat(day), "meal": meal}
        yield line("amounts", *(entry["amounts"][name] for name in NUTRIENTS))
        self.entries.append({**entry, "amounts": stored(entry["amounts"])})

    def weight(self, day, weight):
        self.weights.append((date.fromisoformat(day), float(weight)))
        return ()

    # What is shown

    def examine(self, *choice):
        entry = self.chosen(*choice)
        found = facts_panel.shares(entry["amounts"], self.targets)
        texts = facts_panel.texts(entry["amounts"])
        yield line("facts", facts_panel.serving(entry["serving"], entry["quantity"]),
                   facts_panel.fat_calories(entry["amounts"]),
                   *(found[name] for name in facts_panel.HEADLINES),
                   *(texts[name] for name in NUTRIENTS))

    def day(self, field):
        day = date.fromisoformat(field)
        weight = dict(self.weights).get(day, 0.0)
        if 0 < weight <= HEAVIEST:
            self.weigh_person(weight)
        yield line("on", self.person.weight, *(self.targets[name] for name in ENERGY))
        yield self.person_line()
        entries = sums.in_period(self.entries, day, day)
        rows = day_panel.rows(entries, self.targets, self.screens.panel_width)
        yield line("day", *(cell for _, width, text in rows
                            for cell in (width, visibility(width), text)))
        has_data = day_panel.has_data(entries)
        yield self.screens.day_pie.show(has_data, day_panel.pie(entries) if has_data else None)

    def month(self, first, last):
        found = month_glance.averages(self.entries, date.fromisoformat(first),
                                      date.fromisoformat(last))
        if found:
            self.screens.month_caption = month_glance.caption(found)
        yield line("month", self.screens.month_caption)
        percents = month_glance.shares(found) if found else None
        yield self.screens.month_pie.show(found is not None, percents)

    def period(self, *fields):
        first, last = map(date.fromisoformat, fields)
        yield from self.averages(first, last)
        yield self.breakdown(first, last)
        yield from self.weight_line(first, last)
        yield self.person_line()

    def averages(self, first, last):
        present = self.person.weight
        try:
            weight = period_chart.report_weight(self.weights, first, last)
        except period_chart.NoWeight:
            yield line("noaverages", NULL_IN_NUMBER)
            return
        self.weigh_person(weight)
        yield line("header", period_chart.header(weight))
        rows = period_chart.rows(self.entries, first, last, self.targets)
        if rows:
            self.screens.average_texts = [text for _, _, text in rows]
            self.weigh_person(present)
        widths = [width for _, width, _ in rows] if rows else [0.0] * len(PERIOD_ROWS)
        yield line("averages", *(cell for width, text in zip(widths, self.screens.average_texts)
                                 for cell in (width, visibility(width), text)))

    def breakdown(self, first, last):
        found = month_glance.averages(self.entries, first, last)
        percents = shares.percents(shares.fractions(found)) if found else None
        return self.screens.period_pie.show(found is not None, percents)

    def weight_line(self, first, last):
        found = weight_chart.chart(self.weights, first, last, self.screens.label_width)
        if found:
            self.screens.date_labels, self.screens.weight_labels = found[:2]
        yield line("weightlabels", *self.screens.weight_labels)
        yield line("datelabels", *(cell for label in self.screens.date_labels for cell in label))
        yield line("line", *(cell for point in (found[2] if found else ()) for cell in point))

    def tables(self):
        for day, count, grams, cells in tables.day_rows(self.entries, self.targets):
            yield line("days", day.isoformat(), count, grams,
                       *(figure for cell in cells for figure in cell))
        for entry in sorted(self.entries, key=lambda entry: entry["day"]):
            yield line("entry", entry["day"].isoformat(), entry["meal"], entry["name"],
                       entry["serving"], entry["quantity"], None,
                       *(tables.known_amount(entry, name) for name in PERIOD_ROWS))

    def report(self, *fields):
        first, last = map(date.fromisoformat, fields)
        yield self.report_averages(first, last)
        days = report.day_meals(self.entries, first, last)
        for day, meals in days:
            total = amounts.added([calories for _, calories, _ in meals])
            yield line("reportday", day.isoformat(), total,
                       *(figure for meal in meals for figure in meal))
        yield line("reportmeals", *(figure for meal in report.meal_parts(days) for figure in meal))
        labels, points, means = report.weights(self.weights, first, last,
                                               self.screens.label_width)
        yield line("reportweights", *labels, *(figure for point in points for figure in point))
        yield line("reportmean", *(figure for point in means for figure in point))

    def report_averages(self, first, last):
        rows = report.averages(self.entries, first, last)
        entries = sums.in_period(self.entries, first, last)
        return line("reportaverages", len(entries), sums.logged_days(entries),
                    *(figure for name, (known, average, covered) in zip(PERIOD_ROWS, rows)
                      for figure in (int(known), average, self.targets[name], covered)))
