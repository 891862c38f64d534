"""The gallery of a new project, and everything in it."""

import pathlib

import pytest
import unreal

from toolbench import Driver

GALLERY = "VelmoraGallery/VelmoraGallery.json"
TAB = "Velmora Gallery"


@pytest.fixture(autouse=True)
def fresh_gallery():
    """The first test gets the gallery as the project's first start opened it; each leaves a new one behind."""
    yield
    unreal.VelmoraData.request_close(GALLERY)
    unreal.VelmoraData.launch_velmora_tool(GALLERY)
    Driver.wait()


def data():
    return unreal.PythonBPLib.get_velmora_data(GALLERY)


def test_opens_at_the_first_start_of_a_new_project():
    assert Driver.is_visible(TAB, "SButton", "Reset")
    assert Driver.get_text(TAB, "#Status") == "Ready."


def test_opens_without_warnings(log):
    unreal.VelmoraData.request_close(GALLERY)
    Driver.wait()
    unreal.VelmoraData.launch_velmora_tool(GALLERY)
    Driver.wait()
    assert [entry for entry in log.entries() if entry[1] != "Log"] == []
    assert "The gallery was closed; its counter stood at 0." in log.lines("LogPython")


def test_color_buttons_color_the_sample():
    for name in ("Coral", "Mint", "White"):
        Driver.click(TAB, "SButton", name)
        assert Driver.get_text(TAB, "#ColorSample") == f"This text is {name.lower()}."
        assert Driver.get_text(TAB, "#Status") == f"Colour: {name}"


def test_counter_counts_both_ways_and_resets():
    Driver.click(TAB, "SButton", "+1")
    Driver.click(TAB, "SButton", "+1")
    Driver.click(TAB, "SButton", "-1")
    assert Driver.get_text(TAB, "#Count") == "1"
    Driver.click(TAB, "SButton", "Reset")
    assert Driver.get_text(TAB, "#Count") == "0"


def test_name_is_greeted_at_each_key_and_logged_once_at_enter():
    Driver.click(TAB, "#Name")
    Driver.type_text("Ada")
    assert Driver.get_text(TAB, "#NameEcho") == "Hello, Ada!"
    Driver.press_key("Enter")
    assert data().get_text("Log").splitlines()[-1] == "Name: Ada"
    Driver.click(TAB, "SButton", "Clear")
    assert data().get_text("Name") == ""
    assert Driver.get_text(TAB, "#NameEcho") == ""


def test_locked_field_takes_no_keys():
    Driver.click(TAB, "#NameLocked")
    Driver.click(TAB, "#Name")
    with pytest.raises(RuntimeError, match="was not taken"):
        Driver.type_text("x")
    assert data().get_text("Name") == ""
    Driver.click(TAB, "#NameLocked")
    Driver.click(TAB, "#Name")
    Driver.type_text("x")
    assert data().get_text("Name") == "x"
    Driver.click(TAB, "SButton", "Clear")


def test_toppings_are_listed():
    Driver.click(TAB, "#ToppingPeppers")
    assert Driver.get_text(TAB, "#Toppings") == "Pizza with olives, peppers"
    Driver.click(TAB, "SButton", "All")
    assert Driver.get_text(TAB, "#Toppings") == "Pizza with olives, peppers, mushrooms"
    Driver.click(TAB, "SButton", "None")
    assert Driver.get_text(TAB, "#Toppings") == "Pizza with cheese only"
    Driver.click(TAB, "#ToppingOlives")
    assert Driver.get_text(TAB, "#Toppings") == "Pizza with olives"


def test_panel_collapses_and_its_text_hides():
    Driver.click(TAB, "#PanelShown")
    assert not Driver.is_visible(TAB, "#Panel")
    Driver.click(TAB, "#PanelShown")
    assert Driver.is_visible(TAB, "#Panel")
    Driver.click(TAB, "#PanelHidden")
    assert not Driver.is_visible(TAB, "#PanelText")
    Driver.click(TAB, "#PanelHidden")
    assert Driver.is_visible(TAB, "#PanelText")


def test_page_scrolls_to_its_ends():
    Driver.click(TAB, "SButton", "End")
    Driver.wait(1)
    offsets = data().get_scroll_box_offsets("Page")
    assert offsets["Offset"] == offsets["ScrollOffsetOfEnd"] > 0
    assert not Driver.is_visible(TAB, "#ColorSample")
    Driver.click(TAB, "SButton", "Top")
    Driver.wait(1)
    assert data().get_scroll_box_offsets("Page")["Offset"] == 0
    assert Driver.is_visible(TAB, "#ColorSample")


def test_long_text_grows_scrolls_and_empties(tmp_path):
    def picture():
        Driver.hover(TAB, "#Status")
        Driver.wait(1)
        return pathlib.Path(Driver.screenshot(TAB, str(tmp_path / "gallery.png"))).read_bytes()

    Driver.click(TAB, "SButton", "End")
    Driver.wait(1)
    Driver.click(TAB, "SButton", "Add a Line")
    Driver.click(TAB, "SButton", "Add 50")
    assert data().get_text("Log").splitlines() == [f"Line {number}" for number in range(1, 52)]
    at_end = picture()
    Driver.click(TAB, "SButton", "First Line")
    assert picture() != at_end
    Driver.click(TAB, "SButton", "Last Line")
    assert picture() == at_end
    Driver.click(TAB, "#LogClear")
    assert data().get_text("Log") == ""
