"""A whole day with a screen reader alone: a profile, a search, foods, a weight, the report and a
recipe. What was read is compared with what the files hold."""

import sqlite3
import sys

from every_screen import from_menu, in_dialog, search
from first_start import first_start
from reader import Missing, Reader, State


class Wrong(Exception):
    """The program says or keeps something else than it should."""


def expect(found, wanted, what):
    if found != wanted:
        raise Wrong(f"{what}: {found!r}, not {wanted!r}")
    print("ok  ", what)


class Day:
    def __init__(self, reader):
        self.reader = reader

    def stored(self, sql):
        with sqlite3.connect(f"file:{self.reader.folder / 'users.mdb'}?mode=ro", uri=True) as users:
            return users.execute(sql).fetchall()

    def expect_stored(self, sql, wanted):
        self.reader.wait(f"{sql} gives {wanted}", lambda: self.stored(sql) == wanted)
        print("ok  ", sql)

    def open_screen(self, button, screen=None):
        self.reader.press("radio button", button + "$")
        self.reader.find("panel", (screen or button) + "$")

    def make_profile(self):
        first_start(self.reader)
        self.expect_stored("SELECT UserName, age, current_weight FROM profiles", [("Ann", 40, 150)])

    def choose_day(self):
        """The chosen day of the calendar is today."""
        chosen = self.reader.wait("the chosen day", lambda: next(
            (node for node in self.reader.seen() if node.role == "push button" and node.name.endswith(", chosen")),
            None))
        chosen.act("Press")
        self.reader.find("panel", "Daily Details")

    def eat(self, meal, words, food, quantity):
        def within():
            self.reader.press("radio button", meal + "$")
            found = search(self.reader, words)
            if not found.name.startswith(food):
                raise Wrong(f"{words} finds {found}")
            self.reader.find("text", f"Quantity of {food}").type(quantity)
            self.reader.press("push button", f"Add {food}")
            self.reader.find("push button", f"Remove {food}")

        in_dialog(self.reader, lambda: self.reader.press("push button", "Eat foods"), "Food Search", within, "Done")

    def log_foods(self):
        self.eat("Breakfast", "butter salted", "Butter, salted", "2")
        self.eat("Lunch", "apples raw with skin", "Apples, raw, with skin", "1.5")
        self.expect_stored("SELECT Meal, FoodName, QTY FROM USER_FOODS",
                           [("Breakfast", "Butter, salted", 2), ("Lunch", "Apples, raw, with skin", 1.5)])
        line = self.reader.find("list item", "Butter, salted").name
        expect(line.endswith(", (x 2)") and ", ," not in line, True, f"a line of the day reads: {line}")

    def remove_and_undo(self):
        """All that can be done with a food is in its menu."""
        for food, item, left in (("Butter, salted", "Remove", 1), ("Apples, raw", "Undo", 2)):
            self.reader.press("list item", food)
            self.reader.press("menu item", item)
            self.expect_stored("SELECT count(*) FROM USER_FOODS", [(left,)])

    def weigh(self):
        field = self.reader.find("text", "Today's weight")
        field.focus()
        self.reader.wait("the field has the keyboard", lambda: field.has(State.FOCUSED))
        field.type("148.5")
        self.reader.find("push button", "Eat foods").focus()
        self.expect_stored("SELECT Weight FROM USER_WEIGHTS", [(148.5,)])

    def read_the_totals(self):
        table = self.reader.find("table", "Daily summary")
        rows = table.table()
        expect(rows[0][0], "Calories", "the totals begin with the calories")
        calories = self.stored("SELECT sum(Calories) FROM USER_FOODS")[0][0]
        said = float(rows[0][1].split()[0].replace(",", ""))
        expect(abs(said - calories) <= 1, True, f"the table says {rows[0]}, the files hold {calories}")

    def read_the_report(self):
        self.open_screen("Reports", "Report")
        for view, table in (("Line chart", "Weights of the period"), ("Pie chart", "Caloric Breakdown"),
                            ("Bar chart", "Average intake")):
            self.reader.press("radio button", view)
            rows = self.reader.find("table", table).table()
            expect(bool(rows and all(rows[0])), True, f"{table} reads {rows[0]}")

    def write_a_recipe(self):
        self.open_screen("Recipe Manager")
        self.reader.press("push button", "New$")
        for field, text in (("Recipe name", "Buttered apples"), ("Recipe yield", "2"), ("Serving size", "1 plate"),
                            ("Total time", "10"), ("Preparation instructions", "Butter the apples.")):
            self.reader.type(field, text)

        def add():
            search(self.reader, "butter salted")
            self.reader.press("push button", "Add Butter, salted")
            self.expect_stored("SELECT FoodName FROM Ingredients", [("Butter, salted",)])

        in_dialog(self.reader, lambda: self.reader.press("push button", "Ingredients$"), "Add foods to recipe", add,
                  "Done")
        self.reader.press("push button", "Save Changes")
        self.expect_stored("SELECT RecipeName, RecipeYield, ServingName, Instructions FROM Recipes",
                           [("Buttered apples", 2, "1 plate", "Butter the apples.")])
        self.reader.find("list item", "Butter, salted")

    def eat_the_recipe(self):
        self.open_screen("Daily Details")
        self.eat("Dinner", "buttered apples", "Buttered apples", "0.5")
        self.expect_stored("SELECT FoodName, QTY FROM USER_FOODS WHERE Meal = 'Dinner'", [("Buttered apples", 0.5)])

    def leave(self):
        from_menu(self.reader, "File", "Exit")
        expect(self.reader.end(), 0, "the program ends")

    def go(self):
        for step in (self.make_profile, self.choose_day, self.log_foods, self.remove_and_undo, self.weigh,
                     self.read_the_totals, self.read_the_report, self.write_a_recipe, self.eat_the_recipe,
                     self.leave):
            print("--  ", step.__name__)
            step()


def main():
    reader = Reader(*sys.argv[1:4])
    try:
        reader.start()
        Day(reader).go()
    except (Missing, Wrong) as fault:
        print("FAIL", fault)
        return 1
    finally:
        reader.kill()
    print("the day went through")
    return 0


if __name__ == "__main__":
    sys.exit(main())
