"""Somebody at the desktop: sees what is shown, points, clicks and types."""

import re
import time

from gi.repository import GLib

from accessible import Bus
from desktop import until


def fits(text, wanted):
    return bool(wanted.search(text)) if isinstance(wanted, re.Pattern) else text == wanted


class Person:
    """Sits before one application."""

    def __init__(self, desktop, process, is_mouse=True):
        self.desktop, self.is_mouse = desktop, is_mouse
        self.bus = Bus(desktop)
        self.process = process
        self.app = until(lambda: self.bus.application(process.pid), "the application")

    # Seeing.

    def all(self, role=None, name=None, within=None):
        found = []
        for node in (within or self.app).walk():
            try:
                if (name is None or fits(node.name, name)) and (role is None or node.role == role):
                    found.append(node)
            except GLib.Error:
                continue
        return found

    def see(self, role, name, within=None, patience=10.0):
        """Waits for it."""
        def look():
            self._must_run()
            found = self.all(role, name, within)
            return found[0] if found else None
        try:
            return until(look, f"{role} {name}", patience)
        except AssertionError as lost:
            raise AssertionError(f"{lost}; there is\n{self.picture()}") from None

    def sees(self, role, name, within=None):
        return bool(self.all(role, name, within))

    def see_gone(self, role, name, patience=10.0):
        until(lambda: not self.sees(role, name), f"the end of {role} {name}", patience)

    def picture(self):
        """All that is shown, in words."""
        lines = []

        def draw(node, depth):
            try:
                if depth > 0 and "showing" not in node.states:
                    return
                lines.append("  " * depth + str(node))
                children = node.children
            except GLib.Error:
                return
            for child in children:
                draw(child, depth + 1)
        draw(self.app, 0)
        return "\n".join(lines)

    def _must_run(self):
        if self.process.poll() is not None:
            raise AssertionError(f"the application ended with {self.process.returncode}:\n"
                                 + self.desktop.log_of("quillon-app"))

    # Pointing.

    def place(self, node):
        """Where it is once it stands still."""
        def settled():
            before = node.extents
            time.sleep(0.04)
            return before if before == node.extents and before[2] > 0 else None
        x, y, width, height = until(settled, f"rest of {node}", 5)
        return x + width // 2, y + height // 2

    def click(self, role, name, within=None, button=1):
        node = self.see(role, name, within)
        x, y = self.place(node)
        self._do("mousemove", x, y, "click", button)
        return node

    def drag(self, start, end):
        """From the middle of one thing to the middle of another, as a hand does."""
        (from_x, from_y), (to_x, to_y) = self.place(start), self.place(end)
        self._do("mousemove", from_x, from_y, "mousedown", 1)
        steps = 8
        for step in range(1, steps + 1):
            self._do("mousemove", from_x + (to_x - from_x) * step // steps,
                     from_y + (to_y - from_y) * step // steps, "sleep", 0.03)
        self._do("mouseup", 1)

    # Typing.

    def press(self, *keys):
        for key in keys:
            self._do("key", "--clearmodifiers", key)

    def hold(self, key):
        """Until it repeats."""
        self._do("keydown", key, "sleep", 1.2, "keyup", key)

    def type(self, text):
        self._do("type", "--delay", 4, text)

    def focus(self):
        self.bus.hear()
        return self.bus.focused

    def focus_on(self, role, name, key="Tab", most=60):
        """Presses the key until that has the keyboard."""
        def is_there():
            node = self.focus()
            try:
                return node and node.role == role and fits(node.name, name) and node
            except GLib.Error:
                return None
        passed = []
        for _ in range(most):
            if is_there():
                return self.focus()
            before = self.focus()
            self.press(key)
            end = time.monotonic() + 0.4
            while self.focus() == before and time.monotonic() < end:
                time.sleep(0.01)
            try:
                passed.append(str(self.focus()))
            except GLib.Error:
                continue
        raise AssertionError(f"{key} never comes to {role} {name}, but to\n" + "\n".join(passed))

    # Doing the same by either hand.

    def push(self, name, within=None, role="push button"):
        """Presses a button, by mouse or by keyboard."""
        if self.is_mouse:
            self.click(role, name, within)
        else:
            self.focus_on(role, name)
            self.press("space")

    def fill(self, name, text):
        """Puts the text into a field in place of what is there."""
        if self.is_mouse:
            self.click("text", name)
        else:
            self.focus_on("text", name)
        self.press("ctrl+a")
        self.type(text)

    def choose_item(self, item):
        """Takes an item of the menu that is open."""
        if self.is_mouse:
            self.click("menu item", item)
        else:
            self.see("menu item", item)
            self.focus_on("menu item", item, key="Down", most=12)
            self.press("Return")

    def choose_folder(self, name):
        """Shows a folder of the sidebar."""
        self.see("list item", name)
        if self.is_mouse:
            self.click("list item", name)
        else:
            self.focus_on("list item", name)

    def start_rule(self):
        if self.is_mouse:
            self.click("push button", "New Rule")
        else:
            self.press("ctrl+n")
        self.see("dialog", re.compile("rule", re.I))

    def choose_path(self, path):
        """Answers the desktop's own dialogue for files."""
        field = self.see("text", re.compile("^(Directory|Folder|File( name)?):$"))
        name = field.name
        if self.is_mouse:
            self.click("text", name)
        self.press("ctrl+a")
        self.type(str(path))

        def is_answered():
            # The list of names below the field takes the first click or key for itself.
            if self.is_mouse:
                self.click("push button", re.compile("^&?(Choose|Open|Save)$"))
            else:
                self.press("Return")
            end = time.monotonic() + 0.6
            while self.sees("text", name):
                if time.monotonic() > end:
                    return False
            return True
        until(is_answered, "the end of the dialogue", 6)

    def _do(self, *words):
        self._must_run()
        self.desktop.output("xdotool", *map(str, words))
