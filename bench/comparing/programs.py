"""The programs that answer rounds: found, started, asked."""

import contextlib
import os
import pathlib
import shutil
import subprocess
import sys

BENCH = pathlib.Path(__file__).resolve().parent.parent
ROOT = BENCH.parent
BINARIES = ROOT / "build" / "bench" / "bench"
PACKAGES = ("libbenchmark-dev", "libgtest-dev", "libnanoflann-dev", "python3-numpy", "python3-scipy",
            "python3-matplotlib", "gnuplot-nox", "libqwt-qt5-dev", "qtbase5-dev", "valgrind")


class Failure(Exception):
    """What ends the comparison, in words for its user."""


class Program:
    """A program that keeps running and answers one round when it is asked."""

    def __init__(self, name, command):
        self.name = name
        try:
            self.process = subprocess.Popen(command, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        except OSError as failure:
            raise Failure(f"{name} does not start: {failure}") from failure
        self.works = frozenset(self._ask("works").split())

    def _ask(self, question):
        try:
            self.process.stdin.write(question + "\n")
            self.process.stdin.flush()
            answer = self.process.stdout.readline()
        except BrokenPipeError:
            answer = ""
        if not answer:
            raise Failure(f"{self.name} gave no answer to: {question}")
        return answer

    def round(self, work, milliseconds):
        """Nanoseconds of a run, and what the run came to."""
        nanoseconds, result = self._ask(f"{work} {milliseconds}").split()
        return float(nanoseconds), float(result)

    def end(self):
        with contextlib.suppress(BrokenPipeError):
            self.process.stdin.close()
        self.process.wait()
        self.process.stdout.close()


def run(command, **options):
    try:
        subprocess.run(command, check=True, **options)
    except (OSError, subprocess.CalledProcessError) as failure:
        raise Failure(str(failure)) from failure


def install():
    """Installs the peers, and what the programs are built and counted with, from Debian."""
    if not shutil.which("apt-get"):
        raise Failure("there is no apt-get here; the packages would be: " + " ".join(PACKAGES))
    as_root = [] if os.geteuid() == 0 else ["sudo"]
    run([*as_root, "apt-get", "update", "-qq"])
    run([*as_root, "env", "DEBIAN_FRONTEND=noninteractive", "apt-get", "install", "-y", "--no-install-recommends",
         *PACKAGES])


def build(target):
    """Builds programs of the preset "bench"."""
    log = {"cwd": ROOT, "stdout": sys.stderr}
    run(["cmake", "--preset", "bench"], **log)
    run(["cmake", "--build", "--preset", "bench", "--target", target], **log)


def python_with_scipy():
    """The first Python that has the peers: the one that runs this may be another than that of Debian."""
    for python in (sys.executable, "/usr/bin/python3"):
        if subprocess.run([python, "-c", "import numpy, scipy.spatial"], capture_output=True).returncode == 0:
            return python
    return None


def commands(folder, binaries):
    """The commands of all programs by name; None for those that cannot run here."""
    nanoflann, qwt = binaries / "nanoflann_rounds", binaries / "qwt_rounds"
    python = python_with_scipy()
    return {
        "heart": [binaries / "heart_rounds", folder],
        "pictures": [binaries / "picture_rounds", folder],
        "faces": [binaries / "face_rounds"],
        "nanoflann": [nanoflann] if nanoflann.exists() else None,
        "scipy": [python, BENCH / "peers" / "scipy_rounds.py", folder] if python else None,
        "qwt": [qwt, folder] if qwt.exists() else None,
        "gnuplot": [sys.executable, BENCH / "peers" / "gnuplot_rounds.py", folder] if shutil.which("gnuplot") else None,
    }


def memory():
    """Where files wait for no disk, None if there is no such place."""
    place = pathlib.Path("/dev/shm")
    return place if os.access(place, os.W_OK) else None


def start(folder, binaries):
    """Starts what is there, the heart first: it writes the sites that the others read. @return programs by name."""
    return {name: Program(name, command) for name, command in commands(folder, binaries).items() if command}


def assert_exactness(binaries):
    """Runs the checks of values and pictures. @return how many there were."""
    try:
        done = subprocess.run([binaries / "exactness"], capture_output=True, text=True)
    except OSError as failure:
        raise Failure(f"nothing can be checked: {failure}") from failure
    lines = done.stdout.splitlines()
    if done.returncode != 0 or not lines:
        wrong = [line for line in lines if not line.startswith("same")] or [done.stderr or "no check was made"]
        raise Failure("nothing is measured: what is fast is not the same\n  " + "\n  ".join(wrong))
    return len(lines)
