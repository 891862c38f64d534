"""How much the editor does: it paints what changed, and nothing when nothing did."""

from toolbench import Driver, button, field, label, vertical


def many_labels():
    return vertical(*[label(f"label {number}", Aka=f"L{number}") for number in range(40)])


def test_idle_editor_makes_no_frames(tool):
    tool(many_labels())
    Driver.wait(2)
    before = Driver.count_frames()
    Driver.wait(60)
    # The one is that of the script, which might have changed something.
    assert Driver.count_frames() == before + 1


def test_changing_one_label_paints_that_label(tool):
    t = tool(many_labels())
    Driver.wait(2)
    t.data.set_text("L7", "another text")
    Driver.wait()
    painted = Driver.count_painted_elements()
    assert 1 <= painted <= 8
    t.data.set_text("L8", "yet another text")
    Driver.wait()
    assert Driver.count_painted_elements() == painted


def test_setting_the_same_text_paints_nothing(tool):
    t = tool(many_labels())
    Driver.wait(2)
    t.data.set_text("L8", "x")
    Driver.wait()
    painted = Driver.count_painted_elements()
    t.data.set_collapsed("L8", False)
    t.data.set_text("L7", "label 7")
    Driver.wait()
    assert Driver.count_painted_elements() == painted < 40


def test_mouse_over_nothing_paints_nothing(tool):
    t = tool(many_labels())
    Driver.hover(t.tab, "SVelmoraWidget", "", 0, 0.9, 0.9)
    Driver.wait(2)
    # The whole tool was painted at last.
    marked = Driver.count_painted_elements()
    assert marked > 40
    for step in range(5):
        Driver.hover(t.tab, "SVelmoraWidget", "", 0, 0.5 + step / 20, 0.9)
    # Nothing was painted since: the last painted frame is still that one.
    assert Driver.count_painted_elements() == marked


def test_hovered_button_paints_itself_only(tool):
    t = tool(vertical(*[button(f"b{number}") for number in range(20)]))
    Driver.hover(t.tab, "SButton", "b3")
    Driver.wait(2)
    Driver.hover(t.tab, "SButton", "b4")
    assert 1 <= Driver.count_painted_elements() <= 16


def test_blinking_caret_paints_the_field_only(tool):
    t = tool(vertical(field("F"), *[label(f"label {number}") for number in range(40)]))
    t.click("#F")
    Driver.wait(3)
    assert 1 <= Driver.count_painted_elements() <= 8


def test_a_minute_passes_by_the_editors_clock_without_a_minutes_work(tool, log):
    tool(many_labels())
    Driver.wait(1)
    frames = Driver.count_frames()
    print("before")
    Driver.wait(60)
    print("after")
    # 60 steps a second, of which only the first had something to do.
    assert (log.frame_of("after") - log.frame_of("before")) % 1000 == 3600 % 1000
    assert Driver.count_frames() == frames + 1


def test_ticks_count_by_the_editors_clock(tool, runs):
    tool(label("tick", OnTick="recorder.run(1)"))
    runs.clear()
    Driver.wait(10)
    assert 599 <= len(runs) <= 601
