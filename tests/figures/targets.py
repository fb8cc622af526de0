"""Daily targets of a person.

Basal energy is the Harris-Benedict estimate with its rounded coefficients; the micronutrients
come from the delivered table of reference intakes, one row a life stage.
"""

import csv
import dataclasses

from conversions import to_integer
from nutrients import INTEGER_MEMBERS

ACTIVITY = {0: 0.2, 1: 0.6, 2: 0.72, 3: 0.9}
TABLE_MEMBERS = """Ash Calcium Cholesterol Copper Folate Iron Magnesium Manganese Niacin Panto
Phosphorus Riboflavin Selenium Thiamin VitaminA VitaminB12 VitaminB6 VitaminC VitaminE
Zinc""".split()
ADULT_BANDS = [(9, 13), (14, 18), (19, 30), (31, 50), (51, 70), (71, 999)]
MOTHER_BANDS = [(19, 30), (31, 999)]


class NoTargets(Exception):
    """The person has no row in the table, or the floor of the fibre cannot be stored."""


@dataclasses.dataclass
class Person:
    gender: int
    age: float
    height: int
    weight: int
    desired: int
    activity: int
    lactating: bool = False
    pregnant: bool = False


def read_reference(path):
    """The table of reference intakes: a row for each life stage."""
    with open(path, newline="", encoding="utf-8") as table:
        return {row["Profile"]: row for row in csv.DictReader(table, delimiter="\t")}


def band(age, bands):
    """The suffix of the band that holds the age, or nothing in the gap between two bands."""
    for low, high in bands:
        if low <= age <= high:
            return f"_{low}_{high}"
    return ""


def common_stage(gender, age):
    """The life stage by age and gender alone.

    >>> [common_stage(0, age) for age in (0.5, 0.6, 1, 3, 3.1, 8.9, 9, 13.5, 999, 1000)]
    ... # doctest: +NORMALIZE_WHITESPACE
    ['INFANT_0_6 ', 'INFANT_7_12 ', 'CHILD_1_3', 'CHILD_1_3', 'CHILD_4_8', 'CHILD_4_8',
     'FEMALE_9_13', 'FEMALE', 'FEMALE_71_999', 'FEMALE']
    >>> common_stage(1, 40), common_stage(2, 40), common_stage(1, 5e-324)
    ('MALE_31_50', 'FEMALE_31_50', 'INFANT_0_6 ')
    """
    if age < 1:
        return "INFANT_0_6 " if age <= 0.5 else "INFANT_7_12 "
    if age < 9:
        return "CHILD_1_3" if age <= 3 else "CHILD_4_8"
    sex = "MALE" if gender == 1 else "FEMALE"
    # The youngest band has no lower end of its own: who is below 9 is a child.
    return sex + band(age, ADULT_BANDS)


def life_stage(person):
    """The life stage; pregnancy goes before lactation, and neither looks at the gender.

    >>> life_stage(Person(0, 18.5, 65, 130, 130, 1, pregnant=True))
    'FEMALE'
    >>> life_stage(Person(0, 18, 65, 130, 130, 1, lactating=True, pregnant=True))
    'PREGNANCY_0_18'
    """
    stage = common_stage(person.gender, person.age)
    for applies, name in ((person.lactating, "LACTATION"), (person.pregnant, "PREGNANCY")):
        suffix = "_0_18" if person.age <= 18 else band(person.age, MOTHER_BANDS)
        if applies and suffix:
            stage = name + suffix
    return stage


def basal_energy(person):
    """Kilocalories of a day at rest; 0 for a gender that is neither."""
    kilograms = person.weight / 2.2
    centimetres = person.height * 2.54
    if person.gender == 1:
        energy = kilograms * 13.7 + 66
        return energy + centimetres * 5.0 - person.age * 6.8
    if person.gender == 0:
        energy = kilograms * 9.6 + 655
        return energy + centimetres * 1.7 - person.age * 4.7
    return 0.0


def calories(person):
    """The daily energy, less 500 to lose weight or 500 more to gain it."""
    basal = basal_energy(person)
    active = basal * ACTIVITY.get(person.activity, 0.0)
    thermic = (basal + active) * 0.1
    total = to_integer(basal + active + thermic)
    if total >= 1501 and person.weight > person.desired:
        return total - 500
    if person.weight < person.desired:
        return total + 500
    return total


def energy_targets(person):
    """Energy, the macronutrients and the fats, as a new weight brings them.

    >>> targets = energy_targets(Person(1, 40, 70, 200, 170, 2))
    >>> [targets[n] for n in ("Calories", "Protein", "Carbs", "TotalFat", "SatFat")]
    [3149, 236.0, 315.0, 105.0, 35.0]
    """
    energy = calories(person)
    targets = {
        "Calories": energy,
        "Protein": float(to_integer(energy / 4 * 0.3)),
        "Carbs": float(to_integer(energy / 4 * 0.4)),
        "TotalFat": float(to_integer(energy / 9 * 0.3)),
    }
    for fat in ("SatFat", "MonoFat", "PolyFat"):
        targets[fat] = float(to_integer(targets["TotalFat"] / 3))
    return targets


def fibre(age, energy):
    """Grams of fibre; the floor of 25 grams cannot be stored, which is an error.

    >>> fibre(10, 100), fibre(11, 2000), fibre(8.5, 0), fibre(11, 500)
    (15.0, 100.0, 13.5, 25.0)
    >>> fibre(11, 499)
    Traceback (most recent call last):
    targets.NoTargets: fibre
    """
    if age <= 10:
        return float(age + 5)
    grams = energy / 100 * 5
    if grams < 25:
        raise NoTargets("fibre")
    return grams


def table_values(row):
    """The 20 values of a life stage."""
    return {name: to_integer(float(row[name])) if name in INTEGER_MEMBERS else float(row[name])
            for name in TABLE_MEMBERS}


def first_targets(person, reference):
    """All 31 targets of a new profile; the total fat is the sum of its three parts."""
    targets = energy_targets(person)
    parts = targets["MonoFat"] + targets["SatFat"] + targets["PolyFat"]
    targets["TotalFat"] = float(to_integer(parts))
    stage = life_stage(person)
    if stage not in reference:
        raise NoTargets(stage)
    targets.update(table_values(reference[stage]))
    targets.update(Water=1792.0, Sodium=2400, Potassium=3500)
    targets["Fiber"] = fibre(person.age, targets["Calories"])
    return targets
