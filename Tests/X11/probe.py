"""Runs inside the editor: probe.py TOOL STATE_FILE. Opens a tool, and writes after each change what it shows and where.

What a file STATE_FILE.py says is done once.
"""

import json
import os
import sys

import unreal

TOOL, STATE_FILE = sys.argv[1:]
TAB = "Regex Tester"


class Probe:
    def __init__(self):
        self.written = None
        self.handle = unreal.register_slate_post_tick_callback(self)

    def __call__(self, delta_seconds):
        self.do_what_is_asked()
        if unreal.EditorDriver.count(TAB, "SVelmoraWidget") == 0:
            return
        data = unreal.PythonBPLib.get_velmora_data(TOOL)
        names = ("Pattern", "Sample", "Replacement", "Result", "Status")
        state = {
            "texts": {name: data.get_text(name) for name in names},
            "ignore_case": data.get_is_checked("IgnoreCase"),
            "tree": unreal.EditorDriver.dump_tree(TAB),
        }
        if state != self.written:
            self.written = state
            with open(STATE_FILE + ".new", "w", encoding="utf-8") as file:
                json.dump(state, file)
            os.replace(STATE_FILE + ".new", STATE_FILE)

    def do_what_is_asked(self):
        task = STATE_FILE + ".py"
        if os.path.exists(task):
            with open(task, encoding="utf-8") as file:
                text = file.read()
            os.remove(task)
            exec(text, {"unreal": unreal, "stop_watching": lambda: unreal.unregister_slate_post_tick_callback(self.handle)})


unreal.EditorPythonScripting.set_keep_python_script_alive(True)
unreal.VelmoraData.request_close("VelmoraGallery/VelmoraGallery.json")
unreal.VelmoraData.launch_velmora_tool(TOOL)
Probe()
