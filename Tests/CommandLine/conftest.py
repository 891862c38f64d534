"""A shell with a new project in front of it."""

import contextlib
import pathlib
import subprocess

import pytest

ROOT = pathlib.Path(__file__).resolve().parents[2]
LONGEST_RUN = 120


def pytest_addoption(parser):
    parser.addoption("--build", type=pathlib.Path, required=True, help="the build directory")


class Shell:
    """A folder with a new project in it, and the editor to start there."""

    def __init__(self, editor, folder):
        self.editor = editor
        self.folder = folder
        self.log = folder / "editor.log"
        subprocess.run([ROOT / "Scripts" / "new-project", folder / "Trial"], check=True, stdout=subprocess.DEVNULL)

    def script(self, text):
        file = self.folder / "script.py"
        file.write_text(text, encoding="utf-8")
        return file

    def command(self, *arguments):
        return [self.editor, *arguments, "-RenderOffScreen", "-unattended", f"-abslog={self.log}"]

    def start(self, *arguments):
        """Runs the editor to its end."""
        return subprocess.run(
            self.command(*arguments),
            cwd=self.folder,
            stdin=subprocess.DEVNULL,
            capture_output=True,
            text=True,
            timeout=LONGEST_RUN,
            check=False,
        )

    @contextlib.contextmanager
    def running(self, *arguments):
        """An editor at work, whose standard error can be read."""
        with subprocess.Popen(
            self.command(*arguments), cwd=self.folder, stdin=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True
        ) as process:
            yield process
            process.wait(LONGEST_RUN)

    def log_text(self):
        return self.log.read_text(encoding="utf-8")


@pytest.fixture
def shell(request, tmp_path):
    return Shell(request.config.getoption("--build").absolute() / "bin" / "KestrixEditor", tmp_path)
