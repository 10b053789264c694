#!/usr/bin/env python3
"""Answers the rounds of numpy, scipy and matplotlib. The folder is that of heart_rounds."""

import pathlib
import sys

import numpy
from scipy.spatial import cKDTree

from answering import Work, answer_rounds

TEST_DIAMETER = 194.0
PICTURE_SIDE = 900  # pixels
MAP_CELLS = 200
SURFACE_CELLS = 100
ON_A_SITE = 0.0001


def read_sites(folder, name):
    x, y, z = numpy.fromfile(folder / f"{name}.sites").reshape(3, -1)
    return numpy.column_stack((x, y)), z


def grid(cells):
    """The nodes of a map: x, y and whether they lie on the test circle or within."""
    step = TEST_DIAMETER / cells
    line = numpy.arange(-cells // 2, cells // 2 + 1) * step
    x, y = numpy.meshgrid(line, line)
    return x, y, x * x + y * y <= (TEST_DIAMETER / 2) ** 2


class Interpolation:
    """The inverse-square mean of the four nearest sites."""

    def __init__(self, folder, name):
        places, self.values = read_sites(folder, name)
        self.tree = cKDTree(places)

    def __call__(self, nodes):
        distances, sites = self.tree.query(nodes, k=4)
        values = self.values[sites]
        weights = 1 / numpy.maximum(distances, ON_A_SITE / 2) ** 2
        means = (values * weights).sum(axis=1) / weights.sum(axis=1)
        hit = distances[:, 0] < ON_A_SITE
        means[hit] = values[hit, 0]
        return means


def row_work(folder, name):
    interpolation = Interpolation(folder, name)
    x, y, inside = grid(MAP_CELLS)
    nodes = numpy.column_stack((x[inside], y[inside]))
    found = {}

    def run():
        found["z"] = interpolation(nodes)

    return Work(run, lambda: found["z"].sum())


def load_work(folder):
    found = {}

    def run():
        places, z = read_sites(folder, "32767")
        found["mean"], found["tree"] = z.mean(), cKDTree(places)
        found["rest"] = z.std(ddof=1), z.min(), z.max(), z.sum()

    return Work(run, lambda: found["mean"])


def figure():
    """A figure with the renderer alone: nothing round the picture is drawn."""
    from matplotlib.backends.backend_agg import FigureCanvasAgg
    from matplotlib.figure import Figure

    made = Figure(figsize=(9, 9), dpi=PICTURE_SIDE / 9)
    FigureCanvasAgg(made)
    return made


def ten_colors():
    from matplotlib.colors import ListedColormap

    return ListedColormap(["#800000", "#ff0000", "#ffff00", "#00ff00", "#808000",
                           "#008000", "#008080", "#0000ff", "#000080", "#800080"][::-1])


def map_work(folder):
    interpolation = Interpolation(folder, "1000")
    x, y, inside = grid(MAP_CELLS)
    nodes = numpy.column_stack((x[inside], y[inside]))
    picture, colors = figure(), ten_colors()
    axes = picture.add_axes((0, 0, 1, 1))
    axes.set_axis_off()
    drawn = []

    def run():
        while drawn:
            drawn.pop().remove()
        z = numpy.full(x.shape, numpy.nan)
        z[inside] = interpolation(nodes)
        cells = (z[:-1, :-1] + z[1:, :-1] + z[:-1, 1:] + z[1:, 1:]) / 4
        drawn.append(axes.pcolormesh(x, y, cells, cmap=colors))
        picture.canvas.draw()

    return Work(run)


def surface_work(folder):
    import mpl_toolkits.mplot3d  # noqa: F401, it brings the projection

    interpolation = Interpolation(folder, "1000")
    x, y, inside = grid(SURFACE_CELLS)
    nodes = numpy.column_stack((x[inside], y[inside]))
    picture, colors = figure(), ten_colors()
    axes = picture.add_axes((0, 0, 1, 1), projection="3d")
    axes.set_axis_off()
    axes.view_init(elev=35, azim=40)
    base = interpolation.values.min()
    drawn = []

    def run():
        while drawn:
            drawn.pop().remove()
        z = numpy.full(x.shape, base)
        z[inside] = interpolation(nodes)
        drawn.append(axes.plot_surface(x, y, z, rcount=SURFACE_CELLS + 1, ccount=SURFACE_CELLS + 1, cmap=colors,
                                       edgecolor="black", linewidth=0.5, antialiased=False, shade=False))
        picture.canvas.draw()

    return Work(run)


def has_matplotlib():
    try:
        figure()
    except ImportError:
        return False
    return True


def main():
    if len(sys.argv) != 2:
        sys.exit(f"usage: {sys.argv[0]} FOLDER")
    folder = pathlib.Path(sys.argv[1])
    works = {f"row/{name}": (lambda name=name: row_work(folder, name)) for name in ("49", "1000", "32767", "dies")}
    works["load"] = lambda: load_work(folder)
    if has_matplotlib():
        works["map"] = lambda: map_work(folder)
        works["surface"] = lambda: surface_work(folder)
    answer_rounds(works)


if __name__ == "__main__":
    main()
