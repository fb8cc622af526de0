"""Reads every screen and every dialog of the program as a screen reader does: each thing that can be
worked has a role, a name, its state and an action."""

import sys
from pathlib import Path

from first_start import first_start
from reader import Missing, Reader, State

# By role: the action that works it. A field is typed into, a scroll bar takes a value.
ACTIONS = {"push button": {"Press", "ShowMenu"}, "radio button": {"Press"}, "combo box": {"Press"},
           "menu item": {"Press", "ShowMenu"}, "list item": {"Press", "Toggle"}, "check box": {"Toggle"}}
# What holds other things takes the keyboard for them.
HOLDERS = {"panel", "list", "table", "table cell", "frame", "dialog", "window", "scroll pane"}
WORKED = set(ACTIONS) | {"text", "scroll bar", "spin button"}
NAMED = {"image", "table", "popup menu", "dialog", "heading"}
DAYS_SHOWN = 42
NEVER = {"unknown", "invalid", ""}


def faults_of(node):
    role = node.role
    if role in NEVER:
        yield "has no role"
    worked = role in WORKED or node.has(State.FOCUSABLE)
    if (worked or role in NAMED) and not node.name.strip():
        yield "has no name"
    if node.has(State.FOCUSABLE) and role not in WORKED | HOLDERS:
        yield "takes the keyboard and does not say what it is"
    if role in ACTIONS and node.has(State.ENABLED) and ACTIONS[role].isdisjoint(node.actions):
        yield f"cannot be worked: {node.actions}"
    if role == "text" and "Text" not in node.interfaces:
        yield "cannot be read"
    if role == "text" and node.has(State.EDITABLE) and "EditableText" not in node.interfaces:
        yield "cannot be typed into"
    if role == "scroll bar" and "Value" not in node.interfaces:
        yield "has no value"
    if role == "combo box" and not node.text:
        yield "does not say what is chosen"
    if role == "table" and not all(node.heads()):
        yield "has columns without a head"


class Inspection:
    def __init__(self, reader):
        self.reader = reader
        self.faults = []
        self.seen = 0

    def look(self, place):
        # A surface that only holds a text field says that the field has the keyboard.
        for node in list(self.reader.seen()):
            self.seen += 1
            for fault in faults_of(node):
                if not is_surface(node):
                    self.faults.append(f"{place}: {node} {fault}")

    def check_one_of(self, place, names):
        """Exactly one of a set is on."""
        on = [name for name in names
              if self.reader.find("radio button", name + "$").has(State.CHECKED)]
        if len(on) != 1:
            self.faults.append(f"{place}: of {names} are on: {on}")

    def check_days(self, chosen):
        """Each day of the calendar can be pressed, and one is chosen."""
        days = [node for node in self.reader.seen() if node.role == "table cell" and "Press" in node.actions]
        selected = [day.name for day in days if day.has(State.SELECTED)]
        if len(days) != DAYS_SHOWN or selected != [chosen]:
            self.faults.append(f"calendar: {len(days)} days can be pressed, chosen are {selected}")

    def report(self):
        for fault in dict.fromkeys(self.faults):
            print("FAIL", fault)
        print(f"{self.seen} things were read, {len(set(self.faults))} are wrong")
        return 1 if self.faults else 0


def is_surface(node):
    return node.role == "filler" and not node.name and not node.actions


# By button: the screen that it brings.
SCREENS = {"Main": "Main", "Daily Details": "Daily Details", "Reports": "Report", "Custom Foods": "Custom Foods",
           "Recipe Manager": "Recipe Manager"}


def press_title(reader, menu):
    """A menu may have an item that is called as the menu itself."""
    titles = reader.find("menu bar", "Menus").children
    next(title for title in titles if title.name == menu).act("Press")


def look_at_menus(reader, look):
    for menu in ("File", "Edit", "Help"):
        press_title(reader, menu)
        reader.find("popup menu", menu)
        look(f"menu {menu}")
        press_title(reader, menu)
        reader.gone("popup menu", menu)


def look_at_lists(reader, look):
    for combo in ("Month", "Year"):
        reader.press("combo box", combo)
        chosen = reader.find("combo box", combo).text
        reader.wait(f"{chosen} in the list", lambda: any(
            node.role == "list item" and node.name.strip() == chosen and node.has(State.SELECTED)
            for node in reader.seen()))
        look(f"list {combo}")
        reader.press("combo box", combo)
        reader.gone("list", combo)


def in_dialog(reader, open_it, title, within, leave):
    open_it()
    reader.find("dialog", title)
    within()
    reader.press("push button", leave + "$")
    reader.gone("dialog", title)


def from_menu(reader, menu, item):
    press_title(reader, menu)
    reader.press("menu item", item)


def answer(reader, text):
    """The message that begins so, and its button."""
    reader.find("label", text)
    reader.press("push button", "OK$")
    reader.gone("label", text)


def search(reader, words):
    reader.type("Food name", words)
    reader.press("push button", "Search")
    return reader.wait(f"foods for {words}", lambda: next(
        (node for node in reader.seen() if node.role == "list item"), None))


def look_at_search(reader, inspection):
    def within():
        inspection.check_one_of("search", ["Breakfast", "Lunch", "Dinner", "Snacks"])
        search(reader, "butter salted")
        inspection.look("search")
        in_dialog(reader, lambda: reader.press("push button", "Examine Butter, salted"), "Details",
                  lambda: inspection.look("facts"), "Done")
        reader.press("push button", "Add Butter, salted")
        reader.wait("the food in the day", lambda: reader.shows("push button", "Remove Butter, salted"))

    in_dialog(reader, lambda: reader.press("push button", "Eat foods"), "Food Search", within, "Done")


def look_at_screens(reader, inspection):
    for button, screen in SCREENS.items():
        reader.press("radio button", button + "$")
        if screen == "Report":
            answer(reader, "There is no weight entry")
        reader.find("panel", screen + "$")
        inspection.check_one_of(screen, list(SCREENS))
        inspection.look(screen)


def choose_a_day(reader, inspection):
    """The first day of the month that is shown, after that it is chosen."""
    def open_it():
        reader.press("push button", "Select a new date")
        return reader.wait("the chosen day", lambda: next(
            (node for node in reader.seen() if node.role == "table cell" and node.has(State.SELECTED)), None))

    today = open_it().name
    inspection.look("calendar")
    inspection.check_days(today)
    weekday, day, year = today.split(", ")
    other = "02" if day.endswith(" 01") else "01"
    cell = reader.wait("another day", lambda: next(
        (node for node in reader.seen() if node.role == "table cell" and f"{day[:-2]}{other}, {year}" in node.name),
        None))
    name = cell.name
    cell.act("Press")
    reader.gone("table cell", name)
    reader.find("label", name)
    if open_it().name != name:
        inspection.faults.append(f"calendar: {name} was pressed and is not chosen")
    reader.press("table cell", today)
    reader.gone("table cell", today)
    reader.find("label", today)


def look_at_the_preview(reader, inspection):
    """The pages of the day, from the menu of a food."""
    def within():
        reader.find("label", "1 page")
        for paper in PAPERS:
            reader.press("radio button", paper + "$")
            reader.wait(f"{paper} is on", lambda: reader.find("radio button", paper + "$").has(State.CHECKED))
            inspection.check_one_of("print preview", PAPERS)
            inspection.look(f"print preview on {paper}")

    def open_it():
        reader.press("list item", "Butter, salted")
        reader.press("menu item", "Print...")

    in_dialog(reader, open_it, "Print", within, "Done")


def look_at_views(reader, inspection, views):
    for view in views:
        reader.press("radio button", view + "$")
        reader.wait(f"{view} is on", lambda: reader.find("radio button", view + "$").has(State.CHECKED))
        inspection.check_one_of("views", views)
        inspection.look(f"view {view}")


PAPERS = ["Letter", "A4"]
DAY_VIEWS = ["Numeric daily totals", "Pie chart of caloric breakdown", "Bar chart of percent RDI"]
REPORT_VIEWS = ["Pie chart breakdown of caloric intake", "Line chart of daily weights", "Numeric values of averages",
                "Bar chart of Percent RDI"]


def inspect(reader, inspection):
    look = inspection.look
    first_start(reader, look)
    look_at_menus(reader, look)
    look_at_lists(reader, look)
    look_at_screens(reader, inspection)
    reader.press("push button", "New$")
    look("new recipe")
    reader.type("Serving size", "1 bowl")
    in_dialog(reader, lambda: reader.press("push button", "Ingredients"), "Add foods to recipe",
              lambda: (search(reader, "butter salted"), look("ingredients")), "Done")
    reader.press("push button", "Save Changes")
    reader.find("push button", "Edit Recipe")
    look("recipe")
    reader.press("radio button", "Daily Details$")
    look_at_search(reader, inspection)
    look_at_views(reader, inspection, DAY_VIEWS)
    reader.press("list item", "Butter, salted")
    reader.find("popup menu", "Butter, salted")
    look("menu of a food")
    reader.press("menu item", "Change quantity")
    reader.find("text", "Quantity of Butter, salted")
    look("quantity")
    choose_a_day(reader, inspection)
    look_at_the_preview(reader, inspection)
    reader.press("radio button", "Reports$")
    answer(reader, "There is no weight entry")
    look_at_views(reader, inspection, REPORT_VIEWS)
    reader.press("radio button", "Custom Foods$")
    reader.press("push button", "New$")
    reader.find("text", "Food Name")
    look("own food")
    reader.press("push button", "Cancel$")
    reader.press("radio button", "Recipe Manager$")
    in_dialog(reader, lambda: reader.press("push button", "Send to Friend$"), "Send Recipe", lambda: look("send"),
              "Cancel")
    in_dialog(reader, lambda: from_menu(reader, "File", "Import Recipes"), "Import Recipe", lambda: look("import"),
              "Cancel")
    from_menu(reader, "Edit", "Edit My Profile")
    reader.press("push button", "Advanced$")
    look("targets")
    reader.press("push button", "Cancel$")
    in_dialog(reader, lambda: from_menu(reader, "Edit", "Preferences"), "Preferences", lambda: look("preferences"),
              "Cancel")


def main():
    folder, program, delivered = sys.argv[1:4]
    reader = Reader(folder, program, delivered)
    inspection = Inspection(reader)
    try:
        reader.start()
        inspect(reader, inspection)
    except Missing as missing:
        inspection.faults.append(str(missing))
    finally:
        reader.kill()
    return inspection.report()


if __name__ == "__main__":
    sys.exit(main())
