"""Runs the tests of one file inside a running editor: run_inside.py TEST_FILE JUNIT_XML REPORT EDITOR_LOG [PATTERN]

Everything that the tests print goes the way of all Python output, into the editor's log; what pytest says about them goes into
REPORT, so that tests see only their own lines in the log.
"""

import sys

import pytest
import unreal


class Report:
    """Gives pytest's reporter a file of its own, and picks tests as the other suites do: by a part of the name."""

    def __init__(self, file, pattern):
        # The reporter takes what is the output while pytest starts.
        self.output, sys.stdout = sys.stdout, file
        self.pattern = pattern.lower()

    def pytest_sessionstart(self):
        sys.stdout = self.output

    def pytest_collection_modifyitems(self, items):
        items[:] = [item for item in items if self.pattern in f"{item.module.__name__}.{item.name}".lower()]


def main(test_file, junit_xml, report, editor_log, pattern=""):
    sys.dont_write_bytecode = True
    # The project may have opened a tool at its start; after a frame it shows.
    unreal.EditorDriver.wait()
    with open(report, "w", encoding="utf-8", buffering=1) as file:
        status = pytest.main(
            ["-v", "-s", "--color=no", "-p", "no:cacheprovider", f"--junitxml={junit_xml}", f"--editor-log={editor_log}", test_file],
            plugins=[Report(file, pattern)],
        )
    # Failed tests stand in the results; a run that never came to its tests does not.
    if status not in (pytest.ExitCode.OK, pytest.ExitCode.TESTS_FAILED, pytest.ExitCode.NO_TESTS_COLLECTED):
        raise RuntimeError(f"pytest ended with {status!r}")


main(*sys.argv[1:])
