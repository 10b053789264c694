"""The protocol of the programs that answer rounds; programs/support/Rounds.h tells it."""

import sys
import time


class Work:
    """One piece of work; result() is what its last run came to."""

    def __init__(self, run, result=lambda: 0.0):
        self.run = run
        self.result = result


def mean_nanoseconds(work, milliseconds):
    work.run()
    start = time.perf_counter_ns()
    runs, passed = 0, 0
    while not runs or passed < milliseconds * 1e6:
        work.run()
        runs += 1
        passed = time.perf_counter_ns() - start
    return passed / runs


def answer_rounds(works):
    """works: the functions that prepare a Work, by name."""
    prepared = {}
    for line in sys.stdin:
        name, *rest = line.split()
        if name == "works":
            print(*works, flush=True)
            continue
        if name not in works:
            sys.exit(f"no such work: {name}")
        if name not in prepared:
            prepared[name] = works[name]()
        taken = mean_nanoseconds(prepared[name], float(rest[0]))
        print(taken, float(prepared[name].result()), flush=True)
