"""What the log says when the Python of a tool raises, and that the tool goes on."""

from toolbench import Driver, button, field, label, vertical


def test_exception_of_a_click_shows_its_source_and_what_was_clicked(tool, runs, log):
    t = tool(vertical(button("Go", "1 / 0"), button("Next", "recorder.run('next')")))
    t.click("SButton", "Go")
    assert log.errors("LogPython") == [
        "Traceback (most recent call last):",
        '  File "<string>", line 1, in <module>',
        "    1 / 0",
        "    ~~^~~",
        "ZeroDivisionError: division by zero",
        f'While handling mouse button up on SButton "Go" in tab "{t.title}"',
    ]
    t.click("SButton", "Next")
    assert runs == ["next"]


def test_exception_in_a_module_shows_its_line(tool, log):
    module = "def fail():\n    raise ValueError('no good')\n"
    t = tool(
        button("Go", "faulty_part.fail()"),
        files={"faulty_part.py": module},
        InitPyCmd="import os, sys; sys.path.append(os.path.dirname(%JsonPath)); import faulty_part",
    )
    t.click("SButton")
    errors = log.errors("LogPython")
    assert "    raise ValueError('no good')" in errors
    assert errors[-2:] == ["ValueError: no good", f'While handling mouse button up on SButton "Go" in tab "{t.title}"']


def test_syntax_error_of_a_command_points_at_its_place(tool, log):
    t = tool(button("Go", "if then"))
    t.click("SButton")
    errors = log.errors("LogPython")
    assert "    if then" in errors
    assert errors[-2].startswith("SyntaxError: ")


def test_exception_of_a_change_names_the_field(tool, runs, log):
    t = tool(field("F", OnTextChanged="missing_name", OnTextCommitted="recorder.run(%)"))
    t.type_into("#F", "x")
    errors = log.errors("LogPython")
    assert "NameError: name 'missing_name' is not defined" in errors
    assert errors[-1] == f'While handling character on SEditableText in #F in tab "{t.title}"'
    Driver.press_key("Enter")
    assert runs == ["x", "x"]


def test_exception_of_a_timer_names_its_widget(tool, log):
    t = tool(vertical(label("Clock", Aka="C", OnTick="1 / 0")))
    Driver.wait()
    assert log.errors("LogPython")[:6][-2:] == [
        "ZeroDivisionError: division by zero",
        f'While handling timer on STextBlock "Clock" #C in tab "{t.title}"',
    ]


def test_driver_refuses_to_wait_within_a_timer(tool, log):
    t = tool(label("Clock", OnTick="import unreal; unreal.EditorDriver.wait(1)"))
    Driver.wait()
    assert "RuntimeError: The editor cannot be driven from within the event 'timer' of STextBlock \"Clock\"" in log.errors("LogPython")


def test_exception_at_the_start_names_the_command_and_the_tool_opens(tool, log):
    t = tool(label("Here"), InitPyCmd="import nowhere_to_be_found")
    errors = log.errors("LogPython")
    assert errors[-2:] == [
        "ModuleNotFoundError: No module named 'nowhere_to_be_found'",
        f'While handling InitPyCmd, opening of tab "{t.title}"',
    ]
    assert t.is_visible("STextBlock", "Here")


def test_exception_at_the_end_names_the_command_and_the_tool_closes(tool, log):
    t = tool(label("Here"), OnClosePyCmd="1 / 0")
    t.close()
    assert log.errors("LogPython")[-2:] == [
        "ZeroDivisionError: division by zero",
        f'While handling OnClosePyCmd, closing of tab "{t.title}"',
    ]
    assert not t.is_open


def test_system_exit_does_not_end_the_editor(tool, runs, log):
    t = tool(vertical(button("Go", "raise SystemExit(3)"), button("Next", "recorder.run('next')")))
    t.click("SButton", "Go")
    t.click("SButton", "Next")
    assert runs == ["next"]


def test_endless_recursion_ends_in_an_error(tool, runs, log):
    t = tool(
        vertical(button("Go", "endless()"), button("Next", "recorder.run('next')")),
        InitPyCmd="import recorder\ndef endless():\n    endless()\n",
    )
    t.click("SButton", "Go")
    assert any(line.startswith("RecursionError: ") for line in log.errors("LogPython"))
    t.click("SButton", "Next")
    assert runs == ["next"]


def test_driver_refuses_to_wait_within_an_event(tool, log):
    t = tool(button("Go", "import unreal; unreal.EditorDriver.wait(1)"))
    t.click("SButton")
    assert log.errors("LogPython")[-2:] == [
        "RuntimeError: The editor cannot be driven from within the event 'mouse button up' of SButton \"Go\"",
        f'While handling mouse button up on SButton "Go" in tab "{t.title}"',
    ]


def test_print_goes_to_the_log_line_by_line(tool, log):
    t = tool(button("Go", "print('one\\ntwo'); print('three', end='')"))
    t.click("SButton")
    assert log.lines("LogPython") == ["one", "two", "three"]
