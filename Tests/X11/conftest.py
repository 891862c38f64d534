"""The editor with the regex tester, in a window of a display made for it."""

import contextlib
import json
import pathlib
import shutil
import signal
import subprocess
import sys

import pytest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.append(str(ROOT / "Tests" / "Python"))

from desktop import Desktop, until  # noqa: E402

TOOL = "RegexTester/RegexTester.json"


def pytest_addoption(parser):
    parser.addoption("--build", type=pathlib.Path, required=True, help="the build directory")


class Editor:
    """A running editor, seen from outside."""

    def __init__(self, build, desktop, folder):
        self.desktop = desktop
        self.folder = folder
        self.state_file = folder / "state.json"
        self.executable = build / "bin" / "KestrixEditor"
        self.project = folder / "Trial" / "Trial.uproject"
        self.make_project()
        script = f'{ROOT / "Tests/X11/probe.py"} {TOOL} {self.state_file}'
        self.process = desktop.start([self.executable, self.project, f"-ExecutePythonScript={script}"])
        until(self.has_opened_the_tool, "the tool")
        self.window = desktop.window_named("Unreal Editor")

    def make_project(self):
        subprocess.run([ROOT / "Scripts" / "new-project", self.project.parent], check=True, stdout=subprocess.DEVNULL)
        # The gallery would open beside the tool.
        (self.project.parent / "Content" / "Python" / "init_unreal.py").unlink()
        defaults = ROOT / "Resources" / "DefaultPythonSource" / "KX"
        tools = shutil.copytree(defaults, self.project.parent / "KX") / "Kestrix" / "Python"
        shutil.copytree(ROOT / "Samples" / "RegexTester", tools / "RegexTester")

    def has_opened_the_tool(self):
        assert self.process.poll() is None, f"the editor ended with status {self.process.returncode}"
        return self.state_file.exists()

    @contextlib.contextmanager
    def stopped(self):
        """Holds the editor's process still, as if it were busy."""
        self.process.send_signal(signal.SIGSTOP)
        try:
            yield
        finally:
            self.process.send_signal(signal.SIGCONT)

    def has_ended_after(self, action):
        """Does something and gives the editor a second to end by it."""
        action()
        try:
            self.process.wait(1)
        except subprocess.TimeoutExpired:
            return False
        return True

    def do(self, text):
        """Runs Python inside the editor, and waits until that has happened."""
        task = self.state_file.with_name(self.state_file.name + ".py")
        new = task.with_suffix(".new")
        new.write_text(text, encoding="utf-8")
        new.rename(task)
        until(lambda: not task.exists(), "the editor to do it")

    def log(self):
        return (self.project.parent / "Saved" / "Logs" / "Trial.log").read_text(encoding="utf-8")

    def state(self):
        return json.loads(self.state_file.read_text(encoding="utf-8"))

    def until_text(self, name, text):
        until(lambda: self.state()["texts"][name] == text, f"'{text}' in {name}, where there is '{self.state()['texts'][name]}'")

    def place(self, name):
        """x, y, width and height of a widget in the window, by "#aka"."""
        for line in self.state()["tree"].splitlines():
            if f" {name} " in line:
                position, size = line.split()[-2:]
                return [int(number) for number in position.split(",") + size.split("x")]
        raise LookupError(name)

    def click(self, name):
        x, y, width, height = self.place(name)
        self.desktop.click(self.window, x + min(width, 60) // 2, y + height // 2)
        # Keys go nowhere until the window manager has made the window the active one.
        until(lambda: self.desktop.ask("getactivewindow", check=False) == self.window, "the window to be active")

    def until_pixels(self, expected):
        """Waits until the screen shows just these pixels in the window, with the mouse where nothing lights up."""

        def shows_them():
            # The window manager may be about to move the window.
            place = (*self.desktop.origin(self.window), *self.desktop.size(self.window))
            self.desktop.ask("mousemove", 0, 0)
            return self.desktop.pixels(*place) == expected

        until(shows_them, "the same pixels")


@pytest.fixture
def desktop(tmp_path):
    made = Desktop(tmp_path)
    yield made
    made.close()


@pytest.fixture
def editor(request, desktop, tmp_path):
    return Editor(request.config.getoption("--build").resolve(), desktop, tmp_path)
