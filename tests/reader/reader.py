"""Works the real program as a screen reader does: it sees names, roles and states, presses, types
and waits for what the program tells. It never looks at pixels and never sends a key."""

import shutil
import subprocess
import time
from pathlib import Path

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, Gio, GLib  # noqa: E402

# A machine under load may take long for an answer; a hang is still found.
ANSWER_MILLISECONDS = 120_000
WAIT_SECONDS = 300
LOOK_AGAIN_MILLISECONDS = 100

State = Atspi.StateType


class Missing(Exception):
    """What was waited for did not come."""


class Node:
    """One thing that the program shows to assistive tools."""

    def __init__(self, accessible):
        self._accessible = accessible

    @property
    def role(self):
        return self._accessible.get_role_name()

    @property
    def name(self):
        return self._accessible.get_name() or ""

    @property
    def description(self):
        return self._accessible.get_description() or ""

    def has(self, *states):
        held = self._accessible.get_state_set()
        return all(held.contains(state) for state in states)

    def is_shown(self):
        try:
            return self.has(State.SHOWING)
        except GLib.Error:
            return False

    @property
    def interfaces(self):
        return set(self._accessible.get_interfaces())

    @property
    def children(self):
        found = (self._accessible.get_child_at_index(i) for i in range(self._accessible.get_child_count()))
        return [Node(child) for child in found if child is not None]

    def seen(self):
        """This and all that is shown below it, in order."""
        yield self
        for child in self.children:
            if child.has(State.SHOWING):
                yield from child.seen()

    @property
    def actions(self):
        if "Action" not in self.interfaces:
            return []
        count = Atspi.Action.get_n_actions(self._accessible)
        return [Atspi.Action.get_action_name(self._accessible, i) for i in range(count)]

    def act(self, name):
        if not Atspi.Action.do_action(self._accessible, self.actions.index(name)):
            raise Missing(f"{self} does not {name}")
        return True

    @property
    def text(self):
        return Atspi.Text.get_text(self._accessible, 0, -1)

    def type(self, text):
        if not Atspi.EditableText.set_text_contents(self._accessible, text):
            raise Missing(f"{self} takes no text")

    def focus(self):
        self.act("SetFocus")

    def table(self):
        """The rows of a table, each a list of what its cells say."""
        rows = Atspi.Table.get_n_rows(self._accessible)
        columns = Atspi.Table.get_n_columns(self._accessible)
        return [[Atspi.Table.get_accessible_at(self._accessible, row, column).get_name()
                 for column in range(columns)] for row in range(rows)]

    def heads(self):
        columns = Atspi.Table.get_n_columns(self._accessible)
        return [Atspi.Table.get_column_header(self._accessible, column).get_name() for column in range(columns)]

    def __str__(self):
        return f'{self.role} "{self.name}"'


class Reader:
    """Lays the program out in a fresh folder, starts it and reads it."""

    def __init__(self, folder, program, delivered):
        self.folder = Path(folder)
        shutil.copytree(delivered, self.folder)
        shutil.copy(program, self.folder)
        self._command = [self.folder / Path(program).name]
        self._menus = []
        self._process = None
        self._prepare()

    def _prepare(self):
        Atspi.set_timeout(ANSWER_MILLISECONDS, ANSWER_MILLISECONDS)
        Atspi.init()
        enabled = GLib.Variant("(ssv)", ("org.a11y.Status", "IsEnabled", GLib.Variant("b", True)))
        Gio.bus_get_sync(Gio.BusType.SESSION).call_sync(
            "org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set", enabled, None,
            Gio.DBusCallFlags.NONE, ANSWER_MILLISECONDS)
        self._listener = Atspi.EventListener.new(self._listen)
        for kind in ("window", "object"):
            self._listener.register(kind)
        self._desktop = Atspi.get_desktop(0)
        self._desktop.set_cache_mask(Atspi.Cache.NONE)
        # What changes outside of the program tells nobody: files are looked at again now and then.
        GLib.timeout_add(LOOK_AGAIN_MILLISECONDS, lambda: True)

    def _listen(self, event):
        """A context menu belongs to no window: it tells that it is shown."""
        try:
            if event.type == "object:state-changed:showing" and event.detail1:
                shown = Node(event.source)
                if shown.role == "popup menu":
                    self._menus.append(shown)
        except GLib.Error:
            pass  # it is gone already

    def start(self):
        self._process = subprocess.Popen(self._command)
        self.wait("the program", self.program)

    def program(self):
        for i in range(self._desktop.get_child_count()):
            found = self._desktop.get_child_at_index(i)
            if found is not None and found.get_process_id() == self._process.pid:
                found.set_cache_mask(Atspi.Cache.NONE)
                return Node(found)
        return None

    def wait(self, what, condition):
        """Looks again after each event until the condition gives something. What goes away while it
        is looked at is no failure."""
        end = time.monotonic() + WAIT_SECONDS
        while time.monotonic() < end:
            try:
                if found := condition():
                    return found
            except GLib.Error:
                pass
            if self._process.poll() is not None and what != "the end":
                raise Missing(f"{what}: the program has ended with {self._process.returncode}")
            GLib.MainContext.default().iteration(True)
        raise Missing(f"{what}, in:\n{self.tree()}")

    def windows(self):
        """The topmost first: a dialog covers what lies below it."""
        program = self.program()
        windows = program.children if program else []
        return [window for window in reversed(windows + self._open_menus()) if window.has(State.SHOWING)]

    def _open_menus(self):
        self._menus = [menu for menu in self._menus if menu.is_shown()]
        return self._menus

    def seen(self):
        for window in self.windows():
            yield from window.seen()

    def _matching(self, role, name):
        whole = name.endswith("$")
        wanted = name.removesuffix("$")
        for node in self.seen():
            if node.role == role and (node.name == wanted if whole else node.name.startswith(wanted)):
                return node
        return None

    def find(self, role, name):
        """The first of that role whose name begins so, or is so if it ends with a dollar."""
        return self.wait(f'{role} "{name}"', lambda: self._matching(role, name))

    def gone(self, role, name):
        self.wait(f'{role} "{name}" to go', lambda: self._matching(role, name) is None)

    def shows(self, role, name):
        return self._matching(role, name) is not None

    def press(self, role, name):
        """What goes away at that moment is looked for again."""

        def pressed():
            node = self._matching(role, name)
            return node and node.act("Press")

        self.wait(f'{role} "{name}" to press', pressed)

    def type(self, name, text):
        self.find("text", name).type(text)

    def tree(self):
        lines = []

        def add(node, depth):
            lines.append("  " * depth + str(node))
            for child in node.children:
                if child.has(State.SHOWING):
                    add(child, depth + 1)

        try:
            for window in self.windows():
                add(window, 0)
        except (GLib.Error, AttributeError) as error:
            lines.append(str(error))
        return "\n".join(lines)

    def end(self):
        """Waits for the end of the program and gives its exit code."""
        self.wait("the end", lambda: self._process.poll() is not None)
        return self._process.returncode

    def kill(self):
        if self._process and self._process.poll() is None:
            self._process.kill()
            self._process.wait()
