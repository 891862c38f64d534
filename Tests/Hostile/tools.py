"""The tools that hostile scripts find open."""

import json
import pathlib

FOLDER = pathlib.Path.cwd() / "Tools"

AKAS = ("Title", "Go", "Check", "Field", "Notes", "Panel", "Scroll")


def describe(command):
    """A tool with each event; command(event) is what the event runs."""
    check = {"Aka": "Check", "OnCheckStateChanged": command("OnCheckStateChanged"), "Content": {"STextBlock": {"Text": "Check"}}}
    slots = [
        {"STextBlock": {"Aka": "Title", "Text": "Title", "OnTick": command("OnTick")}},
        {"SButton": {"Aka": "Go", "Text": "Go", "OnClick": command("OnClick")}},
        {"SCheckBox": check},
        {"SEditableTextBox": {"Aka": "Field", "OnTextChanged": command("OnTextChanged"), "OnTextCommitted": command("OnTextCommitted")}},
        {"SMultiLineEditableTextBox": {"Aka": "Notes", "Text": "notes"}},
        {"SBox": {"HeightOverride": 40, "Content": {"SScrollBox": {"Aka": "Scroll", "Slots": [{"STextBlock": {"Text": "long\n" * 20}}]}}}},
    ]
    return {"SVerticalBox": {"Aka": "Panel", "Slots": [{"AutoHeight": True, **slot} for slot in slots]}}


def write_tool(name, root, **keys):
    """Writes a description; gives its path."""
    file = FOLDER / f"{name}.json"
    file.parent.mkdir(exist_ok=True)
    file.write_text(json.dumps({"TabLabel": name, "InitPyCmd": "", "Root": root, **keys}), encoding="utf-8")
    return str(file)
