"""What goes wrong while somebody is at work, and what they are told."""

import re
import resource
import time

from desktop import until
from journeys import PDF
from visit import Visit

SHEETS = {"ctrl+n": "New rule", "ctrl+k": "Clean Up Downloads", "ctrl+shift+p": "Presets",
          "ctrl+p": "What would happen in Downloads", "ctrl+h": "Activity"}


def killed(programs):
    """Nothing that was saved is lost, whatever sheet was open."""
    with Visit(programs, False, folders=["Downloads"], rules=[("Downloads", *PDF)]) as visit:
        visit.put("Downloads/Screenshot 1.png")
        for number, (keys, title) in enumerate(SHEETS.items()):
            if number > 0:
                visit.start()
            visit.me.choose_folder("Downloads")
            visit.me.press(keys)
            visit.me.see("dialog", title)
            visit.me.type("half")
            visit.kill()
            assert visit.rules_of("Downloads") == ["File PDFs"], title


def full_disk(programs):
    """A change that can't be saved says so."""
    with Visit(programs, False, folders=["Downloads"], rules=[("Downloads", *PDF)]) as visit:
        me = visit.me
        me.choose_folder("Downloads")
        resource.prlimit(visit.app.pid, resource.RLIMIT_FSIZE, (0, resource.RLIM_INFINITY))
        me.focus_on("list item", "File PDFs")
        me.press("space")
        me.see("alert message", re.compile("^Quillon can’t save your changes: "))


def vanished_folder(programs):
    """A folder that goes says so, and that it is back."""
    with Visit(programs, False, folders=["Downloads"]) as visit:
        me = visit.me
        me.choose_folder("Downloads")
        visit.home("Downloads").rename(visit.home("Elsewhere"))
        me.see("alert message", "Downloads can’t be found", patience=20)
        visit.home("Elsewhere").rename(visit.home("Downloads"))
        me.see_gone("alert message", "Downloads can’t be found", patience=20)


def locked_keyring(programs):
    """The key for Claude can't be had while the keyring is locked."""
    with Visit(programs, False, settings={"ai.useClaude": "true"}) as visit:
        visit.desktop.keyring("a password")
        visit.desktop.keyring()
        visit.me.press("ctrl+comma")
        visit.me.click("radio button", "Dobbin")
        visit.me.see("label", "Your keyring is locked. Unlock it to use Claude.")


def tray(programs):
    """The window goes and comes; what is left of it is the item in the tray."""
    with Visit(programs, True, folders=["Downloads"], has_tray=True) as visit:
        me, desktop = visit.me, visit.desktop
        me.see("list item", "Downloads")
        me.press("ctrl+w")
        until(lambda: not desktop.windows("Quillon"), "a hidden window")
        time.sleep(0.3)
        assert visit.app.poll() is None, "closing the window ended Quillon"
        desktop.output("xdotool", "mousemove", "25", "785", "click", "1")
        me.push("Open Quillon")
        until(lambda: desktop.windows("Quillon"), "the window")


TABLE = {trouble.__name__.replace("_", "-"): trouble for trouble in (
    killed, full_disk, vanished_folder, locked_keyring, tray)}
