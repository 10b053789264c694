"""Instructions of the processor, as callgrind counts them: the same whatever else the machine does."""

import concurrent.futures
import re
import shutil
import subprocess

from comparing import programs

MEASURED = "mirolen::bench::(anonymous namespace)::mean_nanoseconds*"


def instructions(command, name):
    """Those of one run, after one for the caches. Nothing else is counted."""
    counting = ["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", f"--toggle-collect={MEASURED}"]
    done = subprocess.run([*counting, command], input=f"{name} 0\n", capture_output=True, text=True)
    collected = re.search(r"Collected : (\d+)", done.stderr)
    if done.returncode != 0 or not collected or collected[1] == "0":
        raise programs.Failure(f"callgrind counts nothing for {name}:\n{done.stderr}")
    return int(collected[1])


def count(command, names):
    """The instructions of each work by its name."""
    if not shutil.which("valgrind"):
        raise programs.Failure("there is no valgrind here; bench/compare --install installs it")
    with concurrent.futures.ThreadPoolExecutor() as several:
        return dict(zip(names, several.map(lambda name: instructions(command, name), names)))
