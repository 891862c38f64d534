"""Fixtures of the tests that run inside an editor: `tool`, `log`, `golden`."""

import pathlib

import pytest
import unreal

import pictures
import recorder
from editor_log import EditorLog
from toolbench import PYTHON_FOLDER, Tool, close


def pytest_addoption(parser):
    parser.addoption("--editor-log", type=pathlib.Path, help="the log file of the editor that runs the tests")


@pytest.fixture
def log(request):
    """The lines that the editor logs from here on."""
    return EditorLog(request.config.getoption("--editor-log"))


@pytest.fixture
def tool(request):
    """Makes tools: tool(root, **other keys) writes a description and launches it. All are closed when the test ends."""
    made = []

    # The keys of a description have letters in both cases; text is one that is no JSON.
    def make(root=None, *, text=None, files=None, **keys):
        folder = PYTHON_FOLDER / "".join(part for part in request.node.name if part.isalnum())
        file = f"Tool{len(made) or ''}.json"
        new = Tool(folder, f"{request.node.name[:40]} {len(made)}", root, text, files or {}, keys, file)
        made.append(new)
        recorder.runs.clear()
        new.launch()
        return new

    yield make
    for each in made:
        close(each.path)
    recorder.runs.clear()


@pytest.fixture
def runs():
    """What the commands of the tools recorded, oldest first."""
    recorder.runs.clear()
    return recorder.runs


@pytest.fixture
def golden(tmp_path):
    """Compares what the window of a tab shows with a picture in Tests/Golden, byte for byte."""

    def compare(tab, name, keep_mouse=False):
        if not keep_mouse:
            # What is under the mouse lights up. Beside its content a window has nothing that does.
            unreal.EditorDriver.hover(tab, "", "", 0, 0.999, 0.999)
        unreal.EditorDriver.wait(0.6)
        pictures.compare(unreal.EditorDriver.screenshot(tab, str(tmp_path / name)), name)

    return compare
