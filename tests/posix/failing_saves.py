#!/usr/bin/env python3
"""Fails, kills and ends `resave` and `upgrade` of the tool at each of their system calls in turn.

Whatever happens, the target has to be the old file or the new one, nothing may stay behind, and what is said has to be
true. What a kill leaves has to go with a later save. Ends with 0 if all holds, with 1 and a line a fault if not, and
with 77 where this machine doesn't let a program be traced.

usage: failing_saves.py TOOL
"""

import os
import re
import shutil
import subprocess
import sys
import tempfile
from collections import Counter
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

SAMPLES = Path(__file__).resolve().parent.parent / "data/samples"
IGNORED = {"brk", "mmap", "munmap", "mprotect", "futex", "write", "exit_group", "geteuid", "rt_sigprocmask"}
ACTIONS = ("error=EIO", "error=EACCES", "error=ENOSPC", "signal=SIGTERM", "signal=SIGQUIT", "signal=SIGKILL")
SCRATCH = re.compile(r"\.?quor[0-9a-f]{32}\.tmp")
LIST = "system.posix_acl_access"
# The owner and user 1234 read and write, the group and others nothing; the mask shows as the group's bits.
ENTRIES = ((1, 6, -1), (2, 6, 1234), (4, 0, -1), (16, 6, -1), (32, 0, -1))
LIST_BYTES = (2).to_bytes(4, "little") + b"".join(
    tag.to_bytes(2, "little") + bits.to_bytes(2, "little") + (number % 2**32).to_bytes(4, "little")
    for tag, bits, number in ENTRIES)
NOBODY = 65534


class Case:
    """A command on files of its own; `place` says what the target is."""

    def __init__(self, tool, command, sample, place):
        self.root = Path(tempfile.mkdtemp(prefix="failing_saves_"))
        self.name = f"{command}, target {place}"
        self.command, self.place = command, place
        self.sample = (SAMPLES / sample).read_bytes()
        self.old = None if place == "missing" else b"old"
        self.tool = shutil.copy(tool, self.root)
        self.root.chmod(0o755)
        self.work, self.target = self.root / "work", self.root / "work/out.qvw"
        self.user = NOBODY if place == "in a closed folder" and os.geteuid() == 0 else None

    def prepare(self):
        for folder in ("work", "temp", "state"):
            shutil.rmtree(self.root / folder, ignore_errors=True)
            (self.root / folder).mkdir()
        (self.root / "trace").touch()
        (self.work / "in.qvw").write_bytes(self.sample)
        if self.old is not None:
            self.target.write_bytes(self.old)
        if self.place == "with a list":
            os.setxattr(self.target, LIST, LIST_BYTES)
        if self.user:
            for name in ("work/out.qvw", "temp", "state", "trace"):
                os.chown(self.root / name, self.user, self.user)
        if self.place == "in a closed folder":
            self.work.chmod(0o555)

    def run(self, *options):
        words = [*options, str(self.tool), self.command, "work/in.qvw", "work/out.qvw"]
        temp = self.root / ("missing" if self.place == "there, without a folder for scratch files" else "temp")
        places = {"TMPDIR": str(temp), "XDG_STATE_HOME": str(self.root / "state"), "PATH": os.environ["PATH"]}
        return subprocess.run(words, cwd=self.root, env=places, user=self.user, capture_output=True, text=True, check=False)

    def calls(self):
        """Name and count of each call from the opening of the source on."""
        self.prepare()
        run = self.run("strace")
        self.new = self.target.read_bytes() if self.target.exists() else b""
        if run.returncode != 0 or self.new == self.old:
            raise RuntimeError(f"{self.name}: {run.stderr}")
        names = [line.partition("(")[0] for line in run.stderr.splitlines()]
        first = next(at for at, line in enumerate(run.stderr.splitlines()) if "in.qvw" in line and at > 0)
        counts = Counter()
        for at, name in enumerate(names):
            counts[name] += 1
            if at >= first and re.fullmatch(r"[a-z]\w*", name) and name not in IGNORED:
                yield name, counts[name]

    def left(self):
        own = {self.work / "in.qvw", self.target}
        return [path for path in self.root.rglob("*") if path.is_file() and path.parent != self.root and path not in own]

    def faults(self, call, number, action):
        self.prepare()
        run = self.run("strace", "-o", "trace", f"--inject={call}:{action}:when={number}")
        now = self.target.read_bytes() if self.target.exists() else None
        left = self.left()
        kept = [path for path in left if path.suffix == ".old" and path.read_bytes() == self.old]
        killed = run.returncode == -9
        if now not in (self.old, self.new) and not (killed and kept) and not any(str(path) in run.stderr for path in kept):
            yield f"the target is torn ({run.returncode}, {run.stderr.strip()})"
        if run.returncode in (0, 1) and now != self.new or run.returncode == 2 and now == self.new:
            yield f"ends with {run.returncode} and says: {run.stderr.strip()}"
        if run.returncode in (1, 2) and not run.stderr:
            yield "says nothing"
        if self.place == "with a list" and now == self.new and LIST not in os.listxattr(self.target):
            if self.target.stat().st_mode & 0o077:
                yield "the new file is open to more"
        if not killed:
            # Old bytes that can't be deleted after a save in place stay without a word.
            unsaid = (path for path in left if str(path) not in run.stderr and (path not in kept or run.returncode != 0))
            yield from (f"{path.name} stays, unsaid" for path in unsaid)
        elif left:
            yield from self.unswept(left)

    def unswept(self, left):
        for path in left:
            os.utime(path, (0, 0))
        self.run()
        for path in self.left():
            if SCRATCH.fullmatch(path.name) or path not in left:
                yield f"{path.name} stays after a later save"


def try_case(case):
    runs, found = 0, []
    try:
        for call, number in list(case.calls()):
            for action in ACTIONS:
                runs += 1
                found += [f"{case.name}: {action} at {call} {number}: {fault}" for fault in case.faults(call, number, action)]
    finally:
        case.work.chmod(0o755)
        shutil.rmtree(case.root)
    return runs, found


def main():
    tool = Path(sys.argv[1]).resolve()
    trial = subprocess.run(["strace", "true"], capture_output=True, text=True, check=False)
    if trial.returncode != 0:
        print(f"This machine doesn't let a program be traced, so nothing was tried: {trial.stderr.strip()}")
        return 77
    cases = [Case(tool, command, sample, place)
             for command, sample in (("resave", "round_led.qvw"), ("upgrade", "old/v1_mixed.qvw"))
             for place in ("there", "there, without a folder for scratch files", "missing", "with a list", "in a closed folder")]
    with ThreadPoolExecutor() as pool:
        results = list(pool.map(try_case, cases))
    faults = [fault for _, found in results for fault in found]
    print("\n".join([*faults, f"{sum(runs for runs, _ in results)} runs, {len(faults)} faults"]))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
