"""A home with folders and rules, and the application at work on it with somebody before it."""

import json
import os
import subprocess
import time

from desktop import Desktop, until
from person import Person


class Visit:
    """Entered, the application runs and its window is there."""

    def __init__(self, programs, is_mouse=True, folders=(), rules=(), model=None, onboarded=True,
                 has_tray=False, settings=None):
        self.programs, self.is_mouse = programs, is_mouse
        self.desktop = Desktop(has_tray)
        self.folders, self.rules = folders, rules
        self.settings = {"hasOnboarded": "true" if onboarded else "false",
                         "ai.localHost": model.host if model else "http://127.0.0.1:9"}
        self.settings |= settings or {}

    def __enter__(self):
        self.desktop.__enter__()
        try:
            for key, value in self.settings.items():
                self.quillon("settings", "set", key, value)
            for folder in self.folders:
                self.home(folder).mkdir(parents=True, exist_ok=True)
                self.quillon("folder", "add", str(self.home(folder)))
            for folder, name, condition, action in self.rules:
                self.quillon("rule", "add", "--folder", str(self.home(folder)), "--name", name,
                             "--if", condition, "--then", action)
            self.start()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, failure=None, *_):
        if failure and "QUILLON_JOURNEY_PICTURE" in os.environ:
            self.desktop.output("import", "-window", "root", os.environ["QUILLON_JOURNEY_PICTURE"])
        self.desktop.__exit__()

    def start(self):
        # A file that may not grow fails to be written, and ends nobody.
        self.app = self.desktop.spawn(str(self.programs / "quillon-app"), restore_signals=False)
        self.me = Person(self.desktop, self.app, self.is_mouse)

    def kill(self):
        """As a power cut would."""
        self.app.kill()
        self.app.wait()

    def home(self, name=""):
        return self.desktop.home / name

    def put(self, name, text="text"):
        """A file that has been there for a while."""
        path = self.home(name)
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)
        an_hour_ago = time.time() - 3600
        os.utime(path, (an_hour_ago, an_hour_ago))
        return path

    def quillon(self, *words):
        told = subprocess.run([str(self.programs / "quillon"), *words],
                              env=self.desktop.environment, capture_output=True, text=True)
        if told.returncode != 0:
            raise AssertionError(f"quillon {' '.join(words)}: {told.stderr}")
        return told.stdout

    def state(self):
        return json.loads((self.home(".local/share/Quillon/store.json")).read_text())

    def rules_of(self, folder):
        """The names of its rules as they are saved."""
        for each in self.state()["folders"]:
            if each["path"] == str(self.home(folder)):
                return [rule["name"] for rule in each["rules"]]
        return None

    def must_hold(self, condition, what, patience=15.0):
        return until(condition, what, patience)
