"""A desktop of its own for one journey: a display, a window manager, a message bus with the
accessibility service, and where it is asked for a panel with a tray."""

import os
import re
import shutil
import signal
import subprocess
import tempfile
import time
from pathlib import Path

from gi.repository import Gio, GLib

PANEL = """<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=8;x=0;y=0"/>
      <property name="length" type="uint" value="100"/>
      <property name="size" type="uint" value="30"/>
      <property name="plugin-ids" type="array"><value type="int" value="1"/></property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="systray"/>
  </property>
</channel>
"""

BUS = """<busconfig>
  <type>session</type>
  <listen>unix:dir={folder}</listen>
  <servicedir>{services}</servicedir>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""

SERVICES = {
    "org.a11y.Bus": "/usr/libexec/at-spi-bus-launcher",
    "org.xfce.Xfconf": "/usr/lib/x86_64-linux-gnu/xfce4/xfconf/xfconfd",
}


def until(condition, what, patience=15.0):
    """The first true value of the condition, asked again every few milliseconds."""
    end = time.monotonic() + patience
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise AssertionError(f"{what} did not come about within {patience:.0f} s")
        time.sleep(0.02)


class Desktop:
    """Everything that it starts ends with it."""

    def __init__(self, has_tray=False, size="1280x800"):
        self.has_tray = has_tray
        self.size = size
        self.children = []
        self.secrets = None
        self.root = Path(tempfile.mkdtemp(prefix="quillon-journey-"))
        self.home = self.root / "home"
        self.environment = {}

    def __enter__(self):
        try:
            self._start()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        for child in reversed(self.children):
            if child.poll() is None:
                child.send_signal(signal.SIGTERM)
        for child in reversed(self.children):
            try:
                child.wait(5)
            except subprocess.TimeoutExpired:
                child.kill()
                child.wait()
        shutil.rmtree(self.root, ignore_errors=True)

    def _start(self):
        runtime = self.root / "run"
        for folder in (self.home, runtime, self.root / "services"):
            folder.mkdir()
        runtime.chmod(0o700)
        # The trash, caches and settings of whoever runs the test stay out of it.
        kept = ("PATH", "LANG", "LC_ALL", "TMPDIR", "ASAN_OPTIONS", "UBSAN_OPTIONS")
        self.environment = {name: os.environ[name] for name in kept if name in os.environ}
        self.environment |= {
            "HOME": str(self.home),
            "XDG_RUNTIME_DIR": str(runtime),
            "XDG_CURRENT_DESKTOP": "none",
            "LC_ALL": "C.UTF-8",
            "QT_QPA_PLATFORM": "xcb",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            "QT_QUICK_BACKEND": "software",
            "NO_AT_BRIDGE": "1",
        }
        self.environment["DISPLAY"] = self._display()
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self._bus()
        self.spawn("openbox", "--config-file", "/etc/xdg/openbox/rc.xml")
        if self.has_tray:
            settings = self.home / ".config/xfce4/xfconf/xfce-perchannel-xml"
            settings.mkdir(parents=True)
            (settings / "xfce4-panel.xml").write_text(PANEL)
            self.spawn("xfce4-panel", "--disable-wm-check")
        until(lambda: self.output("xdotool", "get_desktop").strip(), "a window manager")

    def _display(self):
        reading, writing = os.pipe()
        self.spawn("Xvfb", "-displayfd", str(writing), "-screen", "0", f"{self.size}x24",
                   "-nolisten", "tcp", "-noreset", pass_fds=(writing,))
        os.close(writing)
        with os.fdopen(reading) as answer:
            return ":" + answer.readline().strip()

    def _bus(self):
        for name, program in SERVICES.items():
            (self.root / "services" / f"{name}.service").write_text(
                f"[D-BUS Service]\nName={name}\nExec={program}\n")
        config = self.root / "bus.conf"
        config.write_text(BUS.format(folder=self.root, services=self.root / "services"))
        bus = self.spawn("dbus-daemon", "--nofork", "--print-address", f"--config-file={config}",
                         stdout=subprocess.PIPE)
        return bus.stdout.readline().decode().strip()

    def spawn(self, *command, **options):
        """Starts a program on this desktop; what it says goes into the log of its name."""
        log = open(self.root / (Path(command[0]).name + ".log"), "ab")
        options = {"stdout": log, "stderr": log, "stdin": subprocess.DEVNULL} | options
        child = subprocess.Popen(command, env=self.environment, **options)
        log.close()
        self.children.append(child)
        return child

    @property
    def session(self):
        flags = (Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
                 | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)
        return Gio.DBusConnection.new_for_address_sync(
            self.environment["DBUS_SESSION_BUS_ADDRESS"], flags, None, None)

    def has_service(self, name):
        return self.session.call_sync(
            "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "NameHasOwner",
            GLib.Variant("(s)", (name,)), None, Gio.DBusCallFlags.NONE, -1, None).unpack()[0]

    def keyring(self, password=None):
        """Starts the keyring, in place of the one that runs: open, or locked without a password."""
        if self.secrets:
            self.secrets.terminate()
            self.secrets.wait()
            until(lambda: not self.has_service("org.freedesktop.secrets"), "the keyring's end")
        self.secrets = self.spawn("gnome-keyring-daemon", "--foreground", "--components=secrets",
                                  *(["--unlock"] if password else []), stdin=subprocess.PIPE)
        self.secrets.stdin.write((password or "").encode())
        self.secrets.stdin.close()
        until(lambda: self.has_service("org.freedesktop.secrets"), "a keyring")

    def output(self, *command):
        return subprocess.run(command, env=self.environment, capture_output=True, text=True,
                              check=False).stdout

    def log_of(self, program):
        path = self.root / (program + ".log")
        return path.read_text(errors="replace") if path.exists() else ""

    def windows(self, name):
        """The ids of the windows of that title that can be seen."""
        found = self.output("xdotool", "search", "--onlyvisible", "--name", f"^{re.escape(name)}$")
        return found.split()
