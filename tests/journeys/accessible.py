"""What a screen reader sees of an application: its tree over the accessibility bus."""

from gi.repository import Gio, GLib

PREFIX = "org.a11y.atspi."
STATES = {"checked": 4, "enabled": 8, "expanded": 10, "focusable": 11, "focused": 12,
          "selected": 23, "sensitive": 24, "showing": 25, "visible": 30}


class Node:
    """One accessible thing. Nothing of it is kept: every question is asked anew."""

    def __init__(self, bus, name, path):
        self.bus, self.owner, self.path = bus, name, path

    def __eq__(self, other):
        return isinstance(other, Node) and (self.owner, self.path) == (other.owner, other.path)

    def __hash__(self):
        return hash((self.owner, self.path))

    def _call(self, interface, method, arguments=None):
        return self.bus.call_sync(self.owner, self.path, interface, method, arguments, None,
                                  Gio.DBusCallFlags.NONE, 5000, None).unpack()

    def _property(self, interface, name):
        return self._call("org.freedesktop.DBus.Properties", "Get",
                          GLib.Variant("(ss)", (PREFIX + interface, name)))[0]

    @property
    def name(self):
        return self._property("Accessible", "Name")

    @property
    def description(self):
        return self._property("Accessible", "Description")

    @property
    def role(self):
        return self._call(PREFIX + "Accessible", "GetRoleName")[0]

    @property
    def children(self):
        listed = self._call(PREFIX + "Accessible", "GetChildren")[0]
        return [Node(self.bus, owner, path) for owner, path in listed
                if not path.endswith("/null")]

    @property
    def states(self):
        low, high = self._call(PREFIX + "Accessible", "GetState")[0]
        bits = low | high << 32
        return {name for name, bit in STATES.items() if bits >> bit & 1}

    @property
    def actions(self):
        if not self.has("Action"):
            return []
        return [row[0] for row in self._call(PREFIX + "Action", "GetActions")[0]]

    @property
    def text(self):
        if not self.has("Text"):
            return self.name
        return self._call(PREFIX + "Text", "GetText", GLib.Variant("(ii)", (0, -1)))[0]

    @property
    def extents(self):
        return self._call(PREFIX + "Component", "GetExtents", GLib.Variant("(u)", (0,)))[0]

    def has(self, interface):
        return PREFIX + interface in self._call(PREFIX + "Accessible", "GetInterfaces")[0]

    def do(self, action=0):
        self._call(PREFIX + "Action", "DoAction", GLib.Variant("(i)", (action,)))

    def walk(self, only_showing=True):
        """This and all below it, parents first."""
        try:
            if only_showing and self.role != "application" and "showing" not in self.states:
                return
            children = self.children
        except GLib.Error:  # gone since it was named
            return
        yield self
        for child in children:
            yield from child.walk(only_showing)

    def __str__(self):
        return f"{self.role} “{self.name}”"


class Bus:
    """The accessibility bus of a desktop."""

    def __init__(self, desktop):
        session = desktop.session
        address = session.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress",
                                    None, None, Gio.DBusCallFlags.NONE, -1, None).unpack()[0]
        self.connection = Gio.DBusConnection.new_for_address_sync(
            address, Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
            | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION, None, None)
        self.focused = None
        self.connection.signal_subscribe(
            None, PREFIX + "Event.Object", "StateChanged", None, "focused",
            Gio.DBusSignalFlags.NONE, self._focus_moved)
        self.connection.call_sync(
            PREFIX + "Registry", "/org/a11y/atspi/registry", PREFIX + "Registry", "RegisterEvent",
            GLib.Variant("(s)", ("object:state-changed:focused",)), None,
            Gio.DBusCallFlags.NONE, -1, None)

    def _focus_moved(self, _connection, sender, path, _interface, _signal, arguments):
        if arguments.unpack()[1]:
            self.focused = Node(self.connection, sender, path)

    def hear(self):
        """Takes in what has happened since."""
        while GLib.MainContext.default().iteration(False):
            pass

    def application(self, process_id):
        """The application of that process, once it is there."""
        root = Node(self.connection, PREFIX + "Registry", "/org/a11y/atspi/accessible/root")
        for child in root.children:
            owner = self.connection.call_sync(
                "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                "GetConnectionUnixProcessID", GLib.Variant("(s)", (child.owner,)), None,
                Gio.DBusCallFlags.NONE, -1, None).unpack()[0]
            if owner == process_id:
                return child
        return None
