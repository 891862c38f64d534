"""The command of the project: what it says, and what makes projects, `./kestrix new` and `./kestrix run`."""

import os
import pathlib
import subprocess

import pytest

ROOT = pathlib.Path(__file__).resolve().parents[2]


def new_project(folder):
    return subprocess.run([ROOT / "Scripts" / "new-project", folder], capture_output=True, text=True, check=False)


def files_below(folder):
    return sorted(str(file.relative_to(folder)) for file in folder.rglob("*") if not file.is_dir() or file.is_symlink())


def test_an_unknown_command_is_named_before_the_usage():
    run = subprocess.run([ROOT / "kestrix", "nwe"], capture_output=True, text=True, check=False)
    assert run.returncode == 2
    assert run.stderr.startswith('kestrix: unknown command "nwe"\n')
    assert "Usage: ./kestrix COMMAND" in run.stderr
    assert run.stdout == ""


def test_a_new_project_has_the_plugin_and_its_settings(tmp_path):
    run = new_project(tmp_path / "Fresh")
    assert run.returncode == 0
    assert str(tmp_path / "Fresh" / "Fresh.uproject") in run.stdout
    assert files_below(tmp_path / "Fresh") == [
        ".gitignore",
        "Config/DefaultEngine.ini",
        "Content/Python/init_unreal.py",
        "Fresh.uproject",
        "Plugins/Kestrix",
    ]
    assert (tmp_path / "Fresh" / "Plugins" / "Kestrix").resolve() == ROOT


def test_an_empty_folder_is_taken(tmp_path):
    (tmp_path / "Empty").mkdir()
    assert new_project(tmp_path / "Empty").returncode == 0


def test_a_folder_with_something_in_it_is_refused_and_left_alone(tmp_path):
    (tmp_path / "Full").mkdir()
    (tmp_path / "Full" / "mine.txt").touch()
    run = new_project(tmp_path / "Full")
    assert run.returncode == 1
    assert run.stderr == f"new-project: '{tmp_path / 'Full'}' is not empty. Name a folder that does not exist yet, or an empty one.\n"
    assert files_below(tmp_path / "Full") == ["mine.txt"]


def test_a_file_is_refused(tmp_path):
    (tmp_path / "File").touch()
    run = new_project(tmp_path / "File")
    assert run.returncode == 1 and "is a file" in run.stderr


@pytest.mark.parametrize("name", ["7up", "two words", "dash-ed"])
def test_a_name_that_no_project_can_have_is_refused(tmp_path, name):
    run = new_project(tmp_path / name)
    assert run.returncode == 1 and f"'{name}' cannot be the name of a project" in run.stderr
    assert not (tmp_path / name).exists()


def test_a_folder_within_the_plugin_is_refused():
    run = new_project(ROOT / "Samples" / "Inner")
    assert run.returncode == 1 and "lies in the plugin's own folder" in run.stderr


def test_a_project_and_a_script_below_a_folder_with_blanks_work(shell, tmp_path):
    folder = tmp_path / "a b"
    folder.mkdir()
    assert new_project(folder / "Trial").returncode == 0
    (folder / "my script.py").write_text("print('it works')")
    shell.start(folder / "Trial" / "Trial.uproject", f'-ExecutePythonScript="{folder / "my script.py"}"')
    assert "LogPython: it works" in shell.log_text()


def test_the_sample_without_a_display_ends_with_the_path_of_its_picture(shell):
    environment = {name: value for name, value in os.environ.items() if name != "DISPLAY"}
    run = subprocess.run([ROOT / "Scripts" / "run-sample", shell.editor], env=environment, capture_output=True, text=True, check=False)
    assert run.returncode == 0, run.stdout
    picture = pathlib.Path(run.stdout.splitlines()[-1])
    assert picture.read_bytes().startswith(b"\x89PNG")


def test_the_startup_script_runs_once_and_shows_the_gallery_once(shell):
    script = shell.script("import unreal; print('open:', unreal.EditorDriver.count('Velmora Gallery', 'SVelmoraWidget'))")
    startup = shell.folder / "Trial" / "Content" / "Python" / "init_unreal.py"
    startup.write_text(startup.read_text() + "\nprint('starting')\n")
    for opened in (1, 0):
        shell.start("Trial/Trial.uproject", f"-ExecutePythonScript={script}")
        assert shell.log_text().count("LogPython: starting\n") == 1
        assert f"LogPython: open: {opened}" in shell.log_text()
