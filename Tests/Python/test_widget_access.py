"""What scripts read and set through the data object of a tool."""

import pathlib

import pytest
import unreal

import pictures
from toolbench import Driver, button, check_box, field, label, long_field, vertical

RED = unreal.LinearColor(1.0, 0.0, 0.0, 1.0)


def every_widget():
    return vertical(
        label("text", Aka="Text"),
        field("Field", Text="field"),
        long_field("Long", Text="long"),
        button("button", Aka="Button"),
        check_box("check", Aka="Check"),
        {"SScrollBox": {"Aka": "Scroll", "Slots": []}},
        {"SBox": {"Aka": "Box", "Content": {"SBorder": {"Aka": "Border", "Content": label("inside")}}}},
        {"SHorizontalBox": {"Aka": "Row", "Slots": []}},
    )


@pytest.mark.parametrize("aka", ["Text", "Field", "Long", "Button"])
def test_text_is_read_set_and_shown(tool, aka):
    t = tool(every_widget())
    assert t.data.get_text(aka) == aka.lower()
    t.data.set_text(aka, "new")
    Driver.wait()
    assert t.data.get_text(aka) == "new"
    assert t.text(f"#{aka}") == "new"


@pytest.mark.parametrize("aka", ["Check", "Scroll", "Box", "Border", "Row"])
def test_widgets_without_text_have_none_and_take_none(tool, log, aka):
    t = tool(every_widget())
    assert not t.data.get_text(aka)
    t.data.set_text(aka, "new")
    assert log.warnings("PythonKX") == [] and log.errors("PythonKX") == []


def test_unknown_name_is_reported_with_all_known_ones(tool, log):
    t = tool(vertical(label("a", Aka="A"), label("b", Aka="B")))
    t.data.set_text("C", "x")
    assert log.warnings("PythonKX") == ["Cant't find Widget by name: C  Availables: [A, B, ]"]


def test_set_text_on_a_button_replaces_a_content_that_is_no_text(tool):
    t = tool({"SButton": {"Aka": "B", "Content": {"SBox": {"Content": label("in the box")}}}})
    assert not t.data.get_text("B")
    t.data.set_text("B", "plain")
    Driver.wait()
    assert t.data.get_text("B") == "plain"
    assert t.text("SButton") == "plain"


def test_read_only_can_be_switched(tool):
    t = tool(vertical(field("F"), long_field("L")))
    for aka in ("F", "L"):
        t.data.set_text_read_only(aka, True)
        with pytest.raises(RuntimeError, match="was not taken"):
            t.type_into(f"#{aka}", "x")
        assert t.data.get_text(aka) == ""
        t.data.set_text_read_only(aka, False)
        t.type_into(f"#{aka}", "x")
        assert t.data.get_text(aka) == "x"


def test_read_only_of_a_label_is_not_supported(tool, log):
    t = tool(label("a", Aka="A"))
    t.data.set_text_read_only("A", True)
    assert log.lines("PythonKX", "Log")[-1] == "SetTextReadOnly @ AkaName: A is not supported. widget type: STextBlock"


def test_check_box_state_is_read_and_set(tool, log):
    t = tool(every_widget())
    assert not t.data.get_is_checked("Check")
    t.data.set_is_checked("Check", True)
    assert t.data.get_is_checked("Check")
    t.data.set_is_checked("Text", True)
    assert not t.data.get_is_checked("Text")
    assert log.warnings("PythonKX") == [
        "SetIsChecked not supported for Text. It's for SCheckBox",
        "GetIsChecked not supported for Text. It's for SCheckBox",
    ]


def test_collapsed_takes_no_room_and_hidden_takes_room(tool):
    t = tool(vertical(label("a", Aka="A"), label("b", Aka="B")))
    top = t.place("STextBlock #A")[1]
    below = t.place("STextBlock #B")[1]
    assert below > top
    assert t.data.set_visibility("A", "hidden")
    Driver.wait()
    assert not t.is_visible("#A") and t.place("STextBlock #B")[1] == below
    assert t.data.set_visibility("A", "Collapsed")
    Driver.wait()
    assert t.place("STextBlock #B")[1] == top
    t.data.set_collapsed("A", False)
    Driver.wait()
    assert t.is_visible("#A") and t.place("STextBlock #B")[1] == below
    t.data.set_collapsed("A", True)
    Driver.wait()
    assert not t.is_visible("#A")


def test_hit_test_invisible_button_is_shown_but_not_hit(tool, runs):
    t = tool(button("Go", "recorder.run('go')", Aka="B"))
    for visibility in ("HitTestInvisible", "SelfHitTestInvisible"):
        assert t.data.set_visibility("B", visibility)
        Driver.wait()
        assert t.is_visible("#B")
        with pytest.raises(RuntimeError, match="cannot be hit"):
            t.click("#B")
    assert runs == []


def test_unknown_visibility_is_an_error_and_changes_nothing(tool, log):
    t = tool(label("a", Aka="A"))
    assert not t.data.set_visibility("A", "Shown")
    assert log.errors("PythonKX") == [
        "ParseVisibility Type Error, need String:  Visible/Collapsed/Hidden/HitTestInvisible/SelfHitTestInvisible"
    ]
    Driver.wait()
    assert t.is_visible("#A")


def test_visibility_of_an_unknown_name_is_false_without_a_word(tool, log):
    t = tool(label("a"))
    assert not t.data.set_visibility("Nobody", "Visible")
    t.data.set_collapsed("Nobody", True)
    assert log.warnings("PythonKX") == [] and log.errors("PythonKX") == []


def test_color_of_a_label_shows(tool, tmp_path):
    t = tool(label("WWWW", Aka="A"))
    t.data.set_color_and_opacity("A", RED)
    Driver.wait()
    picture = pictures.read(Driver.screenshot(t.tab, str(tmp_path / "label.png"))).part(*t.place("STextBlock #A"))
    red, green, blue, _ = max(picture.colors(), key=lambda color: color[0])
    assert red > 200 and green < 60 and blue < 60


def test_color_of_a_button_tints_its_background(tool, tmp_path):
    t = tool(button("Go", Aka="B"))

    def corner():
        t.hover("#B")
        x, y, width, height = t.place("SButton #B")
        return pictures.read(Driver.screenshot(t.tab, str(tmp_path / "button.png"))).pixel(x + 5, y + height - 5)

    before = corner()
    t.data.set_button_color_and_opacity("B", RED)
    Driver.wait()
    red, green, blue, _ = corner()
    assert red == before[0] and green == 0 and blue == 0


def test_colors_where_they_do_not_apply(tool, log):
    t = tool(every_widget())
    t.data.set_button_color_and_opacity("Text", RED)
    assert log.warnings("PythonKX") == ["SetColorAndOpacity not supported for Text, yet"]
    t.data.set_color_and_opacity("Row", RED)
    assert log.lines("PythonKX", "Log")[-1] == "SetColorAndOpacity not supported for Row, yet"


@pytest.mark.parametrize("aka", ["Text", "Field", "Long", "Button", "Check", "Scroll", "Border"])
def test_widgets_that_take_a_color_say_nothing(tool, log, aka):
    t = tool(every_widget())
    t.data.set_color_and_opacity(aka, RED)
    Driver.wait()
    assert not any("not supported" in text for _, _, text in log.entries())


def test_long_text_scrolls_to_a_line_and_to_its_end(tool, tmp_path):
    t = tool(long_field("L", Text="\n".join(f"line {number}" for number in range(200))))

    def picture():
        Driver.wait(1)
        return pathlib.Path(Driver.screenshot(t.tab, str(tmp_path / "long.png"))).read_bytes()

    assert t.data.scroll_to("L", 0)
    start = picture()
    assert t.data.scroll_to("L", -1, 77)
    end = picture()
    assert end != start
    assert t.data.scroll_to("L", -2)
    assert picture() == end
    assert t.data.scroll_to("L", 0)
    assert picture() == start


def test_scroll_to_on_other_widgets_fails_with_a_line(tool, log):
    t = tool(label("a", Aka="A"))
    assert not t.data.scroll_to("A", 0)
    assert not t.data.scroll_to("Nobody", 0)
    assert log.lines("PythonKX", "Log")[-2:] == [
        "'ScrollTo failed', Widget is not a SMultiLineEditableTextBox: A",
        "'ScrollTo failed', can't find Widget: Nobody",
    ]


def test_scroll_box_offsets_are_read_and_set(tool):
    t = tool({"SScrollBox": {"Aka": "Box", "Slots": [label(f"line {number}") for number in range(100)]}})
    offsets = t.data.get_scroll_box_offsets("Box")
    assert offsets["Offset"] == 0 and offsets["ViewOffsetFraction"] == 0
    assert 0 < offsets["ViewFraction"] < 1 and offsets["ScrollOffsetOfEnd"] > 0
    assert t.data.set_scroll_box_offset("Box", 50)
    Driver.wait()
    assert t.data.get_scroll_box_offsets("Box")["Offset"] == 50


def test_scroll_box_functions_on_other_widgets_fail_with_a_line(tool, log):
    t = tool(label("a", Aka="A"))
    assert len(t.data.get_scroll_box_offsets("A")) == 0
    assert len(t.data.get_scroll_box_offsets("Nobody")) == 0
    assert not t.data.set_scroll_box_offset("A", 1)
    assert not t.data.set_scroll_box_offset("Nobody", 1)
    assert log.lines("PythonKX", "Log")[-4:] == [
        "'GetScrollBoxOffsets failed', Widget is not a SScrollBox: A",
        "GetScrollBoxOffsets failed, can't find Widget: Nobody",
        "'SetScrollBoxOffset failed', Widget is not a SScrollBox: A",
        "SetScrollBoxOffset--- failed, can't find Widget: Nobody",
    ]


def test_tool_tip_of_an_unknown_name_is_logged(tool, log):
    t = tool(label("a"))
    t.data.set_tool_tip_text("Nobody", "x")
    assert log.lines("PythonKX", "Log")[-1] == "SetToolTip failed, can't find Widget: Nobody"


def test_data_of_a_closed_tool_still_answers(tool):
    t = tool(label("a", Aka="A"))
    data = t.data
    t.close()
    data.set_text("A", "b")
    assert data.get_text("A") == "b"


def test_reopened_tool_answers_for_its_new_widgets(tool):
    t = tool(label("a", Aka="A"))
    data = t.data
    data.set_text("A", "b")
    t.close()
    t.launch()
    assert t.data == data
    assert data.get_text("A") == "a"


def test_same_name_twice_means_the_later_widget(tool, log):
    t = tool(vertical(label("first", Aka="A"), label("second", Aka="A")))
    assert t.data.get_text("A") == "second"
    assert f"Key: A Has existed in NamedWidget, Widget: STextBlock @ {t.data.get_name()}" in log.lines("PythonKX", "Log")


def test_data_is_found_by_the_end_of_its_path_in_any_case(tool):
    t = tool(label("a"))
    short = "/".join(t.path.parts[-2:])
    assert unreal.PythonBPLib.get_velmora_data(short) == t.data
    assert unreal.PythonBPLib.get_velmora_data(short.upper()) == t.data


def test_ambiguous_or_unknown_path_gives_nothing(tool, log):
    tool(label("a"))
    assert unreal.PythonBPLib.get_velmora_data("Nobody.json") is None
    assert log.warnings("PythonKX")[-1] == "Can't find Tools Data Instance by Name: Nobody.json"
    # By now there are many tools of that name in this editor.
    assert unreal.PythonBPLib.get_velmora_data("Tool.json") is None
    assert log.warnings("PythonKX")[-1] == "Can't find Tools Data Instance by Name: Tool.json"


def test_paths_of_closed_tools_are_listed_too(tool):
    t = tool(label("a"))
    t.close()
    assert str(t.path) in unreal.PythonBPLib.get_all_velmora_data_paths()


def test_python_flag_is_kept():
    unreal.VelmoraData.set_python_flag(True)
    assert unreal.VelmoraData.get_python_flag()
    unreal.VelmoraData.set_python_flag(False)
    assert not unreal.VelmoraData.get_python_flag()
