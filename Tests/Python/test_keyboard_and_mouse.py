"""Keyboard focus, tool tips, and what happens when the room changes."""

import pathlib

import unreal

import pictures
from toolbench import Driver, button, check_box, field, label, long_field, vertical


def test_tab_walks_through_everything_that_takes_the_keyboard(tool, runs):
    t = tool(
        vertical(
            field("A", OnTextChanged="recorder.run('A')"),
            label("no stop here"),
            button("B", "recorder.run('B')"),
            check_box("C", "recorder.run('C')"),
            {"SBorder": {"Content": field("D", OnTextChanged="recorder.run('D')")}},
            button("E", "recorder.run('E')"),
        )
    )
    t.click("#A")
    Driver.type_text("x")
    for key in ("Enter", "Space", "x", "Enter"):
        Driver.press_key("Tab")
        Driver.type_text("x") if key == "x" else Driver.press_key(key)
    assert runs == ["A", "B", "C", "D", "E"]


def test_shift_tab_walks_back(tool, runs):
    t = tool(vertical(field("A", OnTextChanged="recorder.run('A')"), button("B"), field("C")))
    t.click("#C")
    Driver.press_key("Shift+Tab")
    Driver.press_key("Shift+Tab")
    Driver.type_text("x")
    assert runs == ["A"]


def test_tab_skips_what_is_hidden(tool, runs):
    t = tool(vertical(field("A"), button("B", "recorder.run('B')", Aka="B"), button("C", "recorder.run('C')")))
    t.data.set_visibility("B", "Hidden")
    t.click("#A")
    Driver.press_key("Tab")
    Driver.press_key("Enter")
    assert runs == ["C"]


def test_keyboard_edits_as_users_expect(tool):
    t = tool(field("F"))
    t.type_into("#F", "one two")
    Driver.press_key("Home")
    Driver.type_text(">")
    Driver.press_key("End")
    Driver.press_key("Backspace")
    assert t.data.get_text("F") == ">one tw"
    Driver.press_key("Ctrl+A")
    Driver.press_key("Ctrl+C")
    Driver.press_key("End")
    Driver.press_key("Ctrl+V")
    assert t.data.get_text("F") == ">one tw>one tw"
    Driver.press_key("Ctrl+Z")
    assert t.data.get_text("F") == ">one tw"
    Driver.press_key("Ctrl+A")
    Driver.press_key("Ctrl+X")
    assert t.data.get_text("F") == ""
    Driver.press_key("Ctrl+V")
    assert t.data.get_text("F") == ">one tw"


def test_double_click_selects_a_word(tool):
    t = tool({"SBox": {"WidthOverride": 80, "HAlign": "Left", "Content": field("F", Text="alpha")}})
    Driver.double_click(t.tab, "SEditableText")
    Driver.type_text("x")
    assert t.data.get_text("F") == "x"


def test_held_key_repeats(tool):
    t = tool(field("F"))
    t.click("#F")
    Driver.hold_key("A", 1.5)
    assert 25 <= len(t.data.get_text("F")) <= 35


def test_tool_tip_appears_when_the_mouse_rests_and_vanishes_when_it_leaves(tool, tmp_path):
    t = tool(vertical(button("Go", ToolTipText="A tip for you"), label("away")))

    def picture():
        return pathlib.Path(Driver.screenshot(t.tab, str(tmp_path / "tip.png"))).read_bytes()

    t.hover("STextBlock", "away")
    Driver.wait(1)
    without = picture()
    t.hover("SButton")
    Driver.wait(0.1)
    hovered = picture()
    Driver.wait(1)
    assert picture() != hovered
    t.hover("STextBlock", "away")
    Driver.wait(1)
    assert picture() == without


def test_tool_tip_text_set_by_a_script_shows(tool, tmp_path):
    t = tool(vertical(button("Go", Aka="B"), label("away")))

    def picture():
        t.hover("STextBlock", "away")
        t.hover("SButton")
        Driver.wait(1)
        return pathlib.Path(Driver.screenshot(t.tab, str(tmp_path / "tip.png"))).read_bytes()

    without = picture()
    t.data.set_tool_tip_text("B", "A tip for you")
    assert picture() != without


def test_wider_window_widens_what_fills(tool):
    root = {"SHorizontalBox": {"Slots": [{"FillWidth": 1, **field("F")}, {"AutoWidth": True, **button("Go")}]}}
    small = tool(root, InitTabSize=[300, 200], InitTabPosition=[10, 10])
    field_width = small.place("SEditableTextBox #F")[2]
    button_width = small.place("SButton")[2]
    assert field_width + button_width == 300
    small.close()
    small.path.write_text(small.path.read_text().replace("300", "500"))
    small.launch()
    assert small.place("SEditableTextBox #F")[2] == field_width + 200
    assert small.place("SButton")[2] == button_width


def test_snapshot_size_lays_out_anew(tool, tmp_path):
    t = tool(vertical(field("F"), long_field("L")))
    widths = []
    for width in (400, 800):
        file = unreal.VelmoraData.snapshot_velmora_window(str(t.path), unreal.Vector2D(width, 300), str(tmp_path / f"{width}.png"))
        picture = pictures.read(file)
        widths.append(picture.width)
    assert widths == [400, 800]
