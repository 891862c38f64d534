"""An editor that is treated badly, as a user who may write nothing but a folder of its own."""

import os
import pathlib
import pwd
import shutil
import subprocess
import tempfile

import progress
import pytest

ROOT = pathlib.Path(__file__).resolve().parents[2]
TESTS = pathlib.Path(__file__).resolve().parent
LONGEST_RUN = 900

#: Nobody in particular, in whose name root runs the editor.
UNPRIVILEGED = "nobody"

#: How the folders of these tests begin; others may run on this machine.
PREFIX = "kestrix-hostile-"

#: Where anybody may write.
COMMON_FOLDERS = ["/tmp", "/var/tmp", "/dev/shm"]


def pytest_addoption(parser):
    parser.addoption("--build", type=pathlib.Path, required=True, help="the build directory")


def unprivileged_user(editor):
    """Who runs the editor; None for whoever runs the tests, if that is not root or if nobody else could read the editor."""
    if os.geteuid() != 0:
        return None
    user = pwd.getpwnam(UNPRIVILEGED)
    identity = {"user": user.pw_uid, "group": user.pw_gid, "extra_groups": []}
    readable = subprocess.run(["test", "-r", editor], **identity, cwd="/", check=False).returncode == 0
    return user if readable else None


class Victim:
    """A folder with a new project in it, and the editor to treat badly there."""

    def __init__(self, editor, folder):
        self.editor = editor
        self.folder = folder
        self.progress = folder / "progress"
        self.log = folder / "editor.log"
        self.user = unprivileged_user(editor)
        subprocess.run([ROOT / "Scripts" / "new-project", folder / "Trial"], check=True, stdout=subprocess.DEVNULL)
        if self.user:
            for path in (folder, *folder.rglob("*")):
                os.chown(path, self.user.pw_uid, self.user.pw_gid, follow_symlinks=False)

    def start(self, script, *arguments):
        """Runs a script of this folder to the end of the editor. The first argument of the script is the progress file."""
        command = [self.editor, "Trial/Trial.uproject", "-RenderOffScreen", "-unattended", f"-abslog={self.log}"]
        command.append("-ExecutePythonScript=" + " ".join(map(str, (TESTS / script, self.progress, *arguments))))
        identity = {"user": self.user.pw_uid, "group": self.user.pw_gid, "extra_groups": []} if self.user else {}
        environment = {"PATH": os.defpath, "HOME": str(self.folder), "TMPDIR": str(self.folder), "LANG": "C.UTF-8"}
        outside = self.files_outside()
        run = subprocess.run(
            command,
            cwd=self.folder,
            env=environment,
            stdin=subprocess.DEVNULL,
            capture_output=True,
            timeout=LONGEST_RUN,
            check=False,
            **identity,
        )
        return Outcome(self, run, self.files_outside() - outside)

    def files_outside(self):
        """What the editor's user owns or, if it is no user of its own, what differs from the last commit, beyond the folder."""
        if not self.user:
            command = ["git", "-C", ROOT, "status", "--porcelain"]
            return set(subprocess.run(command, capture_output=True, text=True, check=False).stdout.splitlines())
        own = ["-path", self.folder.parent / (PREFIX + "*"), "-prune"]
        command = ["find", *COMMON_FOLDERS, ROOT, "-xdev", *own, "-o", "-user", str(self.user.pw_uid), "-print"]
        return set(subprocess.run(command, capture_output=True, text=True, check=False).stdout.splitlines())


class Outcome:
    """How an editor took it."""

    def __init__(self, victim, run, files_outside):
        self.status = run.returncode
        self.output = (run.stdout + run.stderr).decode("utf-8", "replace")
        self.files_outside = files_outside
        self.last, self.result = progress.read(victim.progress)
        self.log = victim.log.read_text(encoding="utf-8", errors="replace")

    def check(self, expected):
        """The editor did all that was asked for, ended as it should, and left no trace elsewhere."""
        assert self.status == 0, f"the editor ended with status {self.status} at: {self.last}\n{self.tail()}"
        assert self.last == progress.THE_END, f"the last thing was: {self.last}\n{self.tail()}"
        assert self.result["findings"] == []
        assert self.result["made"] == expected
        assert "=== Critical error: ===" not in self.log and "=== Handled ensure: ===" not in self.log
        assert "LogLaunch: The editor has ended." in self.log
        assert self.files_outside == set()

    def tail(self):
        return self.output[-6000:]


@pytest.fixture
def victim(request):
    editor = request.config.getoption("--build").absolute() / "bin" / "KestrixEditor"
    # The folders of pytest are nobody else's to enter.
    folder = pathlib.Path(tempfile.mkdtemp(prefix=PREFIX))
    yield Victim(editor, folder)
    shutil.rmtree(folder)
