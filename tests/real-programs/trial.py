"""One program's trial: a fresh home folder, the commands that run in it, and what is compared."""

import hashlib
import json
import os
import shlex
import shutil
import stat
import subprocess
import time
from dataclasses import dataclass, field
from pathlib import Path

PATH = "/usr/local/bin:/usr/bin:/bin:/usr/games:/usr/sbin"
PATIENCE = 90  # seconds for a page to be opened
# How this machine reaches its package registries.
NETWORK = ("NODE_EXTRA_CA_CERTS", "SSL_CERT_FILE", "http_proxy", "https_proxy", "no_proxy")


class Trouble(Exception):
    """A step that did not do what it has to."""


@dataclass(frozen=True)
class Seen:
    """What a path was at one moment."""
    kind: str
    mode: int
    modified: int  # nanoseconds
    content: str   # hash of a file, target of a link


def shortened(command: str) -> str:
    return " ".join(command.split())[:60]


def seen(path: Path) -> Seen:
    status = path.lstat()
    if stat.S_ISLNK(status.st_mode):
        return Seen("link", 0, status.st_mtime_ns, os.readlink(path))
    if stat.S_ISDIR(status.st_mode):
        # Its time changes with every entry that leaves and comes back.
        return Seen("folder", stat.S_IMODE(status.st_mode), 0, "")
    if not stat.S_ISREG(status.st_mode):
        return Seen("other", stat.S_IMODE(status.st_mode), 0, "")
    with path.open("rb") as file:
        digest = hashlib.file_digest(file, "sha256").hexdigest()
    return Seen("file", stat.S_IMODE(status.st_mode), status.st_mtime_ns, digest)


def allocated(path: Path) -> int:
    total = path.lstat().st_blocks * 512
    if path.is_dir() and not path.is_symlink():
        total += sum(allocated(child) for child in path.iterdir())
    return total


def is_below(path: str, folders) -> bool:
    return any(path == folder or path.startswith(folder + "/") for folder in folders)


@dataclass
class Trial:
    """A home folder of the trial user's, below `work`."""
    work: Path
    user: int
    orlen: Path
    notes: list = field(default_factory=list)

    @property
    def home(self) -> Path:
        return self.work / "home"

    def prepare(self) -> None:
        shutil.rmtree(self.work, ignore_errors=True)
        for folder in (self.home, self.work / "run", self.work / "tmp"):
            folder.mkdir(parents=True, mode=0o700)
            os.chown(folder, self.user, self.user)

    def environment(self) -> list:
        values = {"HOME": self.home, "PATH": f"{self.home}/.local/bin:{PATH}", "LANG": "C.UTF-8",
                  "USER": "orlen-trial", "LOGNAME": "orlen-trial", "TMPDIR": self.work / "tmp",
                  "XDG_RUNTIME_DIR": self.work / "run", "STOP": self.work / "stop", "NO_AT_BRIDGE": 1,
                  "QTWEBENGINE_DISABLE_SANDBOX": 1, "LIBGL_ALWAYS_SOFTWARE": 1,
                  "JAVA_TOOL_OPTIONS": f"-Duser.home={self.home}"}
        values |= {name: os.environ[name] for name in NETWORK if name in os.environ}
        return [f"{name}={value}" for name, value in values.items()]

    def start(self, command: str, screen: bool = False) -> subprocess.Popen:
        """The command and all it starts, in a process table of their own: what is left ends with it."""
        inner = ["bash", "-c", command]
        if screen:
            # Not as the first process of the table: to that one an X server does not tell that it is ready.
            inner = ["bash", "-c", '"$@"; exit $?', "-", "xvfb-run", "-a", "-s", "-screen 0 1280x900x24",
                     "dbus-run-session", "--", *inner]
        log = (self.work / "log").open("ab")
        log.write(f"\n$ {command}\n".encode())
        log.flush()
        return subprocess.Popen(
            ["unshare", "--pid", "--fork", "--kill-child", "--mount-proc", "setpriv", f"--reuid={self.user}",
             f"--regid={self.user}", "--clear-groups", "env", "-i", *self.environment(), *inner],
            cwd=self.home, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=log, start_new_session=True)

    def run(self, command: str, limit: float = 180, screen: bool = False) -> str:
        process = self.start(command, screen)
        try:
            output, _ = process.communicate(timeout=limit)
        except subprocess.TimeoutExpired:
            process.kill()
            process.communicate()
            raise Trouble(f"no end after {limit:.0f} s: {shortened(command)}") from None
        if process.returncode != 0:
            raise Trouble(f"status {process.returncode}: {shortened(command)}")
        return output.decode(errors="replace")

    def show(self, command: str, seconds: float, until=lambda: False, more: float = 0) -> None:
        """Runs a program with a window, and asks it to end after some seconds, or `more` seconds after `until`
        holds."""
        stop = self.work / "stop"
        stop.unlink(missing_ok=True)
        process = self.start(f"{command} & program=$!\n"
                             "while [ ! -e \"$STOP\" ] && kill -0 $program 2>/dev/null; do sleep 0.3; done\n"
                             "kill -TERM $program 2>/dev/null; wait $program; sleep 1; true", screen=True)
        started = time.monotonic()
        while not until() and time.monotonic() - started < PATIENCE and process.poll() is None:
            time.sleep(0.3)
            if seconds and time.monotonic() - started > seconds:
                break
        time.sleep(more)
        stop.touch()
        try:
            process.communicate(timeout=40)
        except subprocess.TimeoutExpired:
            process.kill()
            process.communicate()
            self.notes.append("had to be killed")

    def everything(self) -> dict:
        """All that lies in the home folder but for Orlen's own and the Trash."""
        own = [str(self.home / ".local/share" / name) for name in ("Orlen", "Trash")]
        own += [str(self.home / ".cache/Orlen"), str(self.home / ".config/Orlen")]
        all_seen = {}
        for folder, folders, files in os.walk(self.home):
            folders[:] = [name for name in folders if not is_below(f"{folder}/{name}", own)]
            for name in folders + files:
                path = Path(folder) / name
                all_seen[str(path)] = seen(path)
        return all_seen

    def ask_orlen(self, arguments: str) -> dict:
        return json.loads(self.run(f"{shlex.quote(str(self.orlen))} {arguments} --json"))


def outermost(paths) -> list:
    kept = []
    for path in sorted(paths):
        if not kept or not is_below(path, kept[-1:]):
            kept.append(path)
    return kept
