"""Descriptions that are wrong cost a log line and a default, never the editor."""

import pytest
import unreal

from toolbench import Driver, button, label, vertical

WIDGETS = (
    "SBox",
    "SBorder",
    "SButton",
    "SScrollBox",
    "SVerticalBox",
    "SHorizontalBox",
    "SCheckBox",
    "STextBlock",
    "SEditableTextBox",
    "SMultiLineEditableTextBox",
)

KEYS = (
    "Aka AutoHeight AutoWidth AutoWrapText BorderBackgroundColor BorderImage ButtonColorAndOpacity ButtonStyle CheckBoxStyle"
    " ColorAndOpacity Content ContentPadding FillHeight FillWidth Font ForegroundColor HAlign HeightOverride HintText IsChecked"
    " IsReadOnly Justification LineHeightPercentage Margin Marshaller MaxDesiredHeight MaxDesiredWidth MinDesiredHeight"
    " MinDesiredWidth OnCheckStateChanged OnClick OnTextChanged OnTextCommitted OnTick Orientation Padding"
    " SelectAllTextWhenFocused ShadowColorAndOpacity ShadowOffset Slots Style Text TextStyle ToolTipText VAlign Visibility"
    " WidthOverride WrappingPolicy AlwaysShowScrollbars NobodyKnowsThis"
).split()

WRONG_VALUES = (
    *(None, True, -1, 0.5, 1e308, -1e308, "", "x", "%"),
    *([], [None], ["x", {}], [1, 2, 3, 4, 5], [[[]]]),
    *({}, {"x": 1}, {"Style": 5}),
)


def editor_lives(t, runs):
    """Whether the tool shows its last button, and that button works."""
    Driver.wait()
    t.click("SButton", "Still here")
    return runs == ["alive"]


def still_here():
    return button("Still here", "import recorder; recorder.run('alive')")


@pytest.mark.parametrize("widget", WIDGETS)
@pytest.mark.parametrize("value", WRONG_VALUES, ids=repr)
def test_wrong_value_of_every_key(tool, runs, widget, value):
    wrong = [{"AutoHeight": True, widget: {key: value}} for key in KEYS]
    t = tool(
        {
            "SVerticalBox": {
                "Slots": [
                    {"AutoHeight": True, **still_here()},
                    {"SScrollBox": {"Slots": [{"SVerticalBox": {"Slots": wrong}}]}},
                ]
            }
        }
    )
    Driver.wait(0.1)
    runs.clear()
    assert editor_lives(t, runs)


@pytest.mark.parametrize("key", ["TabLabel", "InitPyCmd", "OnClosePyCmd", "VelmoraData", "InitTabSize", "InitTabPosition", "Root"])
@pytest.mark.parametrize("value", [None, True, 7, "", [], {}, [1], ["a", "b"], {"x": 1}], ids=repr)
def test_wrong_value_of_every_key_of_the_tool(tool, runs, log, key, value):
    root = {"Root": still_here(), **{key: value}}
    t = tool(**root)
    assert t.is_open
    if key != "Root":
        assert editor_lives(t, runs)


def test_root_without_a_widget_says_so_in_the_tool(tool):
    assert tool({}).is_visible("STextBlock", "No Widget")


def test_unknown_key_and_unknown_widget_are_warned_of(tool, log):
    tool(vertical(label("a", Wrong=1), {"SNobody": {}}))
    assert "Not Supported KeyName: Wrong @ STextBlock" in [text.strip() for text in log.warnings("Velmora")]
    assert "Not Supported KeyName: SNobody @ SVerticalBox" in [text.strip() for text in log.warnings("Velmora")]


def test_widget_that_is_no_object_is_warned_of(tool, runs, log):
    t = tool(vertical({"STextBlock": "text"}, still_here()))
    assert "Slate STextBlock 's Value Type should be EJson::Object" in [text.strip() for text in log.warnings("Velmora")]
    assert editor_lives(t, runs)


def test_empty_file_is_refused(tool, log):
    t = tool(text="")
    assert not t.is_open
    assert f"Json File: {t.path} is Empty" in log.warnings("PythonKX")


def test_broken_json_is_refused_with_its_line(tool, log):
    t = tool(text='{\n\t"Root": {\n\t\t"STextBlock" {}\n\t}\n}\n')
    assert not t.is_open
    assert f"Deserialize File {t.path} failed, check: '\\' " in log.warnings("PythonKX")
    assert any(line.startswith(f"{t.path}:3: ") for line in log.lines("PythonKX", "Display"))


def test_mistake_in_an_included_file_names_that_file(tool, log):
    t = tool(
        text='{\n"Root": {\n"SBox": {\n"Content": {\n"ExternalJson": "Part.json"\n}}}}\n',
        files={"Part.json": '"STextBlock": {\n"Text" "a"\n}\n'},
    )
    assert not t.is_open
    assert any(line.startswith(f"{t.path.parent / 'Part.json'}:2: ") for line in log.lines("PythonKX", "Display"))


def test_file_that_includes_itself_does_so_not_without_end(tool, runs, log):
    t = tool(text='{\n"TabLabel": "Loop",\n"ExternalJson": "Tool.json"\n"Root": {"STextBlock": {"Text": "here"}}\n}\n')
    assert "JsonFile Tool.json has already import in parents, recursively import" in log.warnings("PythonKX")
    assert t.is_visible("STextBlock", "here")


def test_missing_inclusion_is_warned_of(tool, log):
    t = tool(text='{\n"ExternalJson": "Gone.json"\n"Root": {"STextBlock": {"Text": "here"}}\n}\n')
    assert f"File: {t.path.parent / 'Gone.json'} not exists." in log.warnings("PythonKX")
    assert t.is_visible("STextBlock", "here")


def test_description_broken_while_open_relaunches_as_a_message(tool, log):
    t = tool(label("a"))
    t.close()
    t.path.write_text("{")
    t.launch()
    assert f"Deserialize File {t.path} failed, check: '\\' " in log.warnings("PythonKX")


def test_description_that_vanished_can_be_closed(tool, log):
    t = tool(label("a"), OnClosePyCmd="recorder.run('bye')")
    t.path.unlink()
    t.close()
    assert not t.is_open
    assert f"Json File: {t.path} is Not exists" in log.warnings("PythonKX")


def test_bytes_that_are_no_utf8_show_as_question_marks(tool):
    t = tool(text=b'{"Root": {"STextBlock": {"Text": "a\xff\xfeb"}}}')
    assert t.is_open
    assert "?" in t.text("STextBlock") and t.text("STextBlock").startswith("a") and t.text("STextBlock").endswith("b")


@pytest.mark.parametrize("encoding", ["utf-8-sig", "utf-16"])
def test_byte_order_marks_are_honoured(tool, encoding):
    t = tool(text='{"Root": {"STextBlock": {"Text": "\u00e4\u4e16"}}}'.encode(encoding))
    assert t.text("STextBlock") == "\u00e4\u4e16"


def test_lines_of_all_systems_are_lines(tool):
    for ending in ("\r\n", "\r", "\n"):
        t = tool(text=ending.join(["{", "// a comment", '"Root": {"STextBlock": {', '"Text": "a" // another', "}}", "}"]))
        assert t.is_visible("STextBlock", "a")
        t.close()


def test_file_of_fifty_megabytes_opens(tool, runs):
    filling = "\n".join(f'"Filling{number}": "{"x" * 1000}",' for number in range(50000))
    t = tool(text="{\n" + filling + '\n"Root": {"SButton": {"Text": "Still here", "OnClick": "import recorder; recorder.run(\'alive\')"}}}')
    assert t.path.stat().st_size > 50_000_000
    assert editor_lives(t, runs)


def test_text_of_a_megabyte_in_one_widget(tool, runs):
    t = tool(vertical(still_here(), label("x" * 1_000_000)))
    assert editor_lives(t, runs)


def test_five_hundred_widgets_within_each_other_work(tool, runs):
    t = tool(text='{"InitPyCmd": "import recorder", "Root": ' + nested(500) + "}")
    assert t.count("SBox") == 500
    assert editor_lives(t, runs)


def nested(depth):
    inner = '{"SButton": {"Text": "Still here", "OnClick": "recorder.run(\'alive\')"}}'
    return '{"SBox": {"Content": ' * depth + inner + "}}" * depth


@pytest.mark.parametrize("opening", ["[", '{"a":', '{"SBox":{"Content":'])
def test_a_million_openings_are_refused(tool, log, opening):
    t = tool(text='{"Root":' + opening * 1_000_000)
    assert not t.is_open
    assert f"Deserialize File {t.path} failed, check: '\\' " in log.warnings("PythonKX")


def test_deepest_nesting_that_is_read_opens_and_closes(tool, runs):
    t = tool(text='{"InitPyCmd": "import recorder", "Root": ' + nested(2400) + "}")
    assert t.is_open
    t.close()
    assert not t.is_open


def test_folder_in_place_of_a_file_is_refused(log, tmp_path):
    assert not unreal.VelmoraData.launch_velmora_tool(str(tmp_path))
    assert log.warnings("PythonKX") == [f"File: {tmp_path} not exist. LaunchVemloraTool by: {tmp_path}"]


def test_path_longer_than_a_name_may_be_is_refused(log):
    assert not unreal.VelmoraData.launch_velmora_tool("/" + "x" * 2000 + ".json")
    assert len(log.warnings("PythonKX")) == 1
