"""A desktop of its own for the real program: a screen without a monitor, a window manager, a session bus, and the hands
of whoever sits before it. Nothing here waits for a time to pass; it waits for what is to be seen."""

import os
import re
import signal
import subprocess
import tempfile
import time
from pathlib import Path

import numpy

# The window stands in the corner, without a frame, so that places in it are places on the screen, which has room for a
# frame all the same.
SIZE = (1300, 880)
MANAGER = """<openbox_config xmlns="http://openbox.org/3.4/rc">
<keyboard><keybind key="A-F4"><action name="Close"/></keybind></keyboard>
<applications><application title="Tessaro" type="normal"><decor>no</decor>
<position force="yes"><x>0</x><y>0</y></position></application></applications></openbox_config>"""

# Of a machine that has other things to do; what is not there by then never comes.
PATIENCE = 60


def until(what, condition, patience=PATIENCE):
    """The first answer that is neither None nor False."""
    end = time.monotonic() + patience
    while True:
        answer = condition()
        if answer is not None and answer is not False:
            return answer
        if time.monotonic() > end:
            raise AssertionError(f"In {patience} s there was no {what}")
        time.sleep(0.03)


class Desktop:
    def __init__(self, program):
        self.program = program
        self.temporary = tempfile.TemporaryDirectory(prefix="tessaro-desktop-")
        self.folder = Path(self.temporary.name)
        self.processes = []

    def open(self):
        self.environment = {**os.environ, "QT_QPA_PLATFORM": "xcb", "LC_ALL": "C.UTF-8", "HOME": str(self.folder)}
        self.environment.pop("WAYLAND_DISPLAY", None)
        for name in ("RUNTIME_DIR", "CONFIG_HOME", "DATA_HOME", "CACHE_HOME"):
            (self.folder / name).mkdir(mode=0o700)
            self.environment[f"XDG_{name}"] = str(self.folder / name)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self.told(
            ["dbus-daemon", "--session", "--nofork", "--print-address=1"]
        )
        (self.folder / "rc.xml").write_text(MANAGER)
        until("screen", self.open_screen, patience=3 * PATIENCE)
        # Out of the pictures.
        self.xdotool("mousemove", SIZE[0] - 1, 0)

    def open_screen(self):
        """Now and then a server comes up that nobody can use; then it is another one's turn."""
        screen = ["-screen", "0", f"{SIZE[0]}x{SIZE[1]}x24", "-fbdir", self.folder, "-nolisten", "tcp"]
        self.environment["DISPLAY"] = ":" + self.told(["Xvfb", "-displayfd", "1", *screen])
        self.server = self.processes[-1]
        manager = self.start("openbox", "--sm-disable", "--config-file", self.folder / "rc.xml")
        try:
            return until("window manager", lambda: self.xdotool("get_num_desktops"), patience=PATIENCE / 3)
        except AssertionError:
            for process in (manager, self.server):
                process.kill()
                process.wait()
            return None

    def start(self, *command, **options):
        with open(self.folder / "log", "ab") as log:
            process = subprocess.Popen(command, env=self.environment, stderr=log, **{"stdout": log, **options})
        self.processes.append(process)
        return process

    def told(self, command):
        return self.start(*command, stdout=subprocess.PIPE, text=True).stdout.readline().strip()

    def close(self):
        for process in reversed(self.processes):
            process.kill()
            process.wait()
            if process.stdout:
                process.stdout.close()
        self.temporary.cleanup()

    def xdotool(self, *words):
        command = ["xdotool", *map(str, words)]
        try:
            run = subprocess.run(command, env=self.environment, capture_output=True, text=True, timeout=PATIENCE)
        except subprocess.TimeoutExpired:
            return None
        return run.stdout.strip() if run.returncode == 0 else None

    def launch(self):
        """The program with its window on the screen and the keys its own."""
        process = self.start(self.program)
        self.main = until("window", lambda: self.focus()[1] == "Tessaro" and self.focus()[0])
        return process

    def focus(self):
        window = self.xdotool("getwindowfocus")
        return window, window and self.xdotool("getwindowname", window)

    def windows(self):
        return (self.xdotool("search", "--onlyvisible", "--class", "tessaro") or "").split()

    def screen(self):
        """Rows of red, green and blue, straight from the memory of the screen."""
        dump = (self.folder / "Xvfb_screen0").read_bytes()
        header = numpy.frombuffer(dump, ">u4", 25)
        size, width, height, line, colors = header[[0, 4, 5, 12, 19]]
        pixels = numpy.frombuffer(dump, "u1", offset=size + 12 * colors, count=line * height)
        return pixels.reshape(height, line)[:, : 4 * width].reshape(height, width, 4)[:, :, 2::-1]

    def keys(self, *keys):
        self.xdotool("key", *keys)

    def drag(self, start, end):
        """In steps, as a hand does; the pointer is there before the button goes down."""
        steps = numpy.linspace(start, end, 5).round().astype(int)
        moves = [["mousemove", x, y] for x, y in steps]
        self.xdotool(*moves[0], "mousedown", 1, *sum(moves[1:], []), "mouseup", 1, "getmouselocation")

    def click(self, x, y):
        # The answer comes when the server has taken in what came before the question.
        self.xdotool("mousemove", x, y, "click", 1, "getmouselocation")

    def ask_for(self, keys, title):
        """Until the answer is there: half a second after the start the window does not listen yet."""

        def asked():
            self.keys(keys)
            try:
                return until(title, lambda: self.focus()[1] == title, patience=2)
            except AssertionError:
                return None

        until(title, asked)

    def choose(self, path):
        """In the file dialog that is open. Its first letters are lost where it has come up but does not listen yet."""
        dialog = self.focus()[1]

        def chosen():
            if self.focus()[1] == dialog:
                self.keys("ctrl+a")
                self.xdotool("type", "--delay", 1, path)
                self.keys("Return")
            else:
                # A remark on a name that there is not.
                self.keys("Escape")
            try:
                return until("window", lambda: self.focus()[1] == "Tessaro", patience=5)
            except AssertionError:
                return None

        until("window after the dialog", chosen)
