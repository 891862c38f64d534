"""Opening tools, their windows, and pictures of them."""

import pathlib

import pytest
import unreal

import pictures
from toolbench import PYTHON_FOLDER, Driver, button, field, label, vertical

Data = unreal.VelmoraData


def test_tool_is_launched_by_its_full_path_and_by_its_short_one(tool):
    t = tool(label("a"))
    assert t.is_open
    t.close()
    assert Data.launch_velmora_tool(str(t.path.relative_to(PYTHON_FOLDER)))
    assert t.is_open


def test_missing_file_is_refused_with_a_warning(log):
    assert not Data.launch_velmora_tool("Nowhere/Nothing.json")
    full = PYTHON_FOLDER / "Nowhere/Nothing.json"
    assert log.warnings("PythonKX") == [f"File: Nowhere/Nothing.json not exist. LaunchVemloraTool by: {full}"]


def test_empty_path_is_the_python_folder_and_no_file(log):
    assert not Data.launch_velmora_tool("")
    assert len(log.warnings("PythonKX")) == 1


def test_second_launch_shows_the_same_tab_and_starts_nothing(tool, runs):
    t = tool(field("F"), InitPyCmd="import recorder; recorder.run('init')")
    t.type_into("#F", "kept")
    assert t.launch()
    assert runs == ["init"]
    assert t.count("SVelmoraWidget") == 1
    assert t.data.get_text("F") == "kept"


def test_relaunch_after_closing_starts_anew(tool, runs):
    t = tool(field("F"), InitPyCmd="import recorder; recorder.run('init')", OnClosePyCmd="recorder.run('close')")
    t.type_into("#F", "gone")
    t.close()
    t.launch()
    assert runs == ["init", "close", "init"]
    assert t.data.get_text("F") == ""


def test_edited_description_shows_after_relaunch(tool):
    t = tool(label("old"))
    t.close()
    t.path.write_text(t.path.read_text().replace("old", "new"))
    t.launch()
    assert t.is_visible("STextBlock", "new")


def test_json_path_is_replaced_wherever_it_stands_at_the_start_and_nowhere_at_the_end(tool, runs):
    t = tool(label("a"), InitPyCmd="import recorder; recorder.run(%JsonPath, %JsonPath)", OnClosePyCmd="recorder.run('%JsonPath')")
    t.close()
    assert runs == [(str(t.path), str(t.path)), "%JsonPath"]


def test_without_a_start_command_the_tool_opens_and_says_so(tool, log):
    t = tool(label("a"), InitPyCmd="")
    assert t.is_open
    assert "InitPytools skipped, cmd: " in log.lines("PythonKX", "Log")


def test_tool_with_a_size_opens_in_a_window_of_its_own(tool):
    t = tool(label("a"), InitTabSize=[300, 200], InitTabPosition=[100, 100])
    assert t.launch() is False
    assert t.is_open and t.is_visible("STextBlock", "a")
    picture = pictures.read(Driver.screenshot(t.tab, "Saved/own-window.png"))
    assert (picture.width, picture.height) == (300, 200)


def test_position_without_a_size_is_not_implemented(tool, log):
    t = tool(label("a"), InitTabSize=[-1, -1], InitTabPosition=[100, 100])
    assert t.is_open
    assert log.warnings("PythonKX") == [f"TabPosition Not Implemented yet {t.path}"]


def test_label_of_the_description_is_the_tabs(tool):
    t = tool(label("a"))
    assert Driver.is_visible(t.title, "STextBlock", "a")


def test_closing_an_unknown_tool_lists_what_there_is(tool, log):
    t = tool(label("a"))
    assert not Data.request_close("Nowhere/Nothing.json")
    warnings = log.warnings("PythonKX")
    assert warnings[0] == "Can't find Tab:"
    short = t.path.relative_to(PYTHON_FOLDER)
    assert f"\t Exists: Tab: Nowhere/Nothing.json vs {short}" in warnings


def test_closing_twice_tells_that_the_tab_is_not_there(tool, log):
    t = tool(label("a"))
    assert Data.request_close(str(t.path))
    assert not Data.request_close(str(t.path))
    assert f"Can't find tab: {t.path}" in log.warnings("PythonKX")


def test_snapshot_writes_what_the_window_shows(tool, tmp_path):
    t = tool(vertical(label("snap")))
    file = tmp_path / "folder" / "snap.png"
    assert Data.snapshot_velmora_window(str(t.path), unreal.Vector2D(0, 0), str(file)) == str(file)
    shot = Driver.screenshot(t.tab, str(tmp_path / "shot.png"))
    taken, shown = pictures.read(file), pictures.read(shot)
    assert (taken.width, taken.height) == (shown.width, shown.height)
    x, y, width, height = t.place("STextBlock")
    assert len(taken.colors()) > 10


def test_snapshot_takes_another_size(tool, tmp_path):
    t = tool(label("snap"))
    file = Data.snapshot_velmora_window(str(t.path), unreal.Vector2D(2000, 1500), str(tmp_path / "large.png"))
    picture = pictures.read(file)
    assert (picture.width, picture.height) == (2000, 1500)


def test_snapshot_without_a_name_goes_to_the_screenshots(tool):
    t = tool(label("snap"))
    file = pathlib.Path(Data.snapshot_velmora_window(str(t.path)))
    assert file.parent.name == "KestrixVelmoraUI" and file.name.startswith("Tool_") and file.exists()


def test_window_is_itself_again_after_a_snapshot(tool, runs, tmp_path):
    t = tool(vertical(button("Go", "recorder.run('go')"), field("F", Text="x")))
    t.click("SButton")
    before = Driver.screenshot(t.tab, str(tmp_path / "before.png"))
    Data.snapshot_velmora_window(str(t.path), unreal.Vector2D(640, 480), str(tmp_path / "snap.png"))
    Driver.wait(0.5)
    after = Driver.screenshot(t.tab, str(tmp_path / "after.png"))
    t.click("SButton")
    t.type_into("#F", "y")
    assert runs == ["go", "go"]
    assert t.data.get_text("F") == "xy"
    assert pathlib.Path(before).read_bytes() == pathlib.Path(after).read_bytes()


def test_snapshot_of_a_closed_tool_is_empty_without_a_word(tool, log):
    t = tool(label("a"))
    t.close()
    before = len(log.entries())
    assert Data.snapshot_velmora_window(str(t.path)) == ""
    assert len(log.entries()) == before


def test_driver_names_the_tabs_there_are():
    with pytest.raises(RuntimeError, match='There is no tab and no window "Nothing". Open tabs: '):
        Driver.click("Nothing", "SButton")


def test_driver_says_what_is_not_there(tool):
    t = tool(vertical(label("a"), label("b")))
    with pytest.raises(RuntimeError) as error:
        t.click("SButton", "Go")
    assert str(error.value) == f'There is no SButton "Go" in "{t.tab}"'
    with pytest.raises(RuntimeError) as error:
        t.click("STextBlock", "", 2)
    assert str(error.value) == f'There is no STextBlock number 2 in "{t.tab}"; they are numbered from 0 to 1'
