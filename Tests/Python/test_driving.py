"""What the driver says when a test asks for something that a user could not do."""

import pathlib
import re

import pytest

from toolbench import PYTHON_FOLDER, Driver, button, field, label, vertical


def raises(text):
    """The call raises, and its message ends with the text."""
    return pytest.raises(RuntimeError, match=f"{re.escape(text)}$")


def test_text_that_nothing_takes_raises(tool):
    t = tool(vertical(button("B"), field("F")))
    with pytest.raises(RuntimeError, match="'a' was not taken: .* has the keyboard focus"):
        Driver.type_text("a")
    t.click("SButton")
    with pytest.raises(RuntimeError, match="'b' was not taken: SButton \"B\" has the keyboard focus"):
        Driver.type_text("b")
    t.click("#F")
    with pytest.raises(RuntimeError, match="'\t' was not taken: SEditableText \"c\" has the keyboard focus"):
        Driver.type_text("c\td")
    assert t.data.get_text("F") == "c"


def test_misspelt_name_is_answered_with_the_names_that_there_are(tool):
    t = tool(vertical(label("a", Aka="Status"), label("b"), field("F")))
    with raises(f'There is no #Statsu in "{t.tab}"; there is #Status, #F'):
        t.text("#Statsu")


def test_missing_text_is_answered_with_the_widgets_of_the_type(tool):
    t = tool(vertical(button("Go"), button("Stop", Aka="S")))
    with raises(f'There is no SButton "Run" in "{t.tab}"; there is SButton "Go", SButton #S "Stop"'):
        t.click("SButton", "Run")
    with raises(f'There is no SButton "Go" number 1 in "{t.tab}"; they are numbered from 0 to 0'):
        t.click("SButton", "Go", 1)


def test_many_suggestions_are_cut_short(tool):
    t = tool(vertical(*(label(str(number)) for number in range(20))))
    with raises('STextBlock "11", ...'):
        t.text("STextBlock", "99")


def test_widget_of_a_tab_behind_another_cannot_be_clicked_and_it_is_said_why(tool):
    behind = tool(button("Go"))
    tool(button("Go"))
    with raises(f'SButton "Go" in "{behind.tab}" is not shown; its tab is behind another'):
        behind.click("SButton", "Go")


def test_beginning_that_two_labels_have_names_neither(tool):
    tool(button("Go"), TabLabel="Report A")
    tool(button("Go"), TabLabel="Report B")
    with pytest.raises(RuntimeError, match='There is no tab and no window "Report"'):
        Driver.click("Report", "SButton")
    assert Driver.click("Report B", "SButton") == 'SButton "Go"'


def test_label_that_another_begins_with_names_its_own_tab(tool):
    tool(button("Long"), TabLabel="Report and more")
    tool(button("Short"), TabLabel="Report")
    assert Driver.click("Report", "SButton") == 'SButton "Short"'


def test_time_does_not_go_back():
    with raises("There is no waiting for -1 seconds, only for 0 to 3600"):
        Driver.wait(-1)


@pytest.mark.parametrize("seconds", [float("inf"), float("nan"), 1e30, 3601])
def test_time_without_end_is_refused(tool, seconds):
    tool(button("B"))
    with pytest.raises(RuntimeError, match="There is no waiting for .* seconds, only for 0 to 3600"):
        Driver.wait(seconds)
    with pytest.raises(RuntimeError, match="There is no waiting for .* seconds, only for 0 to 3600"):
        Driver.hold_key("Enter", seconds)


@pytest.mark.parametrize("path", ["../out", "Saved/../../out.png", "../" * 40 + "tmp/out", "../Trial2/out.png"])
def test_picture_outside_of_the_project_is_refused(tool, path):
    t = tool(label("a"))
    with raises(f"'{path}' leads out of the project; give an absolute path for a picture that is to stand elsewhere"):
        Driver.screenshot(t.tab, path)


def test_picture_gets_the_ending_of_its_format(tool, tmp_path):
    t = tool(label("a"))
    taken = tmp_path / "passwd"
    taken.write_text("precious")

    assert Driver.screenshot(t.tab, str(taken)) == f"{taken}.png"
    assert Driver.screenshot(t.tab, "Saved/Inner/../shot") == str(PYTHON_FOLDER.parents[2] / "Saved/shot.png")

    assert taken.read_text() == "precious"
    assert pathlib.Path(f"{taken}.png").read_bytes().startswith(b"\x89PNG")


@pytest.mark.parametrize("path", ["", "/", ".", "..", "Saved/", "Saved/..", "/tmp/victim.txt\0", "Saved/shot\0x"])
def test_picture_without_a_name_of_its_own_is_refused(tool, path):
    t = tool(label("a"))
    with pytest.raises((RuntimeError, ValueError)):
        Driver.screenshot(t.tab, path)
