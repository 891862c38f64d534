"""How often, and with what, the commands of a tool run when a user does something."""

import pytest

from toolbench import Driver, button, check_box, field, label, long_field, vertical


def test_button_runs_once_at_each_click(tool, runs):
    t = tool(button("Go", "recorder.run('go')"))
    t.click("SButton")
    assert runs == ["go"]
    t.click("SButton")
    assert runs == ["go", "go"]


def test_double_click_is_two_clicks_for_a_button(tool, runs):
    t = tool(button("Go", "recorder.run('go')"))
    Driver.double_click(t.tab, "SButton")
    assert runs == ["go", "go"]


def test_right_click_does_not_press_a_button(tool, runs):
    t = tool(button("Go", "recorder.run('go')"))
    Driver.right_click(t.tab, "SButton")
    assert runs == []


def test_button_released_outside_runs_nothing(tool, runs):
    t = tool(vertical(button("Go", "recorder.run('go')"), label("below")))
    Driver.drag(t.tab, "SButton", "Go", 0, 0, 200)
    assert runs == []


def test_button_runs_at_the_release_of_enter_and_space(tool, runs):
    t = tool(vertical(field("Before"), button("Go", "recorder.run('go')")))
    t.click("#Before")
    Driver.press_key("Tab")
    Driver.press_key("Enter")
    assert runs == ["go"]
    Driver.press_key("Space")
    assert runs == ["go", "go"]


def test_held_enter_presses_a_button_once(tool, runs):
    t = tool(vertical(field("Before"), button("Go", "recorder.run('go')")))
    t.click("#Before")
    Driver.press_key("Tab")
    Driver.hold_key("Enter", 2)
    assert runs == ["go"]


def test_button_gets_its_path(tool, runs):
    t = tool(vertical(button("Go", "recorder.run(%WidgetPath)")))
    t.click("SButton")
    assert runs == ["/SVerticalBox/Slots_0/SButton"]


def test_button_may_close_its_own_tool(tool, runs):
    t = tool(button("Bye", "import unreal; unreal.VelmoraData.request_close(path)"), InitPyCmd="path = %JsonPath")
    t.click("SButton")
    assert not t.is_open


def test_check_box_tells_its_new_state_once_a_click(tool, runs):
    t = tool(check_box("On", "recorder.run(%)", Aka="Box"))
    t.click("SCheckBox")
    assert runs == [True]
    assert t.data.get_is_checked("Box")
    t.click("SCheckBox")
    assert runs == [True, False]
    assert not t.data.get_is_checked("Box")


def test_check_box_state_is_stored_before_its_command_runs(tool, runs):
    command = "recorder.run(unreal.PythonBPLib.get_velmora_data(path).get_is_checked('Box'))"
    t = tool(check_box("On", command, Aka="Box"), InitPyCmd="import recorder, unreal; path = %JsonPath")
    t.click("SCheckBox")
    assert runs == [True]


def test_click_on_the_content_of_a_check_box_ticks_it(tool, runs):
    t = tool(check_box("On", "recorder.run(%)"))
    t.click("STextBlock", "On")
    assert runs == [True]


def test_check_box_is_ticked_by_the_keyboard(tool, runs):
    t = tool(vertical(field("Before"), check_box("On", "recorder.run(%)")))
    t.click("#Before")
    Driver.press_key("Tab")
    Driver.press_key("Space")
    Driver.press_key("Enter")
    assert runs == [True, False]


def test_script_ticks_silently(tool, runs):
    t = tool(check_box("On", "recorder.run(%)", Aka="Box"))
    t.data.set_is_checked("Box", True)
    Driver.wait()
    assert runs == []


def test_field_tells_every_change_with_the_whole_text(tool, runs):
    t = tool(field("F", OnTextChanged="recorder.run('changed', %)"))
    t.type_into("#F", "abc")
    assert runs == [("changed", "a"), ("changed", "ab"), ("changed", "abc")]


def test_emptied_field_runs_nothing(tool, runs):
    t = tool(field("F", Text="abc", OnTextChanged="recorder.run('changed', %)", OnTextCommitted="recorder.run('committed', %)"))
    runs.clear()
    t.click("#F")
    Driver.press_key("Ctrl+A")
    Driver.press_key("Delete")
    Driver.press_key("Enter")
    assert t.data.get_text("F") == ""
    assert runs == []


def test_enter_in_a_field_commits_and_so_does_the_loss_of_focus_that_follows(tool, runs):
    t = tool(field("F", OnTextCommitted="recorder.run('committed', %)"))
    t.type_into("#F", "x")
    Driver.press_key("Enter")
    assert runs == [("committed", "x"), ("committed", "x")]


def test_field_left_by_mouse_commits_once_changed_or_not(tool, runs):
    t = tool(vertical(field("F", Text="x", OnTextCommitted="recorder.run(%)"), field("G")))
    t.click("#F")
    t.click("#G")
    assert runs == ["x"]


def test_field_left_by_tab_commits_once(tool, runs):
    t = tool(vertical(field("F", OnTextCommitted="recorder.run(%)"), field("G")))
    t.type_into("#F", "x")
    Driver.press_key("Tab")
    assert runs == ["x"]
    Driver.type_text("y")
    assert t.data.get_text("G") == "y"


def test_field_commits_at_the_press_of_the_button_that_takes_the_focus(tool, runs):
    t = tool(vertical(field("F", OnTextCommitted="recorder.run('committed')"), button("Go", "recorder.run('go')")))
    t.type_into("#F", "x")
    t.click("SButton")
    assert runs == ["committed", "go"]


def test_changes_come_before_the_commit(tool, runs):
    t = tool(field("F", OnTextChanged="recorder.run('changed', %)", OnTextCommitted="recorder.run('committed', %)"))
    t.type_into("#F", "a")
    Driver.press_key("Enter")
    assert runs == [("changed", "a"), ("committed", "a"), ("committed", "a")]


def test_script_text_counts_as_a_change_unless_equal(tool, runs):
    t = tool(field("F", Text="a", OnTextChanged="recorder.run(%)"))
    runs.clear()
    t.data.set_text("F", "a")
    assert runs == []
    t.data.set_text("F", "b")
    assert runs == ["b"]


def test_long_field_takes_enter_as_text_and_commits_when_left(tool, runs):
    t = tool(vertical(long_field("L", OnTextCommitted="recorder.run(%)"), field("G")))
    t.type_into("#L", "a\nb")
    assert runs == []
    t.click("#G")
    assert runs == ["a\nb"]


def test_long_field_tells_every_change(tool, runs):
    t = tool(long_field("L", OnTextChanged="recorder.run(%)"))
    t.type_into("#L", "a\nb")
    assert runs == ["a", "a\n", "a\nb"]


def test_text_of_the_description_counts_as_a_change(tool, runs):
    tool(field("F", Text="a", OnTextChanged="import recorder; recorder.run(%)"))
    assert runs == ["a"]


def test_read_only_field_takes_no_keys(tool, runs):
    t = tool(vertical(field("F", Text="a", IsReadOnly=True, OnTextChanged="recorder.run(%)")))
    runs.clear()
    with pytest.raises(RuntimeError, match="was not taken"):
        t.type_into("#F", "x")
    assert runs == []
    assert t.data.get_text("F") == "a"


def test_characters_beyond_the_basic_plane_arrive_whole(tool, runs):
    t = tool(field("F", OnTextCommitted="recorder.run(%)"))
    t.type_into("#F", "a\u00e9\u4e16\U0001f600")
    Driver.press_key("Enter")
    assert runs[-1] == "a\u00e9\u4e16\U0001f600"


def test_quotes_within_a_text_arrive_and_one_at_its_end_breaks_the_literal(tool, runs, log):
    t = tool(field("Name", OnTextCommitted="recorder.run(%)"))
    t.click("#Name")
    Driver.type_text("it's")
    Driver.press_key("Enter")
    assert runs == ["it's", "it's"]
    runs.clear()
    t.data.set_text("Name", "")
    t.click("#Name")
    Driver.type_text("its'")
    Driver.press_key("Enter")
    assert runs == []
    assert any("SyntaxError" in line for line in log.errors("LogPython"))
    t.data.set_text("Name", "still here")
    assert t.data.get_text("Name") == "still here"


def test_tick_runs_once_a_frame_and_ends_with_the_tool(tool, runs, log):
    t = tool(label("tick", OnTick="recorder.run('tick')"))
    runs.clear()
    Driver.wait(0.5)
    assert 29 <= len(runs) <= 31
    t.close()
    runs.clear()
    Driver.wait(0.5)
    assert runs == []


def test_scroll_box_scrolls_by_wheel_and_by_its_bar(tool):
    lines = [{**label(f"line {number}")} for number in range(100)]
    t = tool({"SScrollBox": {"Aka": "Box", "Slots": lines}})
    assert t.is_visible("STextBlock", "line 0")
    Driver.scroll(t.tab, "SScrollBox", "", 0, -5)
    Driver.wait(1)
    assert t.data.get_scroll_box_offsets("Box")["Offset"] > 0
    assert not t.is_visible("STextBlock", "line 0")
    Driver.scroll(t.tab, "SScrollBox", "", 0, 1000)
    Driver.wait(1)
    assert t.data.get_scroll_box_offsets("Box")["Offset"] == 0
    Driver.drag(t.tab, "SScrollBar", "", 0, 0, 400)
    Driver.wait(1)
    assert t.data.get_scroll_box_offsets("Box")["Offset"] > 0
