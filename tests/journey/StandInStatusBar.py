"""usage: StandInStatusBar.py FOLDER [later]

The status bar of a desktop, on the session bus of the environment, until the input ends: it takes items, and shows none.
Writes the bus name of each item that registers to the folder, a file item-N. Says "ready" when it is there; with "later"
it has nothing to show items with until a line comes."""

import os
import sys

from gi.repository import Gio, GLib

NAME = "org.kde.StatusNotifierWatcher"
INTERFACE = f"""<node><interface name='{NAME}'>
  <method name='RegisterStatusNotifierItem'><arg type='s' direction='in'/></method>
  <method name='RegisterStatusNotifierHost'><arg type='s' direction='in'/></method>
  <signal name='StatusNotifierHostRegistered'/>
  <property name='RegisteredStatusNotifierItems' type='as' access='read'/>
  <property name='IsStatusNotifierHostRegistered' type='b' access='read'/>
  <property name='ProtocolVersion' type='i' access='read'/>
</interface></node>"""
PROPERTIES = {
    "RegisteredStatusNotifierItems": GLib.Variant("as", []),
    "IsStatusNotifierHostRegistered": GLib.Variant("b", sys.argv[2:] != ["later"]),
    "ProtocolVersion": GLib.Variant("i", 0),
}


def called(_bus, sender, _path, _interface, method, _parameters, invocation):
    if method == "RegisterStatusNotifierItem":
        path = os.path.join(sys.argv[1], f"item-{sum(name.startswith('item') for name in os.listdir(sys.argv[1]))}")
        with open(path + ".part", "w", encoding="utf-8") as file:
            file.write(sender)
        os.rename(path + ".part", path)
    invocation.return_value(None)


def asked(_bus, _sender, _path, _interface, name):
    """Leaves a file "asked" for who waits until the program knows what it is told."""
    if name == "IsStatusNotifierHostRegistered":
        with open(os.path.join(sys.argv[1], "asked"), "w", encoding="utf-8"):
            pass
    return PROPERTIES[name]


bus = Gio.bus_get_sync(Gio.BusType.SESSION)
bus.register_object("/StatusNotifierWatcher", Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0], called,
                    asked)
bus.call_sync("org.freedesktop.DBus", "/", "org.freedesktop.DBus", "RequestName", GLib.Variant("(su)", (NAME, 0)), None,
              Gio.DBusCallFlags.NONE, -1)


def begin_to_show(*_):
    sys.stdin.readline()
    PROPERTIES["IsStatusNotifierHostRegistered"] = GLib.Variant("b", True)
    bus.emit_signal(None, "/StatusNotifierWatcher", NAME, "StatusNotifierHostRegistered", None)


loop = GLib.MainLoop()
GLib.io_add_watch(sys.stdin, GLib.PRIORITY_DEFAULT, GLib.IO_HUP, lambda *_: loop.quit())
if sys.argv[2:] == ["later"]:
    GLib.io_add_watch(sys.stdin, GLib.PRIORITY_DEFAULT, GLib.IO_IN, begin_to_show)
print("ready", flush=True)
loop.run()
