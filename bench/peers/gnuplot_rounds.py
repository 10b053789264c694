#!/usr/bin/env python3
"""Answers the rounds of a gnuplot that keeps running. It draws matrices that are ready, which heart_rounds has
left in the folder, to a PNG file that nobody keeps: it has no picture without a file."""

import subprocess
import sys

from answering import Work, answer_rounds

SET_UP = """
set print "-"
set terminal pngcairo size 900,900
set output "/dev/null"
set size square
set margins 0,0,0,0
unset border
unset tics
unset key
unset colorbox
set palette maxcolors 10
set view 55,40
set pm3d border linecolor "black" linewidth 0.5
"""


class Gnuplot:
    def __init__(self):
        self.process = subprocess.Popen(["gnuplot"], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.do(SET_UP)

    def do(self, commands):
        """Runs commands and waits for their end."""
        self.process.stdin.write(commands + '\nprint "done"\n')
        self.process.stdin.flush()
        if self.process.stdout.readline().strip() != "done":
            raise RuntimeError("gnuplot has ended")


def matrix(folder, nodes):
    return f"'{folder}/{nodes}.matrix' binary array=({nodes},{nodes}) format='%double'"


def main():
    if len(sys.argv) != 2:
        sys.exit(f"usage: {sys.argv[0]} FOLDER")
    folder = sys.argv[1]
    gnuplot = Gnuplot()
    drawing = {
        "map": f"plot {matrix(folder, 201)} with image",
        "surface": f"splot {matrix(folder, 101)} with pm3d",
    }
    answer_rounds({name: (lambda command=command: Work(lambda: gnuplot.do(command)))
                   for name, command in drawing.items()})


if __name__ == "__main__":
    main()
