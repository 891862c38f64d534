"""A display of its own with a window manager, and the hands and eyes of its user."""

import os
import pathlib
import select
import struct
import subprocess
import time

SIZE = (1500, 1000)

#: Seconds after which what was waited for will not come any more.
PATIENCE = 30.0


def until(condition, what):
    """Looks again and again until the condition gives something true, which is the result."""
    end = time.monotonic() + PATIENCE
    while True:
        result = condition()
        if result:
            return result
        assert time.monotonic() < end, f"waited {PATIENCE} s in vain for {what}"
        select.select([], [], [], 0.01)


class Desktop:
    def __init__(self, folder):
        self.folder = folder
        self.processes = []
        read_end, write_end = os.pipe()
        screen = f"{SIZE[0]}x{SIZE[1]}x24"
        # Without -noreset it would begin anew, and refuse callers for a moment, whenever the last one has gone.
        options = ["-screen", "0", screen, "-fbdir", str(folder), "-nolisten", "tcp", "-noreset"]
        self.start(["Xvfb", "-displayfd", str(write_end), *options], pass_fds=[write_end])
        os.close(write_end)
        with os.fdopen(read_end) as pipe:
            display = pipe.readline().strip()
        assert display, "Xvfb did not start"
        # Characters of all scripts are typed only in a locale that has them.
        self.environment = {**os.environ, "DISPLAY": f":{display}", "LC_ALL": "C.UTF-8"}
        self.start(["openbox", "--sm-disable"])
        # Whoever manages the windows says so at the root window.
        until(lambda: self.ask("get_num_desktops", check=False), "the window manager")

    def start(self, command, **options):
        environment = getattr(self, "environment", None)
        with open(self.folder / f"{pathlib.Path(str(command[0])).name}.txt", "wb") as output:
            process = subprocess.Popen(command, env=environment, stdin=subprocess.DEVNULL, stdout=output, stderr=output, **options)
        self.processes.append(process)
        return process

    def close(self):
        for process in reversed(self.processes):
            if process.poll() is None:
                process.terminate()
            process.wait(PATIENCE)

    def ask(self, *arguments, check=True):
        done = subprocess.run(
            ["xdotool", *map(str, arguments)], env=self.environment, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=check
        )
        return done.stdout.decode().strip()

    def window_named(self, name):
        """The X identifier of a window by a part of its title, once it shows."""
        return until(lambda: self.ask("search", "--onlyvisible", "--name", name, check=False).splitlines(), f"the window '{name}'")[0]

    def numbers(self, *arguments):
        """The answer in the form of variables, of which all are numbers."""
        return {key: int(value) for key, value in (line.split("=") for line in self.ask(arguments[0], "--shell", *arguments[1:]).splitlines())}

    def size(self, window):
        """Width and height of a window without its frame."""
        answer = self.numbers("getwindowgeometry", window)
        return answer["WIDTH"], answer["HEIGHT"]

    def origin(self, window):
        """Where a window without its frame begins. The mouse goes there: its place is told right under any window manager."""
        self.ask("mousemove", "--window", window, 0, 0)
        answer = self.numbers("getmouselocation")
        return answer["X"], answer["Y"]

    def resize(self, window, width, height):
        self.ask("windowsize", window, width, height)
        until(lambda: self.size(window) == (width, height), "the new size")

    def click(self, window, x, y):
        self.ask("mousemove", "--window", window, x, y, "click", 1)

    def type(self, text):
        self.ask("type", "--delay", 2, text)

    def choose_layout(self, layout):
        """Makes the keyboard one of a country."""
        subprocess.run(["setxkbmap", layout], env=self.environment, check=True)

    def press(self, *keys):
        self.ask("key", *keys)

    def pixels(self, x, y, width, height):
        """Red, green and blue of a part of the screen, row by row."""
        data = (self.folder / "Xvfb_screen0").read_bytes()
        fields = struct.unpack(">25I", data[:100])
        header_size, bytes_per_line, colors = fields[0], fields[12], fields[19]
        start = header_size + colors * 12
        result = bytearray()
        for row in range(y, y + height):
            line = data[start + row * bytes_per_line + x * 4 :][: width * 4]
            rgb = bytearray(width * 3)
            rgb[0::3], rgb[1::3], rgb[2::3] = line[2::4], line[1::4], line[0::4]
            result += rgb
        return bytes(result)
