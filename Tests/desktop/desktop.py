"""Drives the running program as assistive technology does: with the facts that the program tells the
accessibility bus, and with keyboard and mouse.

Functions that wait do so for twenty seconds at most, and fail when the wait was in vain.
"""

import contextlib
import os
import subprocess
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE_IN_SECONDS = 20.0

KEYS = {"Tab": 0xFF09, "Return": 0xFF0D, "Escape": 0xFF1B, "Down": 0xFF54, "End": 0xFF57, "F1": 0xFFBE}
MODIFIERS = {"Shift": 50, "Ctrl": 37, "Alt": 64}  # key codes


def wait_for(what, condition):
    """Waits until the condition returns a true value, and returns this value."""
    deadline = time.monotonic() + PATIENCE_IN_SECONDS
    while True:
        while GLib.MainContext.default().iteration(False):
            pass
        try:
            found = condition()
        except GLib.GError:
            found = None  # the object has just gone
        if found:
            return found
        if time.monotonic() > deadline:
            raise AssertionError(f"waited in vain for {what}")
        time.sleep(0.02)


def insist(what, act, condition):
    """Acts once every three seconds until the condition holds.

    On a slow machine two clicks may be too far apart for a double click, a key may come before the
    window listens to it, and a button takes no click while the part that it moves is still moving.
    """
    due = time.monotonic()

    def comes_true():
        nonlocal due
        if condition():
            return True
        if time.monotonic() >= due:
            act()
            due = time.monotonic() + 3.0
        return False
    wait_for(what, comes_true)


def children(accessible):
    found = [accessible.get_child_at_index(index) for index in range(accessible.get_child_count())]
    return [child for child in found if child is not None]


def everything_in(accessible):
    yield accessible
    for child in children(accessible):
        yield from everything_in(child)


def states(accessible):
    return {state.value_nick for state in accessible.get_state_set().get_states()}


def role_of(accessible):
    """The name of a control's role. Older versions of the bindings call a button a push button."""
    name = accessible.get_role_name()
    return "button" if name == "push button" else name


def text_of(accessible):
    return Atspi.Text.get_text(accessible, 0, -1)


def label_of(accessible):
    for relation in accessible.get_relation_set():
        if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY:
            return relation.get_target(0).get_name()
    return None


def perform(accessible, action):
    names = [Atspi.Action.get_action_name(accessible, index)
             for index in range(Atspi.Action.get_n_actions(accessible))]
    Atspi.Action.do_action(accessible, names.index(action))


def press(combination):
    """Presses a key with the modifiers that are named before it, as in "Ctrl+Shift+Return"."""
    *modifiers, key = combination.split("+")
    with held(*(MODIFIERS[modifier] for modifier in modifiers)):
        Atspi.generate_keyboard_event(KEYS.get(key) or ord(key), None, Atspi.KeySynthType.SYM)


@contextlib.contextmanager
def held(*codes):
    """Holds the keys with these codes down."""
    for code in codes:
        Atspi.generate_keyboard_event(code, None, Atspi.KeySynthType.PRESS)
    try:
        yield
    finally:
        for code in codes:
            Atspi.generate_keyboard_event(code, None, Atspi.KeySynthType.RELEASE)


def type_text(text):
    for character in text:
        press(character)


def place_of(accessible):
    """The place of a control on the screen: left, top, right, bottom."""
    box = Atspi.Component.get_extents(accessible, Atspi.CoordType.SCREEN)
    return box.x, box.y, box.x + box.width, box.y + box.height


def click(accessible, times=1):
    left, top, right, bottom = place_of(accessible)
    center = ((left + right) // 2, (top + bottom) // 2)
    Atspi.generate_mouse_event(*center, {1: "b1c", 2: "b1d"}[times])


class Application:
    """The program, started anew; its controls by what a person calls them.

    It finds no web browser here, whatever the machine has. `variables` are added to its environment.
    """

    def __init__(self, program, **variables):
        self.focused = ("nothing", "")  # role and name of the last control that got the keyboard
        self.announced = []  # the texts of notifications, in order
        self.described = []  # the labels of controls with a new description
        self._listeners = [self._listen("object:state-changed:focused", self._focus_did_move),
                           self._listen("object:state-changed:showing", self._something_did_appear),
                           self._listen("object:property-change:accessible-description",
                                        self._something_was_described)]
        environment = {**os.environ, "XDG_DATA_DIRS": "/nonexistent", **variables}
        environment.pop("BROWSER", None)
        self._process = subprocess.Popen([program], env=environment)
        self.root = wait_for("the program", lambda: self._named(Atspi.get_desktop(0), "KXConfig"))
        self.root.set_cache_mask(Atspi.Cache.NONE)  # every query gives the present state
        self.window = wait_for("an active window", self._active_window)

    def close(self):
        """Closes the window with the keyboard, and returns the exit status."""
        press("Ctrl+q")
        return self._process.wait(PATIENCE_IN_SECONDS)

    def process_id(self):
        return self._process.pid

    def order_to_end(self):
        """Tells the program to end, as the end of a session does, and returns the exit status."""
        self._process.terminate()
        return self._process.wait(PATIENCE_IN_SECONDS)

    def end(self):
        """Ends the program if it still runs."""
        for listener, event in self._listeners:
            listener.deregister(event)
        if self._process.poll() is None:
            self._process.kill()
            self._process.wait()

    def control(self, role, name):
        def find():
            for each in everything_in(self.window):
                if role_of(each) == role and name in (each.get_name(), label_of(each)):
                    return each
            return None
        return wait_for(f"the {role} {name}", find)

    def window_titled(self, title):
        """The window with this title on the screen, or None."""
        window = self._named(self.root, title)
        return window if window is not None and "showing" in states(window) else None

    def button(self, name):
        return self.control("button", name)

    def pop_up(self, label):
        return self.control("combo box", label)

    def field(self, label):
        return self.control("text", label)

    def table(self, name):
        return self.control("table", name)

    def rows_of(self, name):
        """The texts of the cells, a list for each row."""
        table = self.table(name)
        return [[Atspi.Table.get_accessible_at(table, row, column).get_name()
                 for column in range(Atspi.Table.get_n_columns(table))]
                for row in range(Atspi.Table.get_n_rows(table))]

    def discover(self, count):
        """Presses Discover, once the earlier discovery has listed its units, and waits for COUNT units."""
        self.wait_for_units(count)
        self.described.clear()
        perform(self.button("Discover"), "Press")
        wait_for("an empty list", lambda: "Unit:" in self.described)
        self.wait_for_units(count)

    def wait_for_units(self, count):
        """Waits until this many units are listed."""
        units = self.pop_up("Unit:")
        wait_for(f"{count} units", lambda: len(children(children(units)[0])) == count)

    def open_log(self):
        """Opens the event log, and returns its lines."""
        perform(self.button("Event Log"), "Press")
        return self.wait_for_log()

    def wait_for_log(self):
        """Waits until the event log has slid out, and returns its lines."""
        log = self.field("Event log text")
        wait_for("the event log", lambda: "showing" in states(log) and text_of(log))

        def is_at_rest():
            window, place = place_of(self.window), place_of(log)
            # Its distances to the lower edge and to the edge at its side are then equal.
            return window[3] - place[3] == place[0] - window[0]
        wait_for("the event log at rest", is_at_rest)
        return text_of(log).split("\n")

    def choose(self, label, title):
        """Opens the list of a pop-up with the mouse, and clicks the item with this title."""
        pop_up = self.pop_up(label)
        click(pop_up)
        items = wait_for("an open list", lambda: children(pop_up)[0]
                         if "showing" in states(children(pop_up)[0]) else None)
        click(wait_for(f"the item {title}", lambda: self._named(items, title)))
        wait_for(f"{title} in the pop-up", lambda: self.pop_up(label).get_name() == title)

    def cell(self, table, row, column):
        return Atspi.Table.get_accessible_at(self.table(table), row, column)

    def note(self):
        """The text of the quiet line, which stands below the line below Discover."""
        notes = [each for each in everything_in(self.window)
                 if role_of(each) == "notification" and "showing" in states(each)]
        assert len(notes) == 2, notes
        notes.sort(key=lambda each: Atspi.Component.get_extents(each, Atspi.CoordType.SCREEN).y)
        return notes[1].get_name()

    def wait_for_focus(self, role, name):
        """Waits until the control with this name or label has the keyboard."""
        wait_for(f"the keyboard at the {role} {name}", lambda: self.focused == (role, name))

    def _active_window(self):
        for window in children(self.root):
            if role_of(window) == "frame" and "active" in states(window):
                return window
        return None

    @staticmethod
    def _named(parent, name):
        for child in children(parent):
            if child.get_name() == name:
                return child
        return None

    @staticmethod
    def _listen(event, heard):
        def report(told):
            try:
                heard(told)
            except GLib.GError:
                pass  # it was gone before the query
        listener = Atspi.EventListener.new(report)
        listener.register(event)
        return listener, event

    def _focus_did_move(self, event):
        if event.detail1:
            source = event.source
            self.focused = (role_of(source), label_of(source) or source.get_name())

    def _something_was_described(self, event):
        self.described.append(label_of(event.source))

    def _something_did_appear(self, event):
        if event.detail1 and role_of(event.source) == "notification":
            self.announced.append(event.source.get_name())
