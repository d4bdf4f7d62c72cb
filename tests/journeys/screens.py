"""Every screen as a screen reader sees it: each control has a name, takes the keyboard, and can be
operated."""

import subprocess
import time

from gi.repository import GLib

from desktop import Desktop, until
from person import Person

OPERATED = {"push button", "check box", "radio button", "combo box", "menu item", "spin box", "link",
            "toggle button"}
NAMED = OPERATED | {"text", "password text", "list", "list item", "dialog", "heading", "progress bar",
                    "panel", "table", "page tab", "frame"}
REACHED = OPERATED | {"text", "password text"}


def faults(app):
    found = []
    for node in app.walk():
        try:
            role, name, states = node.role, node.name, node.states
            # Qt keeps quiet about the name of a field for secrets; its description says what it is.
            name = name or (node.description if role == "text" else "")
            # Nor can it name what opens around the list of a picker or the days of a calendar, which
            # have the name.
            if role == "dialog" and not name:
                name = " ".join(child.name for child in node.children if child.role in ("list", "table"))
            if role in NAMED and not name.strip():
                found.append(f"a {role} without a name in {surroundings(app, node)}")
            if role in REACHED and "sensitive" in states and "focusable" not in states:
                found.append(f"{role} “{name}” can’t have the keyboard")
            if role in OPERATED and "sensitive" in states and not node.actions:
                found.append(f"{role} “{name}” can’t be operated")
        except GLib.Error:
            continue
    return found


def surroundings(app, wanted):
    """The names of what it lies in."""
    trail = []

    def search(node):
        if node == wanted:
            return True
        for child in node.children:
            if search(child):
                trail.append(node.name or node.role)
                return True
        return False
    search(app)
    return " in ".join(trail[:3])


def at_rest(app):
    """Waits until the tree stays as it is."""
    def still():
        before = [node.path for node in app.walk()]
        time.sleep(0.15)
        return len(before) > 2 and before == [node.path for node in app.walk()]
    until(still, "a screen at rest")


def walk(program, part, parts):
    """Looks at every scene, or at each of so many parts of them."""
    listed = subprocess.run([str(program), "list"], capture_output=True, text=True, check=True)
    scenes = listed.stdout.split()[part - 1::parts]
    assert scenes, "there are no scenes"
    wrong = []
    with Desktop() as desktop:
        for scene in scenes:
            shown = desktop.spawn(str(program), scene, "--stay")
            person = Person(desktop, shown)
            at_rest(person.app)
            wrong += [f"{scene}: {fault}" for fault in faults(person.app)]
            shown.terminate()
            shown.wait()
    assert not wrong, "\n".join(wrong)
