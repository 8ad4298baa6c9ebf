"""The login service of a system, on the system bus of the environment, until the input ends.

Says "ready" when it is there, and from then on a line each time somebody begins or ends to hold sleep off: how many do."""

import os
import sys

from gi.repository import Gio, GLib

INTERFACE = """<node><interface name='org.freedesktop.login1.Manager'>
  <method name='Inhibit'>
    <arg type='s' direction='in'/><arg type='s' direction='in'/><arg type='s' direction='in'/><arg type='s' direction='in'/>
    <arg type='h' direction='out'/>
  </method>
</interface></node>"""


class StandInLogin:
    def __init__(self):
        self._holders = 0
        self._loop = GLib.MainLoop()
        self._bus = Gio.bus_get_sync(Gio.BusType.SYSTEM)
        interface = Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0]
        self._bus.register_object("/org/freedesktop/login1", interface, self._inhibit)
        self._bus.call_sync("org.freedesktop.DBus", "/", "org.freedesktop.DBus", "RequestName",
                            GLib.Variant("(su)", ("org.freedesktop.login1", 0)), None, Gio.DBusCallFlags.NONE, -1)

    def run(self):
        GLib.io_add_watch(sys.stdin, GLib.PRIORITY_DEFAULT, GLib.IO_HUP, lambda *_: self._loop.quit())
        print("ready", flush=True)
        self._loop.run()

    def _count(self, change):
        self._holders += change
        print(self._holders, flush=True)

    def _inhibit(self, _bus, _sender, _path, _interface, _method, parameters, invocation):
        ours, theirs = os.pipe2(os.O_CLOEXEC)
        files = Gio.UnixFDList.new()
        files.append(theirs)  # a copy of it
        os.close(theirs)
        GLib.io_add_watch(ours, GLib.PRIORITY_DEFAULT, GLib.IO_HUP, self._let_go)
        assert parameters.unpack()[0] == "sleep:idle:handle-lid-switch"
        invocation.return_value_with_unix_fd_list(GLib.Variant("(h)", (0,)), files)
        self._count(+1)

    def _let_go(self, ours, _condition):
        os.close(ours)
        self._count(-1)
        return False


StandInLogin().run()
