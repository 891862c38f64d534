"""Pictures of tools, byte for byte as they were when somebody looked at them. See pictures.py for making them anew."""

import os
import shutil
import subprocess

import pytest
import unreal

import pictures
from toolbench import PYTHON_FOLDER, Driver, button, check_box, field, label, long_field, vertical

GALLERY = "VelmoraGallery/VelmoraGallery.json"
REGEX_TESTER = "RegexTester/RegexTester.json"


@pytest.fixture(autouse=True)
def only_tab():
    """Closes what the project opened at its start."""
    unreal.VelmoraData.request_close(GALLERY)
    Driver.wait()


def padded(content):
    panel = {"Style": "FEditorStyle", "Brush": "ToolPanel.GroupBorder"}
    return {"SBorder": {"BorderImage": panel, "Content": {"SBox": {"Padding": 12, "Content": content}}}}


def row(*contents):
    slots = [{"AutoWidth": True, "Padding": [0, 0, 8, 0], **content} for content in contents]
    return {"Padding": [0, 4], "SHorizontalBox": {"Slots": slots}}


def buttons():
    """Buttons as tools have them, from the plainest on."""
    return padded(
        vertical(
            row(button("OK"), button("Cancel"), button("A longer label of several words"), button("x")),
            row(button("With room", ContentPadding=[24, 2]), button("Tall", ContentPadding=[16, 10]), button("Tight", ContentPadding=0)),
            row(
                button("Tinted", ButtonColorAndOpacity=[1, 0.25, 0.15, 1]),
                button("Green", ButtonColorAndOpacity=[0.15, 0.8, 0.4, 1]),
                {"SButton": {"Content": check_box("a check box inside")}},
            ),
            button("As wide as the tool"),
        )
    )


SNAP = """\
import unreal

unreal.VelmoraData.launch_velmora_tool({tool!r})
unreal.EditorDriver.wait(0.6)
unreal.EditorDriver.screenshot("Buttons", {picture!r})
"""


def test_buttons_with_the_default_padding(tool, golden):
    golden(tool(buttons(), TabLabel="Buttons", InitTabSize=[520, 200], InitTabPosition=[0, 0]).tab, "Buttons.png")


def test_buttons_without_the_default_padding(tool, tmp_path):
    """The setting is read at the start, so this takes an editor of its own, on a copy of the project."""
    t = tool(buttons(), TabLabel="Buttons", InitTabSize=[620, 200], InitTabPosition=[0, 0])
    project = tmp_path / "Trial"
    shutil.copytree(PYTHON_FOLDER.parents[2], project, symlinks=True)
    config = project / "KX/Kestrix/Config/Config.ini"
    text = config.read_text(encoding="utf-8")
    assert "SButtonHorizontalPadding=-16" in text
    config.write_text(text.replace("SButtonHorizontalPadding=-16", "SButtonHorizontalPadding=0"), encoding="utf-8")
    picture = tmp_path / "buttons.png"
    script = tmp_path / "snap.py"
    script.write_text(SNAP.format(tool=str(t.path.relative_to(PYTHON_FOLDER)), picture=str(picture)), encoding="utf-8")
    command = ["/proc/self/exe", project / "Trial.uproject", "-RenderOffScreen", "-unattended", f"-ExecutePythonScript={script}"]
    subprocess.run(command, executable=os.readlink("/proc/self/exe"), check=True, stdin=subprocess.DEVNULL)
    pictures.compare(picture, "ButtonsUnpadded.png")


def test_buttons_under_the_mouse_and_with_the_keyboard(tool, golden):
    t = tool(
        padded(vertical(row(button("Plain", Aka="P"), button("Focused"), button("Hovered", Aka="H")))),
        TabLabel="Buttons",
        InitTabSize=[360, 80],
        InitTabPosition=[0, 0],
    )
    t.click("#P")
    Driver.press_key("Tab")
    t.hover("#H")
    golden(t.tab, "ButtonStates.png", keep_mouse=True)


def test_check_box_and_field_with_the_keyboard(tool, golden):
    t = tool(
        padded(vertical(check_box("Focused", Padding=[6, 2], Aka="C"), field("F", Text="Focused, selected"), button("Plain"))),
        TabLabel="Focus",
        InitTabSize=[300, 140],
        InitTabPosition=[0, 0],
    )
    t.click("#F")
    Driver.press_key("Ctrl+A")
    golden(t.tab, "FieldFocused.png")
    Driver.press_key("Shift+Tab")
    golden(t.tab, "CheckBoxFocused.png")


def test_every_widget(tool, golden):
    t = tool(
        padded(
            vertical(
                label("STextBlock"),
                label("A text that is too long for its room and therefore goes on in a second line.", AutoWrapText=True),
                row(check_box("off", Padding=[6, 2]), check_box("on", IsChecked=True, Padding=[6, 2])),
                field("Empty", HintText="a hint"),
                field("Filled", Text="a text"),
                long_field("Long", Text="one\ntwo\nthree\nfour\nfive\nsix\nseven\neight"),
                {"SBox": {"HeightOverride": 60, "Content": {"SScrollBox": {"Slots": [label(f"line {number}") for number in range(9)]}}}},
                {"SBorder": {"Content": label("SBorder")}},
            )
        ),
        TabLabel="Widgets",
        InitTabSize=[360, 420],
        InitTabPosition=[0, 0],
    )
    golden(t.tab, "Widgets.png")


def test_regex_tester(golden):
    shutil.copytree(pictures.ROOT / "Samples" / "RegexTester", PYTHON_FOLDER / "RegexTester", dirs_exist_ok=True)
    unreal.VelmoraData.launch_velmora_tool(REGEX_TESTER)
    data = unreal.PythonBPLib.get_velmora_data(REGEX_TESTER)
    data.set_text("Pattern", r"(\w+)@(\w+)")
    data.set_text("Sample", "Mail ada@home or bob@work.")
    golden("Regex Tester", "RegexTester.png")
    data.set_text("Pattern", r"(\w+@(\w+)")
    golden("Regex Tester", "RegexTesterError.png")
    unreal.VelmoraData.request_close(REGEX_TESTER)


def test_gallery(golden):
    unreal.VelmoraData.launch_velmora_tool(GALLERY)
    golden("Velmora Gallery", "Gallery.png")
    Driver.click("Velmora Gallery", "SButton", "End")
    Driver.wait(1)
    golden("Velmora Gallery", "GalleryEnd.png")


def test_tool_tip(tool, golden):
    t = tool(padded(button("Go", ToolTipText="What this button does")), TabLabel="Tip", InitTabSize=[300, 130], InitTabPosition=[0, 0])
    t.hover("SButton")
    Driver.wait(1)
    golden(t.tab, "ToolTip.png", keep_mouse=True)
