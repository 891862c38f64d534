"""Runs inside an editor: opens a form and measures the process around it.

usage: measure_process.py WORK RESULT.json [FORM.json]

  nothing   an editor without any tool
  open      up to the first painted frame of the form
  idle      five seconds in which nobody touches the open form
  caret     the same while the caret blinks in a field of the form
"""

import json
import pathlib
import sys
import time

import unreal

IDLE_SECONDS = 5.0
SETTLING_SECONDS = 2.0


def read_memory(key):
    """A line such as "Rss:  1234 kB", in bytes."""
    for line in pathlib.Path("/proc/self/smaps_rollup").read_text().splitlines():
        if line.startswith(key + ":"):
            return int(line.split()[1]) * 1024
    raise RuntimeError(f"smaps_rollup has no {key}")


def read_use():
    return {
        "monotonic": time.clock_gettime(time.CLOCK_MONOTONIC),
        "cpu": time.process_time(),
        "rss": read_memory("Rss"),
        "pss": read_memory("Pss"),
    }


def open_form(path):
    if not unreal.VelmoraData.launch_velmora_tool(path):
        raise RuntimeError(f"{path} did not open")
    unreal.EditorDriver.wait(0)


def measure_wait(seconds):
    frames = unreal.EditorDriver.count_frames()
    cpu = time.process_time()
    unreal.EditorDriver.wait(seconds)
    return time.process_time() - cpu, unreal.EditorDriver.count_frames() - frames


def stay_idle():
    """What passes by itself: a wait begins with a frame of its own, which a wait of no length tells apart."""
    unreal.EditorDriver.wait(SETTLING_SECONDS)
    own_cpu, own_frames = measure_wait(0.0)
    cpu, frames = measure_wait(IDLE_SECONDS)
    return {"cpu": cpu - own_cpu, "frames": frames - own_frames}


def main(work, result, form=None):
    if form:
        open_form(form)
    if work == "caret":
        unreal.EditorDriver.click(form, "SEditableTextBox")
    measured = stay_idle() if work in ("idle", "caret") else read_use()
    pathlib.Path(result).write_text(json.dumps(measured), encoding="utf-8")


main(*sys.argv[1:])
