"""What a command of a tool may do that nobody expects: each deed of DEEDS, from within any event.

A deed gets the Scene that it is done in. What it raises goes to the log, as from any command.
"""

import builtins
import gc
import os
import sys
import threading
import warnings

import unreal
from tools import AKAS

Driver = unreal.EditorDriver


class Scene:
    """The tool whose event runs, and another that is open."""

    def __init__(self, tool, other, new, folder):
        self.tool = tool
        self.other = other
        self.new = new
        self.folder = folder

    @property
    def data(self):
        return unreal.PythonBPLib.get_velmora_data(self.tool)


def close_own(scene):
    unreal.VelmoraData.request_close(scene.tool)


def close_other(scene):
    unreal.VelmoraData.request_close(scene.other)


def close_all_twice(scene):
    for path in (scene.tool, scene.other) * 2:
        unreal.VelmoraData.request_close(path)


def launch_own(scene):
    unreal.VelmoraData.launch_velmora_tool(scene.tool)


def launch_another(scene):
    unreal.VelmoraData.launch_velmora_tool(scene.new)


def close_and_launch_own(scene):
    close_own(scene)
    launch_own(scene)


def close_launch_and_close_own(scene):
    close_and_launch_own(scene)
    close_own(scene)


def launch_a_broken_tool(scene):
    broken = scene.folder / "Broken.json"
    broken.write_text('{ "Root": { "SButton": [')
    unreal.VelmoraData.launch_velmora_tool(str(broken))


def break_own_description_and_relaunch(scene):
    file = open(scene.tool, "r+", encoding="utf-8")
    text = file.read()
    with file:
        file.seek(0)
        file.truncate()
        file.write(text[: len(text) // 2])
        file.flush()
        close_and_launch_own(scene)
        file.seek(0)
        file.write(text)


def set_all_texts(scene):
    for aka in AKAS:
        scene.data.set_text(aka, "text\n" * 100)
        scene.data.set_text(aka, "")


def set_own_text_again_and_again(scene):
    for number in range(200):
        scene.data.set_text("Field", str(number))


def hide_all(scene):
    for aka in AKAS:
        scene.data.set_visibility(aka, "Collapsed")


def hide_and_show_the_panel(scene):
    for visibility in ("Hidden", "Collapsed", "Visible", "HitTestInvisible", "SelfHitTestInvisible", "Visible"):
        scene.data.set_visibility("Panel", visibility)


def lock_and_tick_all(scene):
    for aka in AKAS:
        scene.data.set_text_read_only(aka, True)
        scene.data.set_is_checked(aka, True)
        scene.data.set_tool_tip_text(aka, "tip")
        scene.data.set_color_and_opacity(aka, unreal.LinearColor(float("nan"), 1e30, -1.0, 0.0))
        scene.data.scroll_to(aka, 2**31 - 1, -(2**31))
        scene.data.set_scroll_box_offset(aka, float("nan"))


def raise_an_error(scene):
    raise RuntimeError("a deed")


def exit_python(scene):
    sys.exit(5)


def raise_keyboard_interrupt(scene):
    raise KeyboardInterrupt


def raise_what_cannot_be_told(scene):
    class Silent(Exception):
        def __str__(self):
            raise self

    raise Silent


def raise_a_circle_of_causes(scene):
    first, second = ValueError(1), ValueError(2)
    first.__context__, second.__context__ = second, first
    raise first


def ask_for_collection(scene):
    for _ in range(100):
        unreal.VelmoraData()
    unreal.SystemLibrary.collect_garbage()


def collect_python(scene):
    circle = [unreal.VelmoraData(), unreal.Array(unreal.Object)]
    circle.append(circle)
    del circle
    gc.collect()


def call_from_a_thread(scene):
    def call():
        for function in (Driver.wait, lambda: scene.data.get_text("Title"), unreal.Vector, unreal.SystemLibrary.collect_garbage):
            try:
                function()
            except RuntimeError:
                pass

    threads = [threading.Thread(target=call) for _ in range(4)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()


def leave_a_thread_behind(scene):
    threading.Thread(target=lambda data=scene.data: (threading.Event().wait(0.01), str(data)), daemon=True).start()


def take_a_snapshot(scene):
    unreal.VelmoraData.snapshot_velmora_window(scene.tool, image_file_path=str(scene.folder / "deed.png"))


def take_snapshots_of_odd_sizes(scene):
    for size in ((1, 1), (-5, 10), (0.1, 0.1), (float("nan"), 10), (300, 200)):
        unreal.VelmoraData.snapshot_velmora_window(scene.tool, unreal.Vector2D(*size), str(scene.folder / "deed.png"))


def let_time_pass(scene):
    Driver.wait(1)


def drive_own_tool(scene):
    Driver.click(scene.tool, "#Go")


def type_into_own_tool(scene):
    Driver.type_text("deed\n")


def recurse(scene):
    recurse(scene)


def recurse_through_the_editor(scene, depth=200):
    if depth:
        unreal.register = lambda: recurse_through_the_editor(scene, depth - 1)
        unreal.PythonBPLib.exec_python_command("import unreal; unreal.register()")


def delete_names_of_unreal(scene):
    kept = dict(vars(unreal))
    for name in list(kept):
        if not name.startswith("__"):
            delattr(unreal, name)
    try:
        kept["VelmoraData"].request_close(scene.other)
    finally:
        vars(unreal).update(kept)


def change_types(scene):
    for kind in (unreal.VelmoraData, unreal.Vector, unreal.Name, unreal._ObjectBase):
        for name in ("get_text", "__init__", "__eq__", "__class__"):
            try:
                setattr(kind, name, None)
            except TypeError:
                pass


def rename_own_data(scene):
    scene.data.rename("Renamed")
    scene.data.rename("")
    scene.data.rename(outer=scene.data)


def replace_own_data(scene):
    data = scene.data
    unreal.new_object(type(data), data.get_outer(), data.get_name())


def purge_own_data(scene):
    unreal.purge_object_references(scene.data)
    ask_for_collection(scene)


def run_a_huge_text(scene):
    unreal.PythonBPLib.exec_python_command("x = 1\n" * 50000 + "'" + "a" * 1000000)
    exec("(" * 5000)


def print_a_flood(scene):
    for _ in range(500):
        print("flood " * 20)
    print("a" * 200000)
    sys.stderr.write("\ud800\0\x1b[2J" * 100)


def lose_standard_streams(scene):
    kept = sys.stdout, sys.stderr
    sys.stdout = sys.stderr = None
    try:
        print("into nothing")
        unreal.log("still here")
        raise_an_error_in_a_command()
    finally:
        sys.stdout, sys.stderr = kept


def raise_an_error_in_a_command():
    unreal.PythonBPLib.exec_python_command("1 / 0")


def import_what_is_not_there(scene):
    import no_such_module_as_this  # noqa: F401


def lose_modules_and_builtins(scene):
    modules = dict(sys.modules)
    names = dict(vars(builtins))
    try:
        for module in ("traceback", "linecache", "warnings", "unreal", "_unreal_bootstrap", "builtins"):
            sys.modules.pop(module, None)
        for name in ("print", "isinstance", "str", "__import__"):
            delattr(builtins, name)
        raise_an_error_in_a_command()
    finally:
        vars(builtins).update(names)
        sys.modules.update(modules)


def turn_warnings_into_errors(scene):
    with warnings.catch_warnings():
        warnings.simplefilter("error")
        warnings.warn("deed", stacklevel=1)


def register_ticks_that_end_each_other(scene):
    handles = []

    def tick(delta):
        while handles:
            unreal.unregister_slate_post_tick_callback(handles.pop())
            unreal.unregister_slate_pre_tick_callback(2**64)

    handles.extend(unreal.register_slate_post_tick_callback(tick) for _ in range(5))
    unreal.unregister_slate_post_tick_callback(-1)


def register_a_tick_that_closes(scene):
    def tick(delta):
        unreal.unregister_slate_pre_tick_callback(handle)
        close_own(scene)

    handle = unreal.register_slate_pre_tick_callback(tick)


def nest_slow_tasks(scene):
    with unreal.ScopedSlowTask(3, "outer") as outer, unreal.ScopedSlowTask(float("nan"), "inner") as inner:
        for task in (outer, inner, outer):
            task.make_dialog(True)
            task.enter_progress_frame(1e300)
    outer.__exit__(None, None, None)
    outer.enter_progress_frame()


def leave_objects_that_act_at_their_end(scene):
    class Last:
        def __del__(self):
            close_own(scene)
            raise ValueError

    Last()
    circle = Last()
    circle.self = circle


def change_the_working_folder(scene):
    os.chdir(scene.folder)
    unreal.VelmoraData.launch_velmora_tool("Nowhere.json")


def trace_everything(scene):
    def trace(frame, event, argument):
        if event == "return":
            raise ValueError("from a trace")
        return trace

    sys.settrace(trace)
    try:
        set_all_texts(scene)
    finally:
        sys.settrace(None)


def keep_python_from_recursing(scene):
    limit = sys.getrecursionlimit()
    try:
        sys.setrecursionlimit(60)
        raise_an_error_in_a_command()
        set_all_texts(scene)
    finally:
        sys.setrecursionlimit(limit)


def quit_editor(scene):
    unreal.SystemLibrary.quit_editor()


DEEDS = [
    close_own, close_other, close_all_twice, launch_own, launch_another, close_and_launch_own, close_launch_and_close_own,
    launch_a_broken_tool, break_own_description_and_relaunch, set_all_texts, set_own_text_again_and_again, hide_all,
    hide_and_show_the_panel, lock_and_tick_all, raise_an_error, exit_python, raise_keyboard_interrupt, raise_what_cannot_be_told,
    raise_a_circle_of_causes, ask_for_collection, collect_python, call_from_a_thread, leave_a_thread_behind, take_a_snapshot,
    take_snapshots_of_odd_sizes, let_time_pass, drive_own_tool, type_into_own_tool, recurse, recurse_through_the_editor,
    delete_names_of_unreal, change_types, rename_own_data, replace_own_data, purge_own_data, run_a_huge_text, print_a_flood,
    lose_standard_streams, import_what_is_not_there, lose_modules_and_builtins, turn_warnings_into_errors,
    register_ticks_that_end_each_other, register_a_tick_that_closes, nest_slow_tasks, leave_objects_that_act_at_their_end,
    change_the_working_folder, trace_everything, keep_python_from_recursing,
]  # fmt: skip
