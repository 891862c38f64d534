"""Whole processes that are started, measure themselves and end."""

import contextlib
import json
import os
import pathlib
import shutil
import subprocess
import tempfile
import time

LONGEST_RUN = 300
MEASURE_PROCESS = pathlib.Path(__file__).resolve().parent.parent / "Processes" / "measure_process.py"


class ProcessFailed(Exception):
    """What was started did not end well."""


def run(command, **keys):
    """Runs a program and returns what it printed."""
    process = subprocess.run(
        [str(word) for word in command],
        stdin=subprocess.DEVNULL,
        stdout=subprocess.PIPE,
        stderr=subprocess.PIPE,
        timeout=LONGEST_RUN,
        check=False,
        **keys,
    )
    if process.returncode != 0:
        said = (process.stdout + process.stderr).decode("utf-8", "replace").strip()
        raise ProcessFailed(f"{pathlib.Path(command[0]).name} ended with status {process.returncode}: {said[-2000:]}")
    return process.stdout.decode("utf-8", "replace")


def run_benchmarks(program, *arguments, shortest=0.1):
    """CPU seconds of each benchmark of a Google Benchmark program."""
    with tempfile.NamedTemporaryFile(suffix=".json") as result:
        run([program, *arguments, f"--benchmark_min_time={shortest}", f"--benchmark_out={result.name}"])
        report = json.load(result)
    seconds = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1.0}
    failed = [entry for entry in report["benchmarks"] if entry.get("error_occurred")]
    if failed:
        raise ProcessFailed(f"{failed[0]['name']}: {failed[0]['error_message']}")
    return {
        entry["name"].removesuffix("/process_time"): entry["cpu_time"] * seconds[entry["time_unit"]]
        for entry in report["benchmarks"]
    }


class Editor:
    """The editor with a project of its own."""

    def __init__(self, program, project):
        self.program = program
        self.project = project

    def measure(self, work, form=None, display=None):
        """What measure_process.py finds, and how long the start took. Off-screen unless there is a display."""
        environment = {**os.environ, "DISPLAY": display} if display else None
        with tempfile.TemporaryDirectory() as folder:
            result = pathlib.Path(folder) / "result.json"
            words = [MEASURE_PROCESS, work, result] + ([form] if form else [])
            script = " ".join(str(word) for word in words)
            command = [self.program, self.project, "-unattended", f"-ExecutePythonScript={script}"]
            if not display:
                command.append("-RenderOffScreen")
            started = time.clock_gettime(time.CLOCK_MONOTONIC)
            run(command, env=environment)
            measured = json.loads(result.read_text(encoding="utf-8"))
        if "monotonic" in measured:
            measured["elapsed"] = measured.pop("monotonic") - started
        return measured


def open_with_qt(program, form):
    started = time.clock_gettime(time.CLOCK_MONOTONIC)
    measured = json.loads(run([program, "--open", form]))
    measured["elapsed"] = measured.pop("monotonic") - started
    return measured


@contextlib.contextmanager
def virtual_display():
    """The name of a display without a screen; None where Xvfb is not installed."""
    if not shutil.which("Xvfb"):
        yield None
        return
    reading, writing = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(writing), "-screen", "0", "1920x1200x24", "-nolisten", "tcp"],
        pass_fds=[writing],
        stdin=subprocess.DEVNULL,
        stdout=subprocess.DEVNULL,
        stderr=subprocess.DEVNULL,
    )
    os.close(writing)
    try:
        with os.fdopen(reading) as numbers:
            number = numbers.readline().strip()
        if not number:
            raise ProcessFailed("Xvfb did not start")
        yield f":{number}"
    finally:
        server.terminate()
        server.wait()
