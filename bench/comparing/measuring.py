"""Shuffled rounds, and what they come to."""

import dataclasses
import random
import statistics
import sys

from .goals import COMPARISONS, DRAWINGS
from .programs import Failure

NEARLY = 1e-3  # peers settle ties and far nodes in another way


@dataclasses.dataclass(frozen=True)
class Outcome:
    """Medians over all rounds; the ratio with its quartiles."""

    what: str
    peer: str
    unit: str
    ours: float
    theirs: float
    low: float
    ratio: float
    high: float
    goal: float | None = None

    @property
    def met(self):
        return None if self.goal is None else self.ratio >= self.goal


def quartiles(values):
    return statistics.quantiles(values, n=4, method="inclusive") if len(values) > 1 else values * 3


class Rounds:
    """The answers of all rounds. A work goes by "program:work"."""

    def __init__(self, programs, milliseconds):
        self.programs = programs
        self.milliseconds = milliseconds
        self.answers = {}

    def has(self, name):
        program, work = name.split(":")
        return program in self.programs and work in self.programs[program].works

    def measure(self, works, count):
        """Asks every work once a round, each round in another order, and says on a terminal how far it is."""
        works = sorted(works)
        for number in range(1, count + 1):
            if sys.stderr.isatty():
                print(f"\rround {number} of {count} ", end="", file=sys.stderr, flush=True)
            random.shuffle(works)
            for name in works:
                program, work = name.split(":")
                answer = self.programs[program].round(work, self.milliseconds)
                self.answers.setdefault(name, []).append(answer)
        if sys.stderr.isatty():
            print(file=sys.stderr)

    def outcome(self, what, peer, ours, theirs, goal=None, of_results=False):
        at = 1 if of_results else 0
        our_numbers = [answer[at] for answer in self.answers[ours]]
        their_numbers = [answer[at] for answer in self.answers[theirs]]
        ratios = [their / our for our, their in zip(our_numbers, their_numbers)]
        low, ratio, high = quartiles(ratios)
        unit = "kB" if of_results else "ms"
        scale = 1e3 if of_results else 1e6
        return Outcome(what, peer, unit, statistics.median(our_numbers) / scale,
                       statistics.median(their_numbers) / scale, low, ratio, high, goal)

    def refuse_other_result(self, comparison):
        """A peer that does other work is no measure."""
        ours = self.answers[comparison.ours][-1][1]
        theirs = self.answers[comparison.theirs][-1][1]
        if abs(ours - theirs) > NEARLY * abs(ours):
            raise Failure(f"{comparison.what}: {comparison.peer} comes to {theirs:g}, the library to {ours:g}")


def wanted(text, only):
    return not only or any(part.lower() in text.lower() for part in only)


def compare(programs, count, milliseconds, only):
    """@return the outcomes of the comparisons, those of the drawings, and the comparisons left out."""
    rounds = Rounds(programs, milliseconds)
    chosen = [c for c in COMPARISONS if wanted(f"{c.what} {c.peer}", only)]
    able = [c for c in chosen if rounds.has(c.ours) and rounds.has(c.theirs)]
    drawings = [work for work in DRAWINGS if wanted(work, only)]
    if not chosen and not drawings:
        raise Failure("nothing has such a name: " + ", ".join(only))
    works = {name for c in able for name in (c.ours, c.theirs)}
    works |= {f"faces:{prefix}{work}" for work in drawings for prefix in ("", "null/")}
    rounds.measure(works, count)
    for comparison in able:
        if comparison.same_result:
            rounds.refuse_other_result(comparison)
    outcomes = [rounds.outcome(c.what, c.peer, c.ours, c.theirs, c.goal, c.of_results) for c in able]
    drawn = [rounds.outcome(work, "without drawing", f"faces:null/{work}", f"faces:{work}") for work in drawings]
    return outcomes, drawn, [c for c in chosen if c not in able]
