"""The forms that are measured: rows of a label, a line edit, a check box and a button in a scrolled column.

The same form is written twice, as a description for the editor and as a .ui file for Qt.
"""

import json
import re
from xml.etree import ElementTree

SIZES = (100, 1000, 10000)
LEAVES_OF_ROW = 4


def write_forms(folder):
    """Writes Form<size>.json and Form<size>.ui for each size, and the empty form as Form0.*."""
    folder.mkdir(parents=True, exist_ok=True)
    for size in (0, *SIZES):
        rows = size // LEAVES_OF_ROW
        (folder / f"Form{size}.json").write_text(write_as_people_do(describe(rows)), encoding="utf-8")
        (folder / f"Form{size}.ui").write_text(describe_for_qt(rows), encoding="utf-8")


def write_as_people_do(description):
    """Indented, but the innermost values stand on one line."""
    return re.sub(r"[\[{][^\[\]{}]*[\]}]", lambda match: re.sub(r"\s*\n\s*", " ", match[0]), json.dumps(description, indent="\t"))


def describe(rows):
    return {
        "TabLabel": "Form",
        "InitPyCmd": "",
        "Root": {"SScrollBox": {"Slots": [{"Padding": [8, 4], **describe_row(row)} for row in range(rows)]}},
    }


def describe_row(row):
    def slot(**content):
        return {"AutoWidth": True, "VAlign": "Center", "Padding": [0, 0, 8, 0], **content}

    leaves = [
        slot(STextBlock={"Text": f"Setting {row}"}),
        slot(SEditableTextBox={"Text": f"value {row}"}),
        slot(SCheckBox={"Content": {"STextBlock": {"Text": f"Use it {row}"}}}),
        slot(SButton={"Text": f"Apply {row}", "ContentPadding": [20, 2], "OnClick": f"apply({row})"}),
    ]
    if row == 0:
        # The names of the others would be logged at each further opening, which is not what a user's opening does.
        leaves[0]["STextBlock"]["Aka"] = "Label0"
    del leaves[1]["AutoWidth"]
    leaves[1]["FillWidth"] = 1
    return {"SHorizontalBox": {"Slots": leaves}}


def describe_for_qt(rows):
    ui = ElementTree.Element("ui", version="4.0")
    window = widget(ui, "QWidget", "Form")
    area = widget(item(layout(window, "QVBoxLayout", "window")), "QScrollArea", "Area")
    value(area, "widgetResizable", "bool", "true")
    column = layout(widget(area, "QWidget", "Page"), "QVBoxLayout", "rows")
    for row in range(rows):
        line = layout(item(column), "QHBoxLayout", f"row_{row}")
        line.set("stretch", "0,1,0,0")
        for kind, name, text in (
            ("QLabel", "label", "Setting"),
            ("QLineEdit", "edit", "value"),
            ("QCheckBox", "check", "Use it"),
            ("QPushButton", "button", "Apply"),
        ):
            value(widget(item(line), kind, f"{name}_{row}"), "text", "string", f"{text} {row}")
    ElementTree.indent(ui)
    return '<?xml version="1.0" encoding="UTF-8"?>\n' + ElementTree.tostring(ui, encoding="unicode") + "\n"


def widget(parent, kind, name):
    return ElementTree.SubElement(parent, "widget", {"class": kind, "name": name})


def layout(parent, kind, name):
    return ElementTree.SubElement(parent, "layout", {"class": kind, "name": name})


def item(parent):
    return ElementTree.SubElement(parent, "item")


def value(parent, name, kind, text):
    ElementTree.SubElement(ElementTree.SubElement(parent, "property", name=name), kind).text = text
