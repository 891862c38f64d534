"""The runs that give the figures. Each takes the bench and returns figures by name, or raises Missing."""

import json
import pathlib
import re
import subprocess

import forms
from processes import Editor, open_with_qt, run, run_benchmarks

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
PEERS = ROOT / "Benchmarks" / "Peers"
SYSTEM_PYTHON = "/usr/bin/python3"


class Missing(Exception):
    """What the run needs is not installed."""


class Bench:
    """The programs of a build, a project with the forms, and a display."""

    def __init__(self, build, folder, display):
        self.bin = build / "bin"
        self.display = display
        project = folder / "Bench"
        run([ROOT / "Scripts" / "new-project", project])
        # The project would show the gallery at its first start.
        (project / "Content" / "Python" / "init_unreal.py").unlink()
        self.project = project / "Bench.uproject"
        self.forms = project / "Forms"
        forms.write_forms(self.forms)
        self.editor = Editor(self.bin / "KestrixEditor", self.project)
        # The first start fills the project's folders; none of the later ones does.
        self.editor.measure("nothing")

    def form(self, size, suffix="json"):
        return self.forms / f"Form{size}.{suffix}"

    def qt(self):
        program = self.bin / "QtPeer"
        if not program.exists():
            raise Missing("Qt 6 was not installed when this was built")
        return program

    def x_display(self):
        if not self.display:
            raise Missing("Xvfb is not installed")
        return self.display


def _only(keys):
    return "--benchmark_filter=^(" + "|".join(re.escape(key) for key in sorted(keys)) + ")(/process_time)?$"


def run_editor_benchmarks(bench, keys):
    return run_benchmarks(bench.bin / "EditorBenchmarks", bench.project, _only(keys))


def run_qt_benchmarks(bench, keys):
    return run_benchmarks(bench.qt(), bench.forms, _only(keys))


def list_parts(build):
    return run([build / "bin" / "Benchmarks", "--benchmark_list_tests=true"]).split()


def run_parts(bench, keys):
    return run_benchmarks(bench.bin / "Benchmarks", _only(keys))


def run_pyqt(bench, keys):
    check = subprocess.run([SYSTEM_PYTHON, "-c", "import PyQt6.QtWidgets"], capture_output=True, check=False)
    if check.returncode != 0:
        raise Missing("PyQt6 is not installed")
    figures = json.loads(run([SYSTEM_PYTHON, PEERS / "pyqt_peer.py"]))
    return {name: nanoseconds * 1e-9 for name, nanoseconds in figures.items()}


def _memory_of_a_widget(open_form):
    size = forms.SIZES[-1]
    return {"widget": (open_form(size)["rss"] - open_form(0)["rss"]) / size}


RUNS = {
    "editor": run_editor_benchmarks,
    "qt": run_qt_benchmarks,
    "pyqt": run_pyqt,
    "parts": run_parts,
    "nothing": lambda bench, keys: bench.editor.measure("nothing"),
    "memory": lambda bench, keys: _memory_of_a_widget(lambda size: bench.editor.measure("open", bench.form(size))),
    "qtmemory": lambda bench, keys: _memory_of_a_widget(lambda size: open_with_qt(bench.qt(), bench.form(size, "ui"))),
    "idle": lambda bench, keys: bench.editor.measure("idle", bench.form(1000), bench.x_display()),
    "caret": lambda bench, keys: bench.editor.measure("caret", bench.form(1000), bench.x_display()),
}
for _size in (0, 1000):
    RUNS[f"start{_size}"] = lambda bench, keys, size=_size: bench.editor.measure("open", bench.form(size))
    RUNS[f"xstart{_size}"] = lambda bench, keys, size=_size: bench.editor.measure("open", bench.form(size), bench.x_display())
    RUNS[f"qtstart{_size}"] = lambda bench, keys, size=_size: open_with_qt(bench.qt(), bench.form(size, "ui"))
