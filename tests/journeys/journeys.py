"""What people do with Quillon, from the first start to the last undo. Each journey goes by mouse or by
keyboard alone."""

from model import Model
from visit import Visit

PDF = ("File PDFs", "extension is pdf", "move to ~/Papers")


def first_run(programs, is_mouse):
    """The introduction, to the first folder that is kept tidy."""
    with Visit(programs, is_mouse, onboarded=False) as visit:
        me = visit.me
        me.see("heading", "Welcome to Quillon")
        visit.home("Downloads").mkdir(exist_ok=True)
        me.push("Get Started")
        me.see("heading", "Which folders should stay tidy?")
        me.push("Choose Another Folder…")
        me.choose_path(visit.home("Downloads"))
        me.push("Watch 1 Folder")
        me.see("heading", "Let it run by itself")
        me.push("Continue")
        me.see("heading", "Meet Dobbin")
        me.push("Finish")
        me.see("list item", "Downloads")
        assert visit.rules_of("Downloads") == []
        assert visit.quillon("settings", "get", "hasOnboarded").strip().endswith("true")


def preset(programs, is_mouse):
    """A folder, a ready-made rule for it, and a file that comes in."""
    with Visit(programs, is_mouse) as visit:
        me = visit.me
        visit.home("Downloads").mkdir()
        if is_mouse:
            me.click("push button", "Add Folder")
        else:
            me.press("ctrl+shift+n")
        me.choose_path(visit.home("Downloads"))
        me.see("list item", "Downloads")
        if is_mouse:
            me.click("push button", "Presets")
        else:
            me.press("ctrl+shift+p")
        me.push("Add Tag screenshots")
        me.press("Escape")
        visit.must_hold(lambda: visit.rules_of("Downloads") == ["Tag screenshots"], "the rule")
        visit.put("Downloads/Screenshot 1.png")
        me.see("list item", "Screenshot 1.png", patience=20)


def by_hand(programs, is_mouse):
    """A rule made in the editor."""
    with Visit(programs, is_mouse, folders=["Downloads", "Papers"]) as visit:
        me = visit.me
        me.choose_folder("Downloads")
        me.start_rule()
        me.fill("Name", "Keep letters")
        me.fill("Value", "letter")
        me.push("Folder")
        me.choose_item("Papers")
        me.push("Save Rule")
        visit.must_hold(lambda: visit.rules_of("Downloads") == ["Keep letters"], "the rule")
        visit.put("Downloads/letter to Ana.txt")
        visit.must_hold(visit.home("Papers/letter to Ana.txt").exists, "the filed letter")


def by_sentence(programs, is_mouse):
    """A rule from a sentence."""
    with Model() as model, Visit(programs, is_mouse, folders=["Downloads"], model=model) as visit:
        me = visit.me
        me.choose_folder("Downloads")
        if not is_mouse:
            me.press("ctrl+j")
            me.focus_on("push button", "New Rule", key="F6", most=4)
            me.focus_on("text", "Ask about your files", key="F6", most=4)
            me.press("ctrl+j")
        me.start_rule()
        me.fill("Describe with Dobbin", "Put invoices into Invoices")
        me.push("Draft Rule")
        me.see("text", "Value")
        visit.must_hold(lambda: me.see("text", "Name").text == "File invoices", "the draft")
        me.push("Save Rule")
        visit.must_hold(lambda: visit.rules_of("Downloads") == ["File invoices"], "the rule")


def reorder(programs, is_mouse):
    """The second rule is moved before the first."""
    rules = [("Downloads", "First", "extension is one", "move to ~/Papers"),
             ("Downloads", "Second", "extension is two", "move to ~/Papers")]
    with Visit(programs, is_mouse, folders=["Downloads"], rules=rules) as visit:
        me = visit.me
        me.choose_folder("Downloads")
        if is_mouse:
            me.drag(me.see("push button", "Move Second"), me.see("push button", "Move First"))
        else:
            me.focus_on("list item", "First")
            me.focus_on("list item", "Second", key="Down")
            me.press("alt+Up")
        visit.must_hold(lambda: visit.rules_of("Downloads") == ["Second", "First"], "the new order")
        if not is_mouse:
            me.hold("Delete")
            visit.must_hold(lambda: visit.rules_of("Downloads") == ["First"], "one rule less")


def copy_rule(programs, is_mouse):
    """A rule is dropped on another folder."""
    with Visit(programs, is_mouse, folders=["Downloads", "Desktop"],
               rules=[("Downloads", *PDF)]) as visit:
        me = visit.me
        me.choose_folder("Downloads")
        if is_mouse:
            me.drag(me.see("push button", "Move File PDFs"), me.see("list item", "Desktop"))
        else:
            me.focus_on("list item", "File PDFs")
            me.press("ctrl+shift+c")
            me.choose_item("Desktop")
        me.see("alert message", "Copied “File PDFs” to Desktop")
        assert visit.rules_of("Desktop") == ["File PDFs"]


def clean_up(programs, is_mouse):
    """A clean-up of screenshots, taken back."""
    with Visit(programs, is_mouse, folders=["Downloads"]) as visit:
        me = visit.me
        there = visit.put("Downloads/Screenshot 1.png")
        me.choose_folder("Downloads")
        if is_mouse:
            me.click("push button", "Clean Up")
        else:
            me.press("ctrl+k")
        me.see("check box", "Screenshot 1.png")
        me.push("Tidy")
        tidied = visit.home("Downloads/Screenshots/Screenshot 1.png")
        visit.must_hold(tidied.exists, "the tidied screenshot")
        me.push("Undo")
        visit.must_hold(lambda: there.exists() and not tidied.exists(), "the screenshot's return")


def history_undo(programs, is_mouse):
    """An entry is taken back where it is shown, and the next one in the whole log."""
    with Visit(programs, is_mouse, folders=["Downloads"], rules=[("Downloads", *PDF)]) as visit:
        me = visit.me
        for name in ("plan.pdf", "map.pdf"):
            visit.put(f"Downloads/{name}")
            visit.must_hold(visit.home(f"Papers/{name}").exists, f"the filed {name}")

        def must_be_back(name):
            visit.must_hold(lambda: visit.home(f"Downloads/{name}").exists()
                            and not visit.home(f"Papers/{name}").exists(), f"the return of {name}")
        me.see("list item", "map.pdf")
        if is_mouse:
            me.click("push button", "Undo plan.pdf")
        else:
            me.focus_on("list item", "map.pdf")
            me.focus_on("list item", "plan.pdf", key="Down")
            me.press("ctrl+z")
        must_be_back("plan.pdf")
        assert visit.home("Papers/map.pdf").exists(), "another entry was taken back, too"
        if is_mouse:
            me.click("push button", "See all")
        else:
            me.press("ctrl+h")
        activity = me.see("dialog", "Activity")
        me.see("list item", "map.pdf", within=activity)
        if is_mouse:
            me.click("push button", "Undo map.pdf", within=activity)
        else:
            me.focus_on("list item", "map.pdf")
            me.press("ctrl+z")
        must_be_back("map.pdf")
        me.see_gone("list item", "map.pdf")


def chat(programs, is_mouse):
    """Dobbin suggests a change, which is made."""
    rules = [("Downloads", "Trash old installers", "extension is dmg", "move to trash")]
    with Model() as model, Visit(programs, is_mouse, folders=["Downloads"], rules=rules,
                                 model=model) as visit:
        me = visit.me
        me.choose_folder("Downloads")
        if is_mouse:
            me.click("push button", "Dobbin")
            me.click("text", "Ask about your files")
        else:
            me.press("ctrl+j")
        me.type("Why do my installers go?")
        me.press("Return")
        me.push("Do it")
        visit.must_hold(lambda: not visit.state()["folders"][0]["rules"][0]["isEnabled"],
                        "the rule's end")
        me.see("label", "Done")


def missing_folder(programs, is_mouse):
    """A folder that was moved away is found again, after it was nearly given up."""
    with Visit(programs, is_mouse, folders=["Downloads"], rules=[("Downloads", *PDF)]) as visit:
        me = visit.me
        visit.home("Downloads").rename(visit.home("Incoming"))
        me.see("alert message", "Downloads can’t be found", patience=20)
        me.choose_folder("Downloads")
        me.push("More for Downloads")
        me.choose_item("Remove Downloads…")
        me.see("dialog", "Stop watching Downloads?")
        me.push("Cancel")
        me.push("Locate…")
        me.choose_path(visit.home("Incoming"))
        visit.must_hold(lambda: visit.rules_of("Incoming") == ["File PDFs"], "the folder's return")


TABLE = {journey.__name__.replace("_", "-"): journey for journey in (
    first_run, preset, by_hand, by_sentence, reorder, copy_rule, clean_up, history_undo, chat,
    missing_folder)}
