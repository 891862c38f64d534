"""Runs the tests of a folder with pytest, as the suites of other kinds run theirs."""

import pathlib
import sys

import pytest

TESTS = pathlib.Path(__file__).resolve().parent.parent


class Selection:
    """Picks tests as the other suites do: by a part of the name."""

    def __init__(self, pattern):
        self.pattern = pattern.lower()

    def pytest_collection_modifyitems(self, items):
        items[:] = [item for item in items if self.pattern in f"{item.module.__name__}.{item.name}".lower()]


def run(folder, build, junit_xml, pattern=""):
    """The status for the parent process; a pattern that no test fits is no failure."""
    sys.dont_write_bytecode = True
    tests = str(TESTS / folder)
    options = ["-q", "--color=no", "-p", "no:cacheprovider", f"--rootdir={tests}", f"--build={build}", f"--junitxml={junit_xml}"]
    status = pytest.main([*options, tests], plugins=[Selection(pattern)])
    return 0 if status == pytest.ExitCode.NO_TESTS_COLLECTED else int(status)


def main(folder, usage):
    if len(sys.argv) not in (3, 4):
        print(usage.strip(), file=sys.stderr)
        return 2
    return run(folder, *sys.argv[1:])
