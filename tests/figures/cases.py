"""Random persons, logs, texts, numbers and days, as lines of fields between tabs.

The program and the calculation read the same lines. A field that is empty is unknown.
"""

import math
import random
from datetime import date, timedelta

import targets
from nutrients import NUTRIENTS

MEALS = ["Breakfast", "Lunch", "Dinner", "Snacks", ""]
QUANTITIES = [1.0, 2.0, 0.5, 1.5, 0.25, 0.1, 0.333, 3.0, 99.0, 0.05]
EDGES = [0.1, 0.5, 0.6, 1.0, 3.0, 3.1, 8.9, 9.0, 10.0, 13.0, 14.0, 18.0, 19.0, 30.0, 31.0, 50.0,
         51.0, 70.0, 71.0, 999.0, 1000.0]
SPANS = [1, 2, 3, 4, 7, 11, 31, 100, 400]
SERVING_WEIGHTS = [100.0, 28.35, 14.2, 227.0, 30.0, 240.0, 0.5]


def line(*fields):
    """A line; None is an empty field, and a number can be read back to the last bit."""
    return "\t".join("" if f is None else repr(f) if isinstance(f, float) else str(f)
                     for f in fields)


class Cases:
    """All that is random about a run; the same seed makes the same lines."""

    def __init__(self, seed):
        self.random = random.Random(seed)
        self.pick = self.random.choice
        self.whole = self.random.randint

    def chance(self, part):
        return self.random.random() < part

    # Texts, numbers and days

    def text(self):
        signs = "0123456789" * 2 + ".-+ eEx,"
        return line("text", "".join(self.pick(signs) for _ in range(self.whole(0, 9))))

    def any_number(self):
        """Often with few decimals, so that halves are met."""
        number = self.pick([
            lambda: self.whole(-20000, 20000) / 8,
            lambda: self.whole(-200000, 200000) / 1000,
            lambda: self.random.uniform(-200, 200),
            lambda: 10.0 ** self.random.uniform(-6, 12),
            lambda: self.whole(0, 300) + self.pick([0.0, 0.5, 0.005, 0.995, 0.125]),
            lambda: self.pick([-1, 1]) * (2.0 ** 31 + self.whole(-4, 4) / 2),
        ])()
        neighbour = self.pick([number, number, math.nextafter(number, 1e300)])
        return neighbour

    def number(self):
        return line("number", self.any_number())

    def any_day(self):
        return date(self.whole(100, 9999), 1, 1) + timedelta(self.whole(0, 364))

    def days(self):
        day = self.any_day()
        other = self.pick([day, self.any_day(), day.replace(day=1)])
        return line("days", day, other)

    # Persons

    def age(self):
        return self.pick([
            lambda: float(self.whole(1, 110)),
            lambda: float(self.whole(1, 110)),
            lambda: self.whole(1, 400) / 4,
            lambda: self.random.uniform(0, 12),
            lambda: self.pick(EDGES),
        ])()

    def weight(self):
        return self.pick([self.whole(60, 400), self.whole(1, 60), self.whole(400, 5000)])

    def person(self):
        weight = self.weight()
        desired = self.pick([weight, max(1, weight + self.whole(-60, 60)), self.weight()])
        return line("person", self.pick([0, 1, 0, 1, 0, 1, 2]), self.age(), self.whole(20, 90),
                    weight, desired, self.whole(-1, 4), int(self.chance(.05)),
                    int(self.chance(.05)), self.weight())

    def person_at_the_limit(self):
        """About 1500 kilocalories, where a wish to lose weight begins to count."""
        person = targets.Person(self.whole(0, 1), 0.0, self.whole(50, 75), self.whole(90, 220), 0,
                                self.whole(0, 3))
        active = 1.1 * (1 + targets.ACTIVITY[person.activity])
        years = (targets.basal_energy(person) - self.random.uniform(1498, 1503) / active) / (
            6.8 if person.gender else 4.7)
        return line("person", person.gender, years, person.height, person.weight,
                    self.pick([1, person.weight]), person.activity, 0, 0, person.weight)

    # Logs

    def amount(self):
        if self.chance(.1):
            return None
        scale = self.pick([1.0, 10.0, 100.0, 1000.0])
        return self.pick([
            lambda: 0.0,
            lambda: self.whole(0, 400) / 4,
            lambda: self.whole(0, 100000) / 100,
            lambda: self.random.random() * scale,
            lambda: float(self.whole(0, 900)),
        ])()

    def serving(self, name):
        """A description with its weight; neither is sure to be known."""
        weight = self.pick(SERVING_WEIGHTS + [self.random.uniform(1, 300), None])
        return (None, None) if self.chance(.1) else (name, weight)

    def huge_amount(self):
        """A sum of these is beyond a 32-bit integer."""
        return 10.0 ** self.random.uniform(6, 9.5)

    def food(self, i):
        amount = self.huge_amount if self.chance(.02) else self.amount
        return line("food", f"Food {i}", *self.serving("1 cup"), *self.serving("1 tbsp"),
                    *(amount() for _ in NUTRIENTS))

    def quantity(self):
        quantity = self.pick(QUANTITIES + [self.random.uniform(0.01, 20)])
        return -quantity if self.chance(.02) else quantity

    def chosen(self, foods, recipes):
        kind, count = ("recipe", recipes) if recipes and self.chance(.2) else ("food", foods)
        return kind, self.whole(0, count - 1), self.pick("AB"), self.quantity()

    def recipe(self, i, foods):
        """A recipe may hold an earlier one."""
        yield line("recipe", self.pick(["1", "4", "3", "2.5", "abc", "-4", "0", "12 bowls"]))
        for _ in range(self.whole(0, 5)):
            yield line("ingredient", i, *self.chosen(foods, i))
        yield line("card", i)

    def log_person(self):
        age = self.pick([float(self.whole(1, 100)), self.whole(4, 32) / 4, 0.5])
        return line("log", self.whole(0, 1), age, self.whole(4, 6),
                    self.pick([0.0, 5.0, 11.0, 11.5, 6.5]), self.whole(480, 1600) / 4,
                    self.whole(480, 1600) / 4, self.whole(0, 3), int(self.chance(.8)))

    def logged_weight(self):
        return self.pick([
            lambda: 0.0,
            lambda: self.whole(400, 1600) / 4,
            lambda: self.whole(1000, 4000) / 10,
            lambda: self.random.uniform(80, 400),
            lambda: self.random.uniform(0, 2),
        ])()

    def weights(self, days):
        for day in self.random.sample(days, min(len(days), self.whole(0, 14))):
            yield line("weight", day, self.logged_weight())

    def eaten(self, days, foods, recipes):
        """Either few days are dense, or many are sparse."""
        chosen = self.random.sample(days, min(len(days), self.whole(1, 12)))
        for _ in range(self.pick([0, 1, self.whole(2, 40)])):
            yield line("eat", self.pick(chosen), self.pick(MEALS), *self.chosen(foods, recipes))

    def shown(self, days, foods, recipes):
        """What is looked at, in a random order: each look may leave something to the next."""
        looks = [line("day", day) for day in self.random.sample(days, min(len(days), 3))]
        looks += [line("period", days[0], days[-1]), self.period(days), self.period(days)]
        looks += [self.month(self.pick(days)) for _ in range(2)]
        looks += [self.target() for _ in range(self.whole(0, 3))]
        looks += [line("examine", *self.chosen(foods, recipes)) for _ in range(2)]
        self.random.shuffle(looks)
        return looks + [line("tables"), line("report", days[0], days[-1])]

    def target(self):
        """A person may enter any target; a sign is dropped."""
        return line("target", self.pick(NUTRIENTS),
                    self.pick([0.0, self.whole(-800, 8000) / 8, self.random.uniform(0, 9)]))

    def period(self, days):
        """The end may lie before the start."""
        return line("period", self.pick(days), self.pick(days))

    def month(self, day):
        first = day.replace(day=1)
        next_month = (first + timedelta(31)).replace(day=1)
        return line("month", first, next_month - timedelta(1))

    def log(self):
        first = date(self.whole(1992, 2032), 1, 1) + timedelta(self.whole(0, 364))
        days = [first + timedelta(n) for n in range(self.pick(SPANS))]
        foods, recipes = self.whole(1, 6), self.whole(0, 3)
        yield self.log_person()
        yield from (self.food(i) for i in range(foods))
        for i in range(recipes):
            yield from self.recipe(i, foods)
        yield from self.eaten(days, foods, recipes)
        yield from self.weights(days)
        yield from self.shown(days, foods, recipes)

    def lines(self, persons, logs):
        """All lines of a run: as many texts, numbers and days as persons, then the logs."""
        for _ in range(persons):
            person = self.person if self.chance(.9) else self.person_at_the_limit
            yield from (self.text(), self.number(), self.days(), person())
        for _ in range(logs):
            yield from self.log()
