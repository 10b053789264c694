"""What is compared with what, and how far ahead the library has to be: the one table of goals."""

import dataclasses


@dataclasses.dataclass(frozen=True)
class Comparison:
    what: str
    peer: str  # as people know it
    ours: str  # a work as "program:work"
    theirs: str
    goal: float | None = None  # peer by ours, at least
    of_results: bool = False  # the works' results are compared (bytes), not their times
    same_result: bool = False  # the results must agree


# How far ahead of nanoflann's query, for nodes in rows and for single nodes.
_AHEAD_OF_A_TREE = {"49": (1.6, 1.0), "1000": (3.2, 2.0), "32767": (4.5, 3.2), "dies": (1.5, None)}


def _interpolations():
    for sites, (in_rows, single) in _AHEAD_OF_A_TREE.items():
        named = "dies with ties" if sites == "dies" else f"{sites} sites"
        row = f"heart:row/{sites}"
        for what, ours, peer, theirs, goal in (
                ("nodes in rows", row, "nanoflann, 4 nearest", f"nanoflann:row/{sites}", in_rows),
                ("single nodes", f"heart:single/{sites}", "nanoflann, 4 nearest", f"nanoflann:row/{sites}", single),
                ("nodes in rows", row, "scipy cKDTree + numpy", f"scipy:row/{sites}", None),
                ("nodes in rows", row, "the plain algorithm", f"heart:plain/row/{sites}", None)):
            yield Comparison(f"{what}, {named}", peer, ours, theirs, goal, same_result=True)


_SURFACE = "surface of 10,000 cells"
_LOAD = "load a file, 32767 sites"

COMPARISONS = (
    *_interpolations(),
    Comparison("colour map", "matplotlib pcolormesh + cKDTree", "pictures:map", "scipy:map", 8),
    Comparison("colour map", "the plain algorithm, a drawPolygon a cell", "pictures:map", "pictures:plain/map", 4),
    Comparison("colour map", "the renderer, a drawPolygon a cell", "pictures:map", "pictures:polygons/map"),
    Comparison("colour map", "Qwt spectrogram, ready matrix", "pictures:map", "qwt:map"),
    Comparison("colour map", "gnuplot, ready matrix", "pictures:map", "gnuplot:map"),
    Comparison(_SURFACE, "matplotlib plot_surface + cKDTree", "pictures:surface", "scipy:surface", 8),
    Comparison(_SURFACE, "gnuplot pm3d, ready matrix", "pictures:surface", "gnuplot:surface"),
    Comparison(_LOAD, "numpy + statistics + cKDTree", "heart:load", "scipy:load", 8, same_result=True),
    Comparison(_LOAD, "nanoflann, building alone", "heart:load", "nanoflann:build/32767"),
    Comparison("colour map as PDF, time", "a polygon a cell", "pictures:pdf", "pictures:plain/pdf", 15),
    Comparison("colour map as PDF, bytes", "a polygon a cell", "pictures:pdf", "pictures:plain/pdf", 25,
               of_results=True),
)

CONTROLS = ("Plot2D", "Plot2DS", "Plot2DC", "Plot2DN", "Plot2DB", "Plot3D", "Plot3DS", "Histogram", "LineScan")

# Whole redraws of the nine controls and steps of a drag, next to the same work without any drawing.
DRAWINGS = tuple(f"redraw/{control}" for control in CONTROLS) + tuple(
    f"drag/{control}" for control in ("Plot2DB", "Plot3D", "Plot3DS"))
