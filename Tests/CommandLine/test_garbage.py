"""When the editor collects objects that nothing refers to any more."""

import re

#: Runs steps of a test, each so many seconds of the editor's time after the last, outside of any script; then ends the editor.
STEPS = """
import unreal
unreal.EditorPythonScripting.set_keep_python_script_alive(True)

class Steps:
    def __init__(self, *steps):
        self.steps = list(steps)
        self.time = 0.0
        self.handle = unreal.register_slate_post_tick_callback(self.tick)

    def tick(self, delta):
        self.time += delta
        if self.time < self.steps[0][0]:
            return
        self.time = 0.0
        step = self.steps.pop(0)[1]
        if not self.steps:
            unreal.unregister_slate_post_tick_callback(self.handle)
        step()

def drop(count):
    for _ in range(count):
        unreal.VelmoraData()

def show(what):
    print(what, sum(1 for data in unreal.ObjectIterator(unreal.VelmoraData) if data.get_name().startswith("VelmoraData_")))

def quit():
    unreal.SystemLibrary.quit_editor()
"""

VERBOSE = "-ExecCmds=Log LogGarbage Verbose"


def counts(text):
    """What the script showed, as numbers by name."""
    return {name: int(number) for name, number in re.findall(r"^(\w+) (\d+)$", text, re.MULTILINE)}


def collections(shell):
    return re.findall(r"LogGarbage: Verbose: Collected (\d+) objects", shell.log_text())


def start(shell, script):
    return shell.start("Trial/Trial.uproject", VERBOSE, f"-ExecutePythonScript={shell.script(STEPS + script)}")


def test_an_editor_at_work_collects_every_minute(shell):
    run = start(
        shell,
        "Steps((61, lambda: drop(1000)), (1, lambda: show('soon')), (50, lambda: show('before')), (10, lambda: show('after')), "
        "(60, quit))",
    )
    assert counts(run.stdout) == {"soon": 1000, "before": 1000, "after": 0}
    assert len(collections(shell)) == 3


def test_a_closed_tab_lets_the_editor_collect(shell):
    tool = shell.folder / "Tool.json"
    tool.write_text('{ "TabLabel": "Tool", "InitPyCmd": "", "Root": { "STextBlock": { "Text": "x" } } }')
    run = start(
        shell,
        f"unreal.VelmoraData.launch_velmora_tool({str(tool)!r})\n"
        "drop(10)\n"
        f"close = lambda: unreal.VelmoraData.request_close({str(tool)!r})\n"
        "Steps((1, lambda: show('open')), (0, close), (0.1, lambda: show('closed')), (0, quit))",
    )
    assert counts(run.stdout) == {"open": 10, "closed": 0}
    assert len(collections(shell)) == 1


def test_a_script_can_ask_for_a_collection_after_the_frame(shell):
    run = start(
        shell,
        "def collect():\n"
        "    drop(10)\n"
        "    unreal.SystemLibrary.collect_garbage()\n"
        "    show('within')\n"
        "Steps((0, collect), (0, lambda: show('after')), (0, quit))",
    )
    assert counts(run.stdout) == {"within": 10, "after": 0}


def test_a_script_that_drives_the_editor_is_not_collected_under(shell):
    run = start(
        shell,
        "unreal.VelmoraData(name='Held')\n"
        "unreal.SystemLibrary.collect_garbage()\n"
        "unreal.EditorDriver.wait(130)\n"
        "drop(10)\n"
        "unreal.EditorDriver.wait(130)\n"
        "show('driven')\n"
        "Steps((0, lambda: show('frame')), (0, lambda: show('after')), (0, quit))",
    )
    assert counts(run.stdout) == {"driven": 10, "frame": 10, "after": 0}


def test_an_editor_in_which_nothing_happens_collects_once_and_draws_nothing(shell):
    tool = shell.folder / "Tool.json"
    frames = "import unreal; print('frames', unreal.EditorDriver.count_frames())"
    tool.write_text('{ "TabLabel": "Tool", "InitPyCmd": "", "OnClosePyCmd": "%s", "Root": { "STextBlock": { "Text": "x" } } }' % frames)
    # Off-screen time runs fast: in a second many of the editor's minutes go by.
    run = start(
        shell,
        f"unreal.VelmoraData.launch_velmora_tool({str(tool)!r})\n"
        "def idle():\n"
        "    import subprocess\n"
        "    drop(10)\n"
        "    print('start', unreal.EditorDriver.count_frames())\n"
        "    subprocess.Popen(['sh', '-c', 'sleep 1; kill -TERM $PPID'])\n"
        "Steps((1, idle))",
    )
    seen = counts(run.stdout)
    assert seen["frames"] - seen["start"] <= 3
    assert len(collections(shell)) == 1
