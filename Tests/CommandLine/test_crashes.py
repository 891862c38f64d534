"""What an editor that dies by a signal leaves: a line and a call stack, in its log and where it was started."""

import re
import signal

import pytest

FATAL_ERROR = "LogOutputDevice: Error: === Critical error: ==="


def frames(text):
    return re.findall(r"\[Callstack\] 0x[0-9a-f]{16} (\S+)", text)


@pytest.mark.parametrize("number", [signal.SIGSEGV, signal.SIGBUS, signal.SIGFPE, signal.SIGILL, signal.SIGABRT])
def test_a_deadly_signal_leaves_a_line_and_a_call_stack(shell, number):
    script = shell.script(f"import os; print('the last line'); os.kill(os.getpid(), {number:d})")
    run = shell.start("Trial/Trial.uproject", f"-ExecutePythonScript={script}")
    assert run.returncode == -number
    for text in (run.stderr, shell.log_text()):
        assert f"Signal {number:d} ({number.name}, " in text
        assert any(frame.startswith("libLaunch.so!") for frame in frames(text))
    log = shell.log_text()
    assert log.index("the last line") < log.index(FATAL_ERROR) < log.index("[Callstack]")


def test_a_read_of_memory_that_is_not_there_tells_its_address(shell):
    run = shell.start("Trial/Trial.uproject", f"-ExecutePythonScript={shell.script('import ctypes; ctypes.string_at(0x123)')}")
    assert run.returncode == -signal.SIGSEGV
    assert "Signal 11 (SIGSEGV, memory that may not be used) at 0x0000000000000123\n" in run.stderr
    assert "libc.so.6!" in frames(run.stderr)[0]


def test_a_full_stack_leaves_a_call_stack(shell):
    script = shell.script("import sys\nsys.setrecursionlimit(10**9)\ndef deeper(_): return list(map(deeper, [0]))\ndeeper(0)")
    run = shell.start("Trial/Trial.uproject", f"-ExecutePythonScript={script}")
    assert run.returncode == -signal.SIGSEGV
    assert FATAL_ERROR in shell.log_text()
    assert len(frames(run.stderr)) > 50


def test_a_signal_on_another_thread_leaves_a_call_stack(shell):
    script = shell.script(
        "import ctypes, threading\n"
        "thread = threading.Thread(target=lambda: ctypes.string_at(0))\n"
        "thread.start()\n"
        "thread.join()\n"
    )
    run = shell.start("Trial/Trial.uproject", f"-ExecutePythonScript={script}")
    assert run.returncode == -signal.SIGSEGV
    assert "libc.so.6!" in frames(shell.log_text())[0]


def test_a_signal_from_outside_tells_who_sent_it(shell):
    script = shell.script("import os, subprocess\nsubprocess.run(['sh', '-c', f'echo $$; kill -SEGV {os.getpid()}; sleep 5'])")
    run = shell.start("Trial/Trial.uproject", f"-ExecutePythonScript={script}")
    assert run.returncode == -signal.SIGSEGV
    assert f"sent by process {run.stdout.split()[0]}\n" in run.stderr
