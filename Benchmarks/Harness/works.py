"""What is measured: each work with the run that gives its figure, and the peers' figures for the same work."""

from dataclasses import dataclass

QT = "Qt 6"
PYQT = "PyQt6"


@dataclass(frozen=True)
class Source:
    """A figure: the run that gives it (see runs.py) and its name there."""

    run: str
    key: str


@dataclass(frozen=True)
class Work:
    name: str
    #: "time" in seconds, "memory" in bytes, "count".
    kind: str
    ours: Source
    #: Name of the peer -> its figure.
    peers: tuple = ()


def _form_works():
    for size in (100, 1000, 10000):
        peers = (
            (f"{QT}, .ui file", Source("qt", f"OpenForm/{size}")),
            (f"{QT}, calls", Source("qt", f"OpenByCalls/{size}")),
        )
        yield Work(f"Open a form of {size:,} widgets, file to first frame", "time", Source("editor", f"OpenForm/{size}"), peers)
    for size in (100, 1000, 10000):
        peers = ((QT, Source("qt", f"RepaintWindow/{size}")),)
        yield Work(f"Repaint the window, form of {size:,} widgets", "time", Source("editor", f"RepaintWindow/{size}"), peers)


def _script_works():
    def pyqt(*keys):
        return tuple((label, Source("pyqt", key)) for label, key in keys)

    yield Work("Run a literal command again", "time", Source("editor", "RepeatedCommand"), pyqt(("CPython, exec", "RepeatedCommand")))
    yield Work("Click a button, to Python done", "time", Source("editor", "ClickButton"), pyqt((PYQT, "ClickButton")))
    yield Work(
        "Click a button, with both frames", "time", Source("editor", "ClickButtonAndPaint"), pyqt((PYQT, "ClickButtonAndPaint"))
    )
    yield Work(
        "Set a label's text by its name, from Python",
        "time",
        Source("editor", "SetText"),
        pyqt((f"{PYQT}, reference", "SetText"), (f"{PYQT}, by name", "SetTextByName")),
    )


def _process_works():
    for size, title in ((0, "an empty tool"), (1000, "a form of 1,000 widgets")):
        for key, word in (("cpu", "CPU"), ("elapsed", "elapsed")):
            peers = ((QT, Source(f"qtstart{size}", key)),)
            yield Work(f"Start to first frame, {title}, {word}", "time", Source(f"start{size}", key), peers)
        yield Work(f"Start to first frame, {title}, CPU, X window", "time", Source(f"xstart{size}", "cpu"))
    yield Work("Memory of a widget", "memory", Source("memory", "widget"), ((QT, Source("qtmemory", "widget")),))
    yield Work("Memory of the open editor, RSS", "memory", Source("nothing", "rss"))
    yield Work("Memory of the open editor, PSS", "memory", Source("nothing", "pss"))
    for run, title in (("idle", "form of 1,000 widgets"), ("caret", "form with a blinking caret")):
        yield Work(f"Idle for 5 s, {title}, CPU, X window", "time", Source(run, "cpu"))
        yield Work(f"Idle for 5 s, {title}, frames", "count", Source(run, "frames"))


def all_works(parts):
    """The works that people meet, and then the parts of the editor by their names in the program Benchmarks."""
    return (
        *_form_works(),
        *_script_works(),
        *_process_works(),
        *(Work(f"Part: {name}", "time", Source("parts", name)) for name in parts),
    )
