"""usage: StandInDesktop.py FOLDER

The portal and the file manager of a desktop, on the session bus of the environment, until the input ends. What reaches
them is written to the folder: a file mail-N.json or show-N.json for each call, and the content of an attached file
beside it. Says "ready" when both are there."""

import json
import os
import sys

from gi.repository import Gio, GLib

INTERFACES = """<node>
<interface name='org.freedesktop.portal.Email'>
  <method name='ComposeEmail'><arg type='s' direction='in'/><arg type='a{sv}' direction='in'/><arg type='o' direction='out'/></method>
</interface>
<interface name='org.freedesktop.FileManager1'>
  <method name='ShowItems'><arg type='as' direction='in'/><arg type='s' direction='in'/></method>
</interface>
</node>"""


class StandInDesktop:
    def __init__(self, folder):
        self._folder = folder
        self._loop = GLib.MainLoop()
        self._bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        email, manager = Gio.DBusNodeInfo.new_for_xml(INTERFACES).interfaces
        self._bus.register_object("/org/freedesktop/portal/desktop", email, self._compose)
        self._bus.register_object("/org/freedesktop/FileManager1", manager, self._show)
        for name in ("org.freedesktop.portal.Desktop", "org.freedesktop.FileManager1"):
            self._bus.call_sync("org.freedesktop.DBus", "/", "org.freedesktop.DBus", "RequestName",
                                GLib.Variant("(su)", (name, 0)), None, Gio.DBusCallFlags.NONE, -1)

    def run(self):
        GLib.io_add_watch(sys.stdin, GLib.PRIORITY_DEFAULT, GLib.IO_HUP, lambda *_: self._loop.quit())
        print("ready", flush=True)
        self._loop.run()

    def _write(self, kind, what):
        number = sum(name.startswith(kind) and name.endswith(".json") for name in os.listdir(self._folder))
        path = os.path.join(self._folder, f"{kind}-{number}.json")
        with open(path + ".part", "w", encoding="utf-8") as file:
            json.dump(what, file)
        os.rename(path + ".part", path)

    def _compose(self, _bus, _sender, _path, _interface, _method, parameters, invocation):
        window, options = parameters.unpack()
        attached = []
        for number, place in enumerate(options.pop("attachment_fds", [])):
            descriptor = invocation.get_message().get_unix_fd_list().get(place)
            attached.append(os.path.join(self._folder, f"attached-{number}"))
            with open(descriptor, "rb") as given, open(attached[-1], "wb") as copy:
                copy.write(given.read())
        self._write("mail", {"window": window, "options": options, "attached": attached})
        invocation.return_value(GLib.Variant("(o)", ("/org/freedesktop/portal/desktop/request/1/t",)))

    def _show(self, _bus, _sender, _path, _interface, _method, parameters, invocation):
        self._write("show", {"addresses": parameters.unpack()[0]})
        invocation.return_value(None)


StandInDesktop(sys.argv[1]).run()
