"""Boundary cases of the calculation, and the examples in its modules.

Run it in this folder: python3 boundaries.py
"""

import doctest
import importlib
import unittest
from datetime import date

import day_panel
import facts_panel
import month_glance
import period_chart
import shares
import tables
import targets
import weight_chart
from nutrients import DAY_ROWS, NUTRIENTS, PERIOD_ROWS, UNITS

MODULES = """amounts conversions dates day_panel facts_panel figure_line masks month_glance
nutrients period_chart report shares sums tables targets weight_chart""".split()

FIRST = date(2026, 3, 1)


def entry(day=FIRST, **amounts):
    """A logged food with these amounts, and 0 of everything else."""
    return {"day": day, "amounts": {**dict.fromkeys(NUTRIENTS, 0.0), **amounts},
            "values": dict.fromkeys(NUTRIENTS, 0.0), "quantity": 1.0, "grams": None}


def same_target(value):
    return dict.fromkeys(NUTRIENTS, value)


class Nutrients(unittest.TestCase):
    def test_every_list_names_each_nutrient_once(self):
        self.assertEqual(sorted(NUTRIENTS), sorted(UNITS))
        self.assertEqual(sorted(PERIOD_ROWS), sorted(UNITS))
        self.assertEqual(sorted(DAY_ROWS + ["Ash", "Panto", "Water"]), sorted(UNITS))


class Targets(unittest.TestCase):
    REFERENCE = {stage: dict.fromkeys(targets.TABLE_MEMBERS, "2.5") for stage in
                 ("MALE_31_50", "FEMALE_19_30", "CHILD_4_8")}

    def person(self, **facts):
        return targets.Person(**{**dict(gender=1, age=40, height=70, weight=200, desired=170,
                                        activity=2), **facts})

    def test_a_man_of_forty_who_wants_to_lose_weight(self):
        found = targets.first_targets(self.person(), self.REFERENCE)
        self.assertEqual((3149, 105.0, 157.45), (found["Calories"], found["TotalFat"],
                                                 found["Fiber"]))
        self.assertEqual((2, 2.5), (found["Calcium"], found["Zinc"]))

    def test_an_age_between_two_bands_has_no_targets(self):
        with self.assertRaises(targets.NoTargets):
            targets.first_targets(self.person(age=30.5), self.REFERENCE)

    def test_an_unknown_gender_has_no_basal_energy(self):
        self.assertEqual(500, targets.calories(self.person(gender=2, weight=150)))
        self.assertEqual(0, targets.calories(self.person(gender=2)))

    def test_1500_kilocalories_are_not_reduced_and_1501_are(self):
        reduced = {targets.calories(self.person(weight=weight, desired=weight - 1, activity=9))
                   for weight in range(1, 300)}
        kept = {targets.calories(self.person(weight=weight, desired=weight, activity=9))
                for weight in range(1, 300)}
        self.assertEqual({c - 500 if c > 1500 else c for c in kept}, reduced)

    def test_a_new_weight_keeps_the_total_fat_that_its_parts_miss(self):
        differs = 0
        for weight in range(100, 300):
            person = self.person(weight=weight)
            first = targets.first_targets(person, self.REFERENCE)["TotalFat"]
            differs += first != targets.energy_targets(person)["TotalFat"]
        self.assertGreater(differs, 0)


class Day(unittest.TestCase):
    def test_no_entry_and_no_calories_end_alike(self):
        for entries in ([], [entry(Calories=0.5, Protein=50.0)]):
            rows = day_panel.rows(entries, same_target(1.0), 4000.0)
            self.assertEqual({(0.0, day_panel.NO_VALUE)}, {row[1:] for row in rows})

    def test_sums_of_whole_members_are_rounded_to_even(self):
        rows = day_panel.rows([entry(Calories=2.5), entry(Fiber=2.5)], same_target(100.0), 4000.0)
        self.assertEqual(("Calories", 30.0, "." * 23 + "2 kcal"), rows[0])
        self.assertEqual(("Fiber", 37.5, "." * 23 + "2.5 g"), rows[8])

    def test_a_target_of_0_draws_the_whole_length(self):
        rows = day_panel.rows([entry(Calories=1.0)], same_target(0), 4000.0)
        self.assertEqual(3910.0, rows[0][1])

    def test_calories_without_macronutrients_have_no_pie(self):
        self.assertIsNone(day_panel.pie([entry(Calories=100.0)]))

    def test_a_day_of_pure_fat_leaves_slivers(self):
        fat, protein, carbs = day_panel.pie([entry(Calories=90.0, TotalFat=10.0)])
        self.assertEqual(99.8, fat)
        self.assertTrue(0 < protein == carbs < 0.01)


class Period(unittest.TestCase):
    def test_days_without_food_do_not_count(self):
        log = [entry(date(2026, 3, 5), Calories=2000.0)]
        rows = period_chart.rows(log, FIRST, date(2026, 3, 30), same_target(2000))
        self.assertEqual(("Calories", 6000.0, "." * 148 + "2,000 kcal"), rows[0])

    def test_an_end_before_the_start_has_no_rows(self):
        self.assertIsNone(period_chart.rows([entry()], date(2026, 3, 2), FIRST, same_target(1)))

    def test_no_weight_is_an_error(self):
        with self.assertRaises(period_chart.NoWeight):
            period_chart.report_weight([(FIRST, 0.0)], FIRST, FIRST)

    def test_an_average_just_below_100_reads_100_with_its_point(self):
        self.assertEqual("100.", period_chart.average_text(99.996, 1))

    def test_water_is_measured_in_gm(self):
        rows = period_chart.rows([entry(Water=3.0)], FIRST, FIRST, same_target(1))
        self.assertEqual("." * 148 + "3. gm", rows[29][2])


class Pie(unittest.TestCase):
    def test_one_kilocalorie_in_two_days_is_no_data(self):
        sums = {"Calories": 1.0, "TotalFat": 1.0, "Protein": 1.0, "Carbs": 1.0}
        self.assertEqual(0, shares.daily_averages(sums, 2)["Calories"])

    def test_the_month_clamps_a_share_of_exactly_99_9_for_each(self):
        self.assertEqual((99.8,) * 3, shares.clamped((99.9,) * 3, month_glance.ALL_CLAMPED))

    def test_three_equal_parts_read_33_percent_each(self):
        found = shares.percents((0.33, 0.33, 0.33))
        self.assertEqual(("Fat 33%", "Protein 33%", "Carbs. 33%"), shares.labels(found))

    def test_all_energy_from_carbohydrate_fills_the_month(self):
        record = {"Calories": 400, "TotalFat": 0.0, "Protein": 0.0, "Carbs": 100.0}
        self.assertEqual(("Fat 0%", "Protein 0%", "Carbs. 100%"),
                         shares.labels(month_glance.shares(record)))


class Weights(unittest.TestCase):
    def line(self, *weights):
        days = [(date.fromordinal(FIRST.toordinal() + after), weight) for after, weight in weights]
        return weight_chart.chart(days, FIRST, date(2027, 12, 31), 1000.0)

    def test_one_weight_stands_in_the_middle(self):
        dates, labels, points = self.line((0, 150.0))
        self.assertEqual([(0, "3/1/2026", 5045.0)], dates)
        self.assertEqual([157, 156, 155, 154, 153, 152, 151, 150], labels)
        self.assertEqual([(5545, 5310, 150)], points)

    def test_two_days_span_the_whole_width(self):
        _, _, points = self.line((0, 150.0), (1, 157.0))
        self.assertEqual([(1445, 5310, 150), (9645, 675, 157)], points)

    def test_a_long_time_makes_the_weight_scale_coarse(self):
        _, labels, _ = self.line((0, 150.0), (100, 150.0))
        self.assertEqual([150 + 13 * k for k in range(7, -1, -1)], labels)

    def test_a_weight_above_the_top_label_keeps_its_first_height(self):
        _, labels, points = self.line((0, 150.0), (1, 160.0))
        self.assertEqual(157, labels[0])
        self.assertEqual(675, points[1][1])

    def test_a_weight_of_0_does_not_count(self):
        self.assertIsNone(self.line((0, 0.0)))
        self.assertEqual(1, len(self.line((0, 0.0), (1, 150.0))[2]))


class Facts(unittest.TestCase):
    def test_without_a_target_there_is_no_percentage(self):
        found = facts_panel.shares(entry(Protein=0.5)["amounts"], {**same_target(1), "Fiber": 0})
        self.assertEqual(("--", "50%"), (found["Fiber"], found["Protein"]))


class Days(unittest.TestCase):
    def test_what_the_catalogue_does_not_know_is_not_covered(self):
        food = {**entry(Zinc=2.0), "grams": 30.0,
                "values": {**dict.fromkeys(NUTRIENTS, 1.0), "Iron": None}}
        (row,) = tables.day_rows([food, entry(Zinc=1.0)], same_target(12))
        self.assertEqual((FIRST, 2, 130.0), row[:3])
        cells = dict(zip(PERIOD_ROWS, row[3]))
        self.assertEqual((3.0, 12, 25.0, 100.0), cells["Zinc"])
        self.assertEqual((0.0, 12, 0.0, 100.0 / 130.0 * 100), cells["Iron"])


def load_tests(_loader, tests, _pattern):
    for module in MODULES:
        tests.addTests(doctest.DocTestSuite(importlib.import_module(module)))
    return tests


if __name__ == "__main__":
    unittest.main()
