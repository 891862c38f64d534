"""Tools that tests make, and the shorthand in which they describe them."""

import json
import pathlib
import sys

import unreal

Driver = unreal.EditorDriver

#: The folder of the project's tools; the project's settings have it on the search path.
PYTHON_FOLDER = next(pathlib.Path(folder) for folder in sys.path if folder.endswith("/KX/Kestrix/Python"))


def vertical(*contents):
    """A column of widgets, each as high as it wants to be."""
    return {"SVerticalBox": {"Slots": [{"AutoHeight": True, **content} for content in contents]}}


def label(text, **keys):
    return {"STextBlock": {"Text": text, **keys}}


def button(text, command="", **keys):
    return {"SButton": {"Text": text, "OnClick": command, **keys}}


def check_box(text, command="", **keys):
    return {"SCheckBox": {"OnCheckStateChanged": command, "Content": label(text), **keys}}


def field(aka, **keys):
    return {"SEditableTextBox": {"Aka": aka, **keys}}


def long_field(aka, **keys):
    return {"SBox": {"HeightOverride": 100, "Content": {"SMultiLineEditableTextBox": {"Aka": aka, **keys}}}}


def is_open(path):
    return Driver.count(str(path), "SVelmoraWidget") == 1


def close(path):
    if is_open(path):
        unreal.VelmoraData.request_close(str(path))
        Driver.wait()


class Tool:
    """A tool of one test. Widgets are named as the driver names them: by type or "#aka", text, index."""

    def __init__(self, folder, title, root, text, files, keys, name="Tool.json"):
        self.path = folder / name
        self.title = title
        description = {"TabLabel": title, "InitPyCmd": "import recorder", **keys}
        if root is not None:
            description["Root"] = root
        folder.mkdir(parents=True, exist_ok=True)
        for name, content in files.items():
            (folder / name).write_text(content, encoding="utf-8")
        content = json.dumps(description, indent="\t") if text is None else text
        self.path.write_bytes(content if isinstance(content, bytes) else content.encode("utf-8"))

    def launch(self):
        result = unreal.VelmoraData.launch_velmora_tool(str(self.path))
        Driver.wait()
        return result

    def close(self):
        close(self.path)

    @property
    def tab(self):
        return str(self.path)

    @property
    def data(self):
        return unreal.PythonBPLib.get_velmora_data(str(self.path))

    @property
    def is_open(self):
        return is_open(self.path)

    def click(self, *widget):
        return Driver.click(self.tab, *widget)

    def hover(self, *widget):
        return Driver.hover(self.tab, *widget)

    def type_into(self, widget, text):
        """Clicks a field and types into it."""
        self.click(widget)
        Driver.type_text(text)

    def text(self, *widget):
        """What a widget shows."""
        return Driver.get_text(self.tab, *widget)

    def is_visible(self, *widget):
        return Driver.is_visible(self.tab, *widget)

    def count(self, *widget):
        return Driver.count(self.tab, *widget)

    def place(self, name):
        """x, y, width and height of a widget in its window, in pixels, by the beginning of its line in the tree."""
        for line in Driver.dump_tree(self.tab).splitlines():
            if line.strip().startswith(name + " ") and not line.endswith("(not shown)"):
                position, size = line.split()[-2:]
                return [int(number) for number in position.split(",") + size.split("x")]
        raise LookupError(f"{name} is not shown in:\n{Driver.dump_tree(self.tab)}")
