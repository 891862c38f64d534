"""Nothing that a command does from within an event ends the editor or breaks another tool."""

import pathlib
import re

import pytest

EVENTS = ["InitPyCmd", "OnClick", "OnCheckStateChanged", "OnTextChanged", "OnTextCommitted", "OnTick", "OnClosePyCmd"]

NUMBER_OF_DEEDS = len(re.findall(r"^def \w+\(scene", pathlib.Path(__file__).with_name("deeds.py").read_text(), re.MULTILINE)) - 1


@pytest.mark.parametrize("event", EVENTS)
def test_deeds_leave_the_editor_and_other_tools_at_work(victim, event):
    victim.start("run_deeds.py", event).check(NUMBER_OF_DEEDS)


@pytest.mark.parametrize("event", EVENTS)
def test_the_editor_can_be_ended_from_any_event(victim, event):
    victim.start("run_deeds.py", event, "quit").check(1)
