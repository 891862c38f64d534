"""The regex tester in a real window: mouse, keyboard, resizing, closing, pixels."""

import signal
import subprocess

import pictures
from conftest import TOOL
from desktop import until

SNAP = """\
import unreal

unreal.VelmoraData.launch_velmora_tool("RegexTester/RegexTester.json")
unreal.EditorDriver.wait(1)
unreal.EditorDriver.screenshot("Regex Tester", {picture!r})
"""


def off_screen_pixels(editor):
    """What an editor without a display shows of the same tool."""
    picture = editor.folder / "off-screen.png"
    script = editor.folder / "snap.py"
    script.write_text(SNAP.format(picture=str(picture)), encoding="utf-8")
    command = [editor.executable, editor.project, "-RenderOffScreen", "-unattended", f"-ExecutePythonScript={script}"]
    subprocess.run([*command, f"-abslog={editor.folder / 'off-screen.log'}"], check=True, stdin=subprocess.DEVNULL)
    read = pictures.read(picture)
    rgb = bytearray(read.width * read.height * 3)
    for channel in range(3):
        rgb[channel::3] = read.pixels[channel::4]
    return bytes(rgb)


def test_mouse_and_keyboard_reach_the_tool(editor, desktop):
    editor.click("#WhileTyping")
    editor.click("#Sample")
    desktop.type("Mail ada@home or bob@work.")
    editor.until_text("Sample", "Mail ada@home or bob@work.")
    editor.click("#Pattern")
    desktop.type(r"(\w+)@home")
    editor.until_text("Pattern", r"(\w+)@home")
    assert editor.state()["texts"]["Result"] == ""
    editor.click("#Find")
    editor.until_text("Result", "1. line 1, column 6: 'ada@home'\n      1: 'ada'")
    editor.until_text("Status", "1 match")


def test_keyboard_alone_is_enough(editor, desktop):
    editor.click("#Pattern")
    desktop.type("ADA")
    # Find, "Ignore case", "Find while typing", text.
    desktop.press("Tab", "Tab", "space", "Tab", "Tab")
    desktop.type("ada")
    editor.until_text("Sample", "ada")
    until(lambda: editor.state()["ignore_case"], "the tick at Ignore case")
    editor.until_text("Result", "1. line 1, column 1: 'ada'")
    desktop.press("shift+Left", "shift+Left", "ctrl+x", "Home", "ctrl+v")
    editor.until_text("Sample", "daa")


def test_keys_that_came_while_the_editor_was_busy_keep_their_modifiers(editor, desktop):
    editor.click("#Sample")
    desktop.type("ada")
    editor.until_text("Sample", "ada")
    with editor.stopped():
        desktop.press("shift+Left", "shift+Left", "ctrl+x", "Home", "ctrl+v")
        desktop.type("Up")
    editor.until_text("Sample", "daUpa")


def test_keyboard_of_another_layout_types_its_letters(editor, desktop):
    desktop.choose_layout("ru")
    editor.click("#Sample")
    # A program learns of a new layout in its own time, and what is typed before may be lost.
    until(lambda: desktop.type("\u044f") or editor.state()["texts"]["Sample"], "the first letter")
    desktop.press("End", "shift+Home", "BackSpace")
    editor.until_text("Sample", "")
    desktop.type("\u041f\u0440\u0438\u0432\u0435\u0442")
    editor.until_text("Sample", "\u041f\u0440\u0438\u0432\u0435\u0442")


def test_bad_pattern_shows_its_error(editor, desktop):
    editor.click("#Pattern")
    desktop.type("(")
    editor.until_text("Status", "Pattern: missing ), unterminated subpattern at character 1, '('.")


def test_resizing_lays_out_anew(editor, desktop):
    field_width, button_width = editor.place("#Pattern")[2], editor.place("#Find")[2]
    width, height = desktop.size(editor.window)
    desktop.resize(editor.window, width - 200, height - 100)
    until(lambda: editor.place("#Pattern")[2] == field_width - 200, "the narrower field")
    assert editor.place("#Find")[2] == button_width
    editor.click("#Pattern")
    desktop.type("x")
    editor.until_text("Pattern", "x")


def test_window_shows_the_pixels_of_the_off_screen_editor(editor, desktop):
    editor.until_pixels(off_screen_pixels(editor))


def test_window_covered_and_shown_again_is_whole(editor, desktop):
    expected = off_screen_pixels(editor)
    editor.until_pixels(expected)
    desktop.ask("windowminimize", "--sync", editor.window)
    desktop.ask("windowmap", editor.window)
    desktop.ask("windowactivate", "--sync", editor.window)
    editor.until_pixels(expected)


def test_window_is_itself_again_after_a_snapshot(editor, desktop):
    expected = off_screen_pixels(editor)
    picture = editor.folder / "snapshot.png"
    editor.do(f"unreal.VelmoraData.snapshot_velmora_window('{TOOL}', unreal.Vector2D(640, 480), {str(picture)!r})")
    until(picture.exists, "the picture")
    editor.until_pixels(expected)
    editor.click("#Pattern")
    desktop.type("x")
    editor.until_text("Pattern", "x")


def test_close_button_ends_the_editor_with_status_0(editor, desktop):
    desktop.ask("windowactivate", "--sync", editor.window)
    # While it starts the window manager misses a key now and then.
    until(lambda: editor.has_ended_after(lambda: desktop.press("alt+F4")), "the end")
    assert editor.process.returncode == 0
    log = editor.log()
    assert "Engine exit requested (reason: The main window was closed.)" in log
    assert "Error: " not in log


def test_a_signal_wakes_an_editor_with_nothing_to_do(editor):
    # Nobody else would wake it for ten seconds.
    editor.do("stop_watching()")
    editor.process.send_signal(signal.SIGTERM)
    assert editor.process.wait(5) == 128 + signal.SIGTERM
    assert "LogLaunch: The editor is asked to end by signal 15." in editor.log()
