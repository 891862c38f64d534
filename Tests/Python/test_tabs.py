"""The tabs of tools in the editor's window."""

import pytest
import unreal

from toolbench import PYTHON_FOLDER, Driver, Tool, label

WINDOW = "Unreal Editor"

HINT = """\
No tool is open.
Python opens tools: Content/Python/init_unreal.py of the project runs at each start,
a script that the command line names with -ExecutePythonScript=FILE at this one."""


@pytest.fixture
def tools():
    """Twenty tools, more than have room for their labels side by side."""
    unreal.VelmoraData.request_close("VelmoraGallery/VelmoraGallery.json")
    made = [
        Tool(PYTHON_FOLDER / "Many", f"Tool number {number}", label(f"content {number}", Aka="A"), None, {}, {}, f"Tool{number}.json")
        for number in range(20)
    ]
    for each in made:
        each.launch()
    yield made
    for each in made:
        each.close()


def test_every_one_of_many_tabs_can_be_reached(tools):
    for number, each in enumerate(tools):
        Driver.click(WINDOW, "SDockTab", each.title)
        assert each.is_visible("STextBlock", f"content {number}")
        assert Driver.count(WINDOW, "SVelmoraWidget") == 1


def test_last_launched_tool_is_in_front(tools):
    assert [each.title for each in tools if each.is_visible("SVelmoraWidget")] == ["Tool number 19"]


def test_close_button_of_a_tab_closes_it(tools, log):
    Driver.click(WINDOW, "SButton", "", 3)
    assert [each.title for each in tools if not each.is_open] == ["Tool number 3"]
    assert log.errors("LogPython") == []


def test_tab_beside_a_closed_one_comes_to_the_front(tools):
    tools[19].close()
    assert tools[18].is_visible("SVelmoraWidget")


def test_tool_in_the_background_goes_on_working(tools):
    tools[0].data.set_text("A", "changed behind")
    Driver.wait()
    assert not tools[0].is_visible("#A")
    tools[0].launch()
    assert tools[0].is_visible("STextBlock", "changed behind")


def test_close_command_runs_when_the_mouse_closes_the_tab(tool, runs):
    unreal.VelmoraData.request_close("VelmoraGallery/VelmoraGallery.json")
    t = tool(label("a"), OnClosePyCmd="recorder.run('bye')")
    Driver.click(WINDOW, "SButton", "", 0)
    assert runs == ["bye"]
    assert not t.is_open


def test_own_window_ends_with_its_last_tab(tool):
    t = tool(label("a"), TabLabel="Alone", InitTabSize=[300, 200], InitTabPosition=[50, 50])
    Driver.click("Alone", "STextBlock", "a")
    t.close()
    with pytest.raises(RuntimeError, match='There is no tab and no window "Alone"'):
        Driver.screenshot("Alone", "Saved/alone.png")


def test_data_path_of_a_package_in_the_project_is_found(tool, log):
    content = PYTHON_FOLDER.parents[2] / "Content"
    content.mkdir(exist_ok=True)
    (content / "Mine.uasset").write_text("")
    tool(label("x"), VelmoraData="/Game/Mine")
    assert log.errors("PythonKX") == []


def test_data_path_that_is_no_package_is_an_error(tool, log):
    tool(label("x"), VelmoraData="/Game/NotThere")
    assert log.errors("PythonKX") == [
        "Json File can't find: VelmoraData, Default data used. @ /Game/NotThere",
        "Get VelmoraDataPath failed /Game/NotThere",
    ]


def test_window_without_a_tab_says_what_to_do(tools):
    assert not Driver.is_visible(WINDOW, "STextBlock", HINT)
    for each in tools:
        each.close()
    assert Driver.is_visible(WINDOW, "STextBlock", HINT)
    tools[0].launch()
    assert not Driver.is_visible(WINDOW, "STextBlock", HINT)
