"""Does each deed of deeds.py once from each event of a tool: run_deeds.py PROGRESS EVENT [quit]

PROGRESS is a file that names each deed before it is done, so that it tells of the one that ended the editor, and at the end what was
found. After each deed another tool must work as before. With `quit` the only deed is to end the editor.
"""

import pathlib
import sys
import warnings

import unreal

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).parent))

import deeds
from progress import Progress
from tools import FOLDER, describe, write_tool

Driver = unreal.EditorDriver
COMMAND = "import deeds; deeds.stage.fire('{}')"


def command(event):
    return COMMAND.format(event)


def click(tool):
    Driver.click(tool, "#Go")


def write_into(tool):
    Driver.click(tool, "#Field")
    Driver.type_text("x")


def commit(tool):
    write_into(tool)
    Driver.press_key("Enter")


def close(tool):
    unreal.VelmoraData.request_close(tool)


#: How a user brings each event about in a tool that is open.
EVENTS = {
    "InitPyCmd": lambda tool: None,
    "OnClick": click,
    "OnCheckStateChanged": lambda tool: Driver.click(tool, "#Check"),
    "OnTextChanged": write_into,
    "OnTextCommitted": commit,
    "OnTick": lambda tool: Driver.wait(),
    "OnClosePyCmd": close,
}


class Stage:
    """The tools, and the deed that the next event of its kind does."""

    def __init__(self, progress, event):
        self.progress = Progress(progress)
        self.event = event
        self.deed = None
        self.done = 0
        self.clicks = 0
        self.findings = []
        self.healthy = write_tool("Healthy", {"SButton": {"Aka": "Go", "Text": "Go", "OnClick": "import deeds; deeds.stage.count()"}})
        self.other = write_tool("Other", describe(command))
        self.new = write_tool("New", describe(command))

    def count(self):
        self.clicks += 1

    def fire(self, event):
        if event != self.event or not self.deed:
            return
        # An event may come again while the deed is done.
        deed, self.deed = self.deed, None
        self.done += 1
        deed(deeds.Scene(self.tool, self.other, self.new, FOLDER))

    def perform(self, number, deed):
        """Does the deed, then looks whether the editor is well."""
        self.progress.name(f"{deed.__name__} from {self.event}")
        self.tool = write_tool(f"Stage{number}", describe(command), InitPyCmd=command("InitPyCmd"), OnClosePyCmd=command("OnClosePyCmd"))
        unreal.VelmoraData.launch_velmora_tool(self.other)
        before = self.done
        if self.event == "InitPyCmd":
            self.deed = deed
        unreal.VelmoraData.launch_velmora_tool(self.tool)
        Driver.wait()
        if self.event != "InitPyCmd":
            self.deed = deed
            self.bring_about()
        Driver.wait(0.1)
        if self.done != before + 1:
            self.findings.append(f"{deed.__name__} from {self.event} was done {self.done - before} times")
        self.close_all()
        if deed is not deeds.quit_editor:
            self.look_after(deed)

    def bring_about(self):
        try:
            EVENTS[self.event](self.tool)
        except RuntimeError as error:
            # The deed may have taken the tool away under the mouse.
            print("driver:", error)

    def close_all(self):
        self.deed = None
        for tool in (self.tool, self.other, self.new):
            if Driver.count(tool, "SVelmoraWidget"):
                unreal.VelmoraData.request_close(tool)
        Driver.wait()

    def look_after(self, deed):
        unreal.VelmoraData.launch_velmora_tool(self.healthy)
        Driver.wait()
        before = self.clicks
        Driver.click(self.healthy, "#Go")
        if self.clicks != before + 1:
            self.findings.append(f"after {deed.__name__} from {self.event} a click came {self.clicks - before} times")
        unreal.VelmoraData.request_close(self.healthy)
        Driver.wait()


def main(progress, event, quits=""):
    # Commands of the tools reach it there.
    stage = deeds.stage = Stage(progress, event)
    warnings.simplefilter("ignore")
    for number, deed in enumerate([deeds.quit_editor] if quits else deeds.DEEDS):
        stage.perform(number, deed)
    stage.progress.finish(made=stage.done, findings=stage.findings)


main(*sys.argv[1:])
