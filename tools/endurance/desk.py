"""A copy of the installed program on a virtual display, with keys and clicks for it.

Needs xvfb, openbox, xdotool and imagemagick, which packages.txt names. The program gets a home and a
temporary folder of its own and can write nothing else, so that nothing of the user's is touched and
nothing of its own is missed.
"""

import ctypes
import os
import shutil
import subprocess
import tempfile
import time
from pathlib import Path

ENGLISH = '<option editable="YES" type="LANGUAGE" value1="en" value2="" unit="" description=""/>'

# Nothing but the folder of the run can be written: a file dialog in which keys are pressed at random
# renames and deletes files.
SEALED = """
others=$(sed 's/^[^ ]* [^ ]* [^ ]* [^ ]* \\([^ ]*\\).*/\\1/' /proc/self/mountinfo)
mount --bind "$1" "$1" || exit 99
for mounted in $others; do mount -o remount,ro,bind "$mounted" 2>/dev/null; done
touch "$1/../.kivzp-sealed" 2>/dev/null && exit 99
cd "$2" && exec ./KivZP
"""


class Stuck(Exception):
    """The program does not do what was waited for."""


class Desk:
    def __init__(self, program, data=None):
        """program: the folder of the installed program; data: a folder of data files that stand in
        for the ones in its _files, where there are such."""
        self.folder = Path(tempfile.mkdtemp(prefix="kivzp-endurance-"))
        self.app = self.folder / "KivZP"
        shutil.copytree(program, self.app, symlinks=True)
        for file in Path(data).glob("*.xml") if data else []:
            shutil.copy(file, self.app / "_files" / file.name)
            (self.app / "_files" / file.name).chmod(0o644)
        config = self.app / "_config" / "kiv_mat_config.xml"
        text = config.read_text(encoding="utf-8")
        if 'type="LANGUAGE"' not in text:
            config.write_text(text.replace("<options>", "<options>" + ENGLISH, 1), encoding="utf-8")
        self.home = self.folder / "home"
        self.temporary = self.folder / "tmp"
        self.temporary.mkdir()
        self.environment = dict(os.environ, HOME=str(self.home), TMPDIR=str(self.temporary),
                                XDG_CONFIG_HOME=str(self.home / "config"),
                                XDG_DATA_HOME=str(self.home / "data"), LC_ALL="C.UTF-8")
        self.environment.pop("QT_QPA_PLATFORM", None)
        # No desktop: what the program hands to it goes nowhere.
        runtime = self.folder / "run"
        runtime.mkdir(mode=0o700)
        opener = self.folder / "bin" / "xdg-open"
        opener.parent.mkdir()
        opener.write_text("#!/bin/sh\n", encoding="ascii")
        opener.chmod(0o755)
        self.environment["XDG_RUNTIME_DIR"] = str(runtime)
        self.environment["PATH"] = str(opener.parent) + ":" + self.environment["PATH"]
        self.log = open(self.folder / "log", "ab")
        self.processes = []
        self.program = None
        self._display()

    def _display(self):
        reading, writing = os.pipe()
        self._spawn("Xvfb", "-displayfd", str(writing), "-screen", "0", "1600x1000x24", pass_fds=[writing])
        os.close(writing)
        with os.fdopen(reading) as told:
            self.environment["DISPLAY"] = ":" + told.readline().strip()
        self._spawn("openbox")
        time.sleep(0.5)
        self._pings = _Pings(self.environment["DISPLAY"])

    def _spawn(self, *command, **options):
        process = subprocess.Popen(command, env=self.environment, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL, **options)
        self.processes.append(process)
        return process

    def forget(self):
        """A new user: nothing is remembered of earlier runs."""
        shutil.rmtree(self.home, ignore_errors=True)
        (self.app / "_config" / "windows.ini").unlink(missing_ok=True)

    def start(self, seconds=60):
        self.home.mkdir(exist_ok=True)
        user = [] if os.geteuid() == 0 else ["--map-root-user"]
        self.program = subprocess.Popen(["unshare", "--mount", *user, "sh", "-c", SEALED, "sh",
                                         str(self.folder), str(self.app)],
                                        env=self.environment, stdout=self.log, stderr=self.log)
        self.until(lambda: self.widest() > 800, seconds, "the main window")
        self.idle()
        # Real data has orders of materials that the database lacks.
        if "Errors" in self.titles():
            self.bring("Errors")
            self.go(["alt+F4"])
            self.bring("Order")

    def widest(self):
        width = 0
        for window in self.windows():
            for line in self.x("getwindowgeometry", "--shell", window).splitlines():
                if line.startswith("WIDTH="):
                    width = max(width, int(line[6:]))
        return width

    def until(self, holds, seconds, what):
        end = time.monotonic() + seconds
        while not holds():
            if not self.alive():
                raise Stuck("the program ended (%s) instead of: %s" % (self.program.returncode, what))
            if time.monotonic() > end:
                raise Stuck("not within %d s: %s" % (seconds, what))
            time.sleep(0.05)

    def idle(self, seconds=60):
        """Waits until the program takes events and has used no time for a moment."""
        end = time.monotonic() + seconds
        self.answers(seconds)
        before = -1
        while self.alive() and time.monotonic() < end:
            with open("/proc/%d/stat" % self.program.pid, encoding="ascii", errors="replace") as file:
                fields = file.read().rsplit(")", 1)[1].split()
            used = int(fields[11]) + int(fields[12])
            if used == before:
                return
            before = used
            time.sleep(0.25)

    def answers(self, seconds=20):
        """Whether the program takes the events of one of its windows within that time. The one in
        front may be closing."""
        end = time.monotonic() + seconds
        while self.alive() and time.monotonic() < end:
            for window in [self.x("getactivewindow").strip(), *self.windows()]:
                if window and self._pings.answered(int(window), 0.5):
                    return True
        return not self.alive()

    def resident(self):
        """Its resident memory in KB."""
        with open("/proc/%d/status" % self.program.pid, encoding="ascii") as file:
            for line in file:
                if line.startswith("VmRSS:"):
                    return int(line.split()[1])
        return 0

    def x(self, *arguments):
        return subprocess.run(["xdotool", *map(str, arguments)], env=self.environment, capture_output=True,
                              text=True, timeout=60, check=False).stdout

    def windows(self):
        return self.x("search", "--onlyvisible", "--pid", self.program.pid).split()

    def titles(self):
        return [self.x("getwindowname", window).strip() for window in self.windows()]

    def front(self):
        return self.x("getwindowname", self.x("getactivewindow").strip()).strip()

    def bring(self, title):
        """Brings the window with that beginning of its title to the front."""
        for window in self.windows():
            if self.x("getwindowname", window).startswith(title):
                self.x("windowactivate", "--sync", window)
                return
        raise Stuck("no window " + title)

    def keys(self, *keys, pause=0.1):
        for key in keys:
            self.x("key", key)
            time.sleep(pause)

    def go(self, steps):
        """Keys, and texts behind a "=", each when the program has done the one before."""
        for step in steps:
            if step.startswith("="):
                self.type(step[1:].replace("OTHER", str(self.app / "_files" / "db_service.xml")))
            else:
                self.x("key", step)
            self.idle()

    def type(self, text):
        self.x("type", "--delay", "10", text)

    def click(self, x, y, button=1, times=1):
        self.x("mousemove", "--window", self.x("getactivewindow").strip(), x, y, "click", "--repeat", times,
               "--delay", 60, button)

    def picture(self, file):
        subprocess.run(["import", "-window", "root", str(file)], env=self.environment, check=False)

    def alive(self):
        return self.program is not None and self.program.poll() is None

    def kill(self):
        self.program.kill()
        self.program.wait()

    def close(self):
        for process in [self.program, *reversed(self.processes)]:
            if process and process.poll() is None:
                process.kill()
                process.wait()
        self.log.close()
        shutil.rmtree(self.folder, ignore_errors=True)


class _Pings:
    """Asks windows whether they still take events, as a window manager does (_NET_WM_PING)."""

    class _Message(ctypes.Structure):
        _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                    ("display", ctypes.c_void_p), ("window", ctypes.c_ulong), ("message_type", ctypes.c_ulong),
                    ("format", ctypes.c_int), ("data", ctypes.c_long * 5), ("pad", ctypes.c_long * 24)]

    CLIENT_MESSAGE = 33
    STRUCTURE_AND_BELOW = 1 << 17 | 1 << 19

    def __init__(self, display):
        x = ctypes.CDLL("libX11.so.6")
        x.XOpenDisplay.restype = ctypes.c_void_p
        x.XOpenDisplay.argtypes = [ctypes.c_char_p]
        x.XDefaultRootWindow.restype = ctypes.c_ulong
        x.XDefaultRootWindow.argtypes = [ctypes.c_void_p]
        x.XInternAtom.restype = ctypes.c_ulong
        x.XInternAtom.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int]
        x.XSelectInput.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_long]
        x.XSendEvent.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_int, ctypes.c_long, ctypes.c_void_p]
        x.XFlush.argtypes = [ctypes.c_void_p]
        x.XCheckTypedEvent.argtypes = [ctypes.c_void_p, ctypes.c_int, ctypes.c_void_p]
        # A window may be gone by the time it is asked.
        self._ignore = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)(lambda *_: 0)
        x.XSetErrorHandler(self._ignore)
        self._x = x
        self._display = x.XOpenDisplay(display.encode())
        self._root = x.XDefaultRootWindow(self._display)
        self._protocols = x.XInternAtom(self._display, b"WM_PROTOCOLS", 0)
        self._ping = x.XInternAtom(self._display, b"_NET_WM_PING", 0)
        self._number = 0
        x.XSelectInput(self._display, self._root, self.STRUCTURE_AND_BELOW)

    def answered(self, window, seconds):
        self._number += 1
        message = self._Message(type=self.CLIENT_MESSAGE, window=window, message_type=self._protocols, format=32)
        message.data[0], message.data[1], message.data[2] = self._ping, self._number, window
        self._x.XSendEvent(self._display, window, 0, 0, ctypes.byref(message))
        self._x.XFlush(self._display)
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            while self._x.XCheckTypedEvent(self._display, self.CLIENT_MESSAGE, ctypes.byref(message)):
                if message.data[0] == self._ping and message.data[1] == self._number:
                    return True
            time.sleep(0.02)
        return False
