"""The editor as a shell starts it: its status, its log and what it says."""

import signal

import pytest

LAUNCH = "import unreal; unreal.VelmoraData.launch_velmora_tool({tool!r})"


def test_a_script_that_ends_well_gives_status_0(shell):
    run = shell.start("Trial/Trial.uproject", f"-ExecutePythonScript={shell.script('print(6 * 7)')}")
    assert run.returncode == 0
    assert "LogPython: 42" in shell.log_text()


def test_a_script_that_raises_gives_status_1_and_its_traceback(shell):
    run = shell.start("Trial/Trial.uproject", f"-ExecutePythonScript={shell.script('1 / 0')}")
    assert run.returncode == 1
    assert "LogPython: Error: ZeroDivisionError: division by zero" in shell.log_text()


@pytest.mark.parametrize(
    "code, status, line",
    [
        ("sys.exit(3)", 3, "LogPython: Error: The script ended with exit status 3"),
        ("sys.exit()", 0, ""),
        ("sys.exit(0)", 0, ""),
        ("sys.exit('no such tool')", 1, "LogPython: Error: no such tool"),
        ("raise SystemExit(True)", 1, ""),
        ("sys.exit(-1)", 255, ""),
    ],
)
def test_a_script_that_exits_gives_its_status(shell, code, status, line):
    run = shell.start("Trial/Trial.uproject", f"-ExecutePythonScript={shell.script('import sys; ' + code)}")
    assert run.returncode == status
    assert line in shell.log_text()
    assert "LogLaunch: The editor has ended." in shell.log_text()


def test_a_thread_of_a_script_has_its_turn_while_nothing_happens(shell):
    script = shell.script(
        "import os, signal, threading, time, unreal\n"
        "unreal.EditorPythonScripting.set_keep_python_script_alive(True)\n"
        "def end():\n"
        "    for _ in range(20):\n"
        "        time.sleep(0.01)\n"
        "    os.kill(os.getpid(), signal.SIGTERM)\n"
        "threading.Thread(target=end, daemon=True).start()\n"
    )
    run = shell.start("Trial/Trial.uproject", f"-ExecutePythonScript={script}")
    assert run.returncode == 128 + signal.SIGTERM


def test_an_exit_in_a_callback_or_a_literal_command_ends_nothing(shell):
    script = shell.script(
        "import os, signal, sys, unreal\n"
        "unreal.EditorPythonScripting.set_keep_python_script_alive(True)\n"
        "calls = []\n"
        "def on_tick(seconds):\n"
        "    calls.append(seconds)\n"
        "    if len(calls) == 3:\n"
        "        print('still there')\n"
        "        os.kill(os.getpid(), signal.SIGTERM)\n"
        "    sys.exit(4)\n"
        "unreal.register_slate_post_tick_callback(on_tick)\n"
        "unreal.PythonScriptLibrary.execute_python_command('import sys; sys.exit(5)')\n"
    )
    run = shell.start("Trial/Trial.uproject", f"-ExecutePythonScript={script}")
    assert run.returncode == 128 + signal.SIGTERM
    assert "LogPython: still there" in shell.log_text()
    assert "LogPython: Error: The script ended with exit status 5" in shell.log_text()


def test_shutdown_callbacks_run_while_unreal_still_works(shell):
    script = shell.script(
        "import unreal\n"
        "def bad(): raise ValueError('in the way')\n"
        "def last(): print('ended with', unreal.Vector(1, 2, 3).length_squared(), unreal.Object.static_class().get_name())\n"
        "never = unreal.register_python_shutdown_callback(lambda: print('never'))\n"
        "unreal.register_python_shutdown_callback(bad)\n"
        "unreal.register_python_shutdown_callback(last)\n"
        "unreal.unregister_python_shutdown_callback(never)\n"
    )
    run = shell.start("Trial/Trial.uproject", f"-ExecutePythonScript={script}")
    assert run.returncode == 0
    log = shell.log_text()
    assert "LogPython: ended with 14.0 Object" in log
    assert "LogPython: Error: ValueError: in the way" in log
    assert "LogPython: Error: While handling a Python shutdown callback" in log
    assert "never" not in log


def test_a_script_gets_its_arguments(shell):
    script = shell.script("import sys; print('|'.join(sys.argv[1:]))")
    shell.start("Trial/Trial.uproject", f"-ExecutePythonScript={script} one two")
    assert "LogPython: one|two" in shell.log_text()


def test_console_commands_run_and_unknown_ones_are_named(shell):
    shell.start(
        "Trial/Trial.uproject",
        "-ExecCmds=py print('from the console'); Kestrix.OverrideEnabled 0; no such thing",
        f"-ExecutePythonScript={shell.script('pass')}",
    )
    assert "LogPython: from the console" in shell.log_text()
    assert "LogLaunch: Warning: Command not recognized: no such thing" in shell.log_text()
    assert "Command not recognized: Kestrix" not in shell.log_text()


def test_a_project_that_is_not_there_gives_status_2_and_is_named(shell):
    run = shell.start("Trial/Nothing.uproject")
    assert run.returncode == 2
    assert "There is no project 'Trial/Nothing.uproject'." in run.stderr


@pytest.mark.parametrize(
    "arguments, trouble", [([], "The first argument names the project."), (["Trial"], "'Trial' is no project"), (["--help"], "usage: ")]
)
def test_without_a_project_the_usage_is_shown(shell, arguments, trouble):
    run = shell.start(*arguments)
    assert run.returncode == 2
    assert trouble in run.stderr and "usage: <Project.uproject>" in run.stderr


def test_a_script_in_the_working_folder_may_have_blanks_in_its_name(shell):
    (shell.folder / "my first.py").write_text("print(6 * 7)", encoding="utf-8")
    assert shell.start("Trial/Trial.uproject", "-ExecutePythonScript=my first.py").stdout.startswith("42\n")


def test_what_python_prints_goes_to_the_terminal_as_it_is(shell):
    run = shell.start("Trial/Trial.uproject", f"-ExecutePythonScript={shell.script('print(6 * 7); 1 / 0')}")
    assert run.stdout.startswith("42\n")


def test_a_fault_in_a_description_is_told_with_its_place(shell):
    tool = shell.folder / "Tool.json"
    tool.write_text('{\n"Root": {}\n"TabLabel": ""\n}', encoding="utf-8")
    run = shell.start("Trial/Trial.uproject", f"-ExecutePythonScript={shell.script(LAUNCH.format(tool=str(tool)))}")
    assert f"PythonKX: Display: {tool}:3: " in run.stderr


def test_with_stdout_the_log_goes_to_the_console_too(shell):
    run = shell.start("Trial/Trial.uproject", "-stdout", f"-ExecutePythonScript={shell.script('print(6 * 7)')}")
    assert "LogPython: 42" in run.stdout


def test_without_python_the_editor_runs_and_a_script_fails(shell):
    run = shell.start("Trial/Trial.uproject", "-DisablePython", f"-ExecutePythonScript={shell.script('print(6 * 7)')}")
    assert run.returncode == 1
    assert "LogPython: 42" not in shell.log_text()


def test_trouble_is_told_where_the_editor_was_started(shell):
    run = shell.start("Trial/Trial.uproject", f"-ExecutePythonScript={shell.script('no_such_name')}")
    assert f"The log is {shell.log}" in run.stderr
    assert "NameError" in run.stderr


def test_off_screen_without_a_script_gives_status_2_and_says_why(shell):
    run = shell.start("Trial/Trial.uproject")
    assert run.returncode == 2
    assert "-ExecutePythonScript" in run.stderr


def test_the_console_can_end_the_editor(shell):
    script = shell.script("import unreal; unreal.EditorPythonScripting.set_keep_python_script_alive(True)")
    run = shell.start("Trial/Trial.uproject", "-ExecCmds=quit", f"-ExecutePythonScript={script}")
    assert run.returncode == 0


def test_a_script_can_end_the_editor(shell):
    script = shell.script(
        "import unreal\n"
        "unreal.EditorPythonScripting.set_keep_python_script_alive(True)\n"
        "unreal.VelmoraData.launch_velmora_tool('VelmoraGallery/VelmoraGallery.json')\n"
        "unreal.SystemLibrary.quit_editor()\n"
        "print('still in the script')"
    )
    run = shell.start("Trial/Trial.uproject", f"-ExecutePythonScript={script}")
    assert run.returncode == 0
    log = shell.log_text()
    assert log.index("still in the script") < log.index("The gallery was closed") < log.index("The editor has ended.")


def test_commands_that_end_with_quit_need_no_script(shell):
    run = shell.start("Trial/Trial.uproject", "-ExecCmds=py print(6 * 7); quit")
    assert run.returncode == 0
    assert run.stdout.startswith("42\n")


def test_a_switch_that_means_nothing_is_named(shell):
    script = shell.script("pass")
    run = shell.start("Trial/Trial.uproject", "-unatended", "-nosplash", f"-ExecutePythonScript={script} -v --quiet")
    assert run.returncode == 0
    assert "Unknown switch: -unatended" in run.stderr
    assert run.stderr.count("Unknown switch") == 1


@pytest.mark.parametrize("number", [signal.SIGINT, signal.SIGTERM, signal.SIGHUP])
def test_a_signal_ends_the_editor_in_order(shell, number):
    script = shell.script(
        "import os, unreal\n"
        "unreal.EditorPythonScripting.set_keep_python_script_alive(True)\n"
        "unreal.VelmoraData.launch_velmora_tool('VelmoraGallery/VelmoraGallery.json')\n"
        f"os.kill(os.getpid(), {number:d})\n"
    )
    run = shell.start("Trial/Trial.uproject", f"-ExecutePythonScript={script}")
    assert run.returncode == 128 + number
    log = shell.log_text()
    assert f"LogLaunch: The editor is asked to end by signal {number:d}." in log
    assert "LogPython: The gallery was closed" in log
    assert "LogLaunch: The editor has ended." in log


def test_a_busy_editor_says_so_and_ends_when_the_script_does(shell):
    told = shell.folder / "told"
    script = shell.script(f"import os\nos.kill(os.getpid(), {signal.SIGINT:d})\nwhile not os.path.exists({str(told)!r}): pass")
    with shell.running("Trial/Trial.uproject", f"-ExecutePythonScript={script}") as editor:
        assert any("The editor is busy" in line for line in editor.stderr)
        told.touch()
    assert editor.returncode == 128 + signal.SIGINT


def test_a_second_signal_ends_a_script_that_never_comes_back(shell):
    script = shell.script(f"import os\nwhile True: os.kill(os.getpid(), {signal.SIGTERM:d})")
    assert shell.start("Trial/Trial.uproject", f"-ExecutePythonScript={script}").returncode == -signal.SIGTERM


def test_packages_of_engine_project_and_plugins_are_known(shell):
    plugin = shell.folder / "Trial" / "Plugins" / "Extra"
    content = {"/Game/Mine": shell.folder / "Trial" / "Content", "/Extra/Theirs": plugin / "Content"}
    for package, folder in content.items():
        folder.mkdir(parents=True, exist_ok=True)
        (folder / (package.rsplit("/", 1)[1] + ".uasset")).touch()
    (plugin / "Extra.uplugin").write_text('{ "FileVersion": 3, "CanContainContent": true }')
    script = shell.script(
        "import json, pathlib, sys, unreal\n"
        "folder = next(pathlib.Path(each) for each in sys.path if each.endswith('/KX/Kestrix/Python'))\n"
        "for number, package in enumerate(['/Game/Mine', '/Extra/Theirs', '/Extra/Missing']):\n"
        "    file = folder / f'Packages{number}.json'\n"
        "    file.write_text(json.dumps({'VelmoraData': package, 'InitPyCmd': '', 'Root': {'SBox': {}}}))\n"
        "    unreal.VelmoraData.launch_velmora_tool(str(file))\n"
    )
    assert shell.start("Trial/Trial.uproject", f"-ExecutePythonScript={script}").returncode == 0
    missing = [line.split("@ ")[1] for line in shell.log_text().splitlines() if "can't find: VelmoraData" in line]
    assert missing == ["/Extra/Missing"]
