"""The regex tester of the samples, by mouse and keyboard."""

import shutil

import pytest
import unreal

import pictures
from toolbench import PYTHON_FOLDER, Driver

TOOL = "RegexTester/RegexTester.json"
TAB = "Regex Tester"


@pytest.fixture(autouse=True)
def regex_tester():
    shutil.copytree(pictures.ROOT / "Samples" / "RegexTester", PYTHON_FOLDER / "RegexTester", dirs_exist_ok=True)
    assert unreal.VelmoraData.launch_velmora_tool(TOOL)
    Driver.wait()
    yield
    unreal.VelmoraData.request_close(TOOL)
    Driver.wait()


def data():
    return unreal.PythonBPLib.get_velmora_data(TOOL)


def type_into(aka, text):
    Driver.click(TAB, aka)
    Driver.press_key("Ctrl+A")
    Driver.type_text(text)


def test_finds_at_a_click_what_was_typed(log):
    Driver.click(TAB, "#WhileTyping")
    type_into("#Sample", "ada@home\nbob@work")
    type_into("#Pattern", r"(\w+)@(?P<place>\w+)")
    assert data().get_text("Status") == "No pattern yet."
    assert Driver.click(TAB, "SButton", "Find") == 'SButton #Find "Find"'
    assert data().get_text("Result").splitlines() == [
        "1. line 1, column 1: 'ada@home'",
        "      1: 'ada'",
        "      place: 'home'",
        "2. line 2, column 1: 'bob@work'",
        "      1: 'bob'",
        "      place: 'work'",
    ]
    assert data().get_text("Status") == "2 matches"
    assert log.errors("LogPython") == []


def test_finds_at_enter_in_the_pattern():
    Driver.click(TAB, "#WhileTyping")
    type_into("#Sample", "one two")
    type_into("#Pattern", "two")
    Driver.press_key("Enter")
    assert data().get_text("Result") == "1. line 1, column 5: 'two'"


def test_finds_while_typing_and_after_emptying():
    type_into("#Sample", "aaa")
    type_into("#Pattern", "a")
    assert data().get_text("Status") == "3 matches"
    Driver.click(TAB, "#Pattern")
    Driver.press_key("Ctrl+A")
    Driver.press_key("Delete")
    Driver.wait()
    assert data().get_text("Status") == "No pattern yet."


def test_screenshot_shows_the_result(tmp_path):
    type_into("#Sample", "needle")
    before = pictures.read(Driver.screenshot(TAB, str(tmp_path / "before.png")))
    type_into("#Pattern", "need")
    x, y, width, height = place_of("#Result")
    after = pictures.read(Driver.screenshot(TAB, str(tmp_path / "after.png")))
    assert before.part(x, y, width, height) != after.part(x, y, width, height)
    # The text is light on the dark of the field.
    assert max(color[1] for color in after.part(x, y, width, height).colors()) > 150


def place_of(aka):
    line = next(line for line in Driver.dump_tree(TAB).splitlines() if f"{aka} " in line)
    position, size = line.split()[-2:]
    return [int(number) for number in position.split(",") + size.split("x")]


def test_bad_pattern_says_what_is_wrong_in_the_tool(log):
    type_into("#Pattern", "a(b")
    Driver.click(TAB, "SButton", "Find")
    assert data().get_text("Status") == "Pattern: missing ), unterminated subpattern at character 2, '(b'."
    assert data().get_text("Result") == ""
    assert log.errors("LogPython") == []


def test_ignore_case_finds_capitals():
    type_into("#Sample", "ADA ada")
    type_into("#Pattern", "ada")
    assert data().get_text("Status") == "1 match"
    Driver.click(TAB, "#IgnoreCase")
    assert data().get_text("Status") == "2 matches"


def test_replace_shows_the_new_text_and_keeps_the_old():
    type_into("#Sample", "ada bob")
    type_into("#Pattern", r"(\w+) (\w+)")
    type_into("#Replacement", r"\2 \1")
    Driver.click(TAB, "SButton", "Replace")
    assert data().get_text("Result") == "bob ada"
    assert data().get_text("Sample") == "ada bob"


def test_replacement_with_a_group_that_is_not_there_is_explained():
    type_into("#Sample", "a")
    type_into("#Pattern", "a")
    type_into("#Replacement", r"\7")
    Driver.click(TAB, "SButton", "Replace")
    assert data().get_text("Status") == "Replacement: invalid group reference 7 at character 2, '7'."


def test_result_can_be_selected_but_not_changed():
    type_into("#Sample", "abc")
    type_into("#Pattern", "b")
    before = data().get_text("Result")
    with pytest.raises(RuntimeError, match="was not taken"):
        type_into("#Result", "xyz")
    assert data().get_text("Result") == before != ""


def test_closing_ends_the_watch(log):
    unreal.VelmoraData.request_close(TOOL)
    Driver.wait()
    Driver.wait(1)
    before = Driver.count_frames()
    Driver.wait(10)
    assert Driver.count_frames() == before + 1
    assert log.errors("LogPython") == []
