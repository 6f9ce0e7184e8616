# SPDX-License-Identifier: MIT
"""Grids as they are presented, and which sample of a grid lies under which pixel of the page.

Arrays run upwards (row 0 is the lowest), as coordinates do.
"""

import dataclasses
import math

import numpy
import pyproj
from osgeo import gdal

gdal.UseExceptions()

ROLES = {
    gdal.GCI_RedBand: "red",
    gdal.GCI_GreenBand: "green",
    gdal.GCI_BlueBand: "blue",
    gdal.GCI_AlphaBand: "alpha",
    gdal.GCI_GrayIndex: "gray",
    gdal.GCI_PaletteIndex: "palette",
}
LATTICE_STEP = 25


@dataclasses.dataclass(frozen=True)
class Nudge:
    """Where double arithmetic decides on a tie, either answer is right.

    Each number is -1, 0 or 1: the quantity is moved down, not at all or up by far less than any
    grid or picture can show before it is rounded.
    """

    x: int = 0  # sample coordinates
    y: int = 0
    step: int = 0  # nodes per pixel
    low: int = 0  # corners of the window
    high: int = 0
    count: int = 0  # number of samples

    SAMPLE = 1e-6
    WINDOW = 1e-7
    RELATIVE = 1e-11


def rounded(value):
    """To a whole pixel, half up. What misses a tie by double arithmetic alone counts as the tie."""
    return math.floor(value + 0.5 + 1e-6)


def transformed(matrix, x, y):
    return (
        matrix[0, 0] * x + matrix[0, 1] * y + matrix[0, 2],
        matrix[1, 0] * x + matrix[1, 1] * y + matrix[1, 2],
    )


def bounds(xs, ys):
    return (float(min(xs)), float(min(ys)), float(max(xs)), float(max(ys)))


def box_transformed(matrix, box):
    """The box of all four transformed corners."""
    x0, y0, x1, y1 = box
    corners = [transformed(matrix, x, y) for x in (x0, x1) for y in (y0, y1)]
    return bounds([c[0] for c in corners], [c[1] for c in corners])


def box_to_box(a, b):
    sx = (b[2] - b[0]) / (a[2] - a[0])
    sy = (b[3] - b[1]) / (a[3] - a[1])
    return numpy.array([[sx, 0, b[0] - a[0] * sx], [0, sy, b[1] - a[1] * sy], [0, 0, 1.0]])


def sampled(cells, samples):
    return numpy.floor((numpy.arange(samples) + 0.5) * cells / samples + 1e-10).astype(int)


class Grid:
    """A file, presented with its rows from the south. Index (0, 0) is the middle of a cell."""

    def __init__(self, path):
        self.dataset = gdal.Open(path)
        self.nx, self.ny = self.dataset.RasterXSize, self.dataset.RasterYSize
        g = self.dataset.GetGeoTransform(can_return_null=True)
        if g is None:
            g = (0.0, 1.0, 0.0, float(self.ny), 0.0, -1.0)
        self.flipped = g[5] < 0
        cells = numpy.array([[g[1], g[2], g[0]], [g[4], g[5], g[3]], [0, 0, 1.0]])
        if self.flipped:
            cells = cells @ numpy.array([[1, 0, 0], [0, -1, self.ny], [0, 0, 1.0]])
        self.index_to_map = cells @ numpy.array([[1, 0, 0.5], [0, 1, 0.5], [0, 0, 1.0]])
        self.extent = box_transformed(cells, (0, 0, self.nx, self.ny))
        self.projection = self.dataset.GetProjection()
        self.bands = [self.dataset.GetRasterBand(i + 1) for i in range(self.dataset.RasterCount)]
        self.roles = [ROLES.get(b.GetColorInterpretation()) for b in self.bands]

    def field(self, name):
        names = [b.GetDescription() or f"Band {i + 1}" for i, b in enumerate(self.bands)]
        if name in names:
            return names.index(name)
        folded = [n.lower() for n in names]
        return folded.index(name.lower()) if name.lower() in folded else -1

    def read(self, index, window):
        """Samples of one window in the band's own type, lowest row first.

        Each lies in the middle of its step; between two cells it belongs to the upper one, in the
        order of the presented rows. What overviews have for it, GDAL tells.
        """
        y = self.ny - window.y - window.ny if self.flipped else window.y
        box = (window.x, y, window.nx, window.ny)
        if self.bands[index].GetOverviewCount() == 0:
            cells = self.bands[index].ReadAsArray(*box)[:: -1 if self.flipped else 1]
            rows = sampled(window.ny, window.samples_y)
            return cells[rows][:, sampled(window.nx, window.samples_x)]
        if self.flipped and window.ny != window.samples_y:
            box = (window.x, y - 1e-6, window.nx, window.ny)
        samples = self.bands[index].ReadAsArray(
            *box, window.samples_x, window.samples_y, resample_alg=gdal.GRIORA_NearestNeighbour
        )
        return samples[:: -1 if self.flipped else 1]

    def doubles(self, index, window):
        samples = self.read(index, window)
        return samples.real.astype(float), self.valid(index, samples.real.astype(float))

    def bytes(self, index, window):
        samples = self.read(index, window)
        return samples, self.valid(index, samples.astype(float))

    def valid(self, index, samples):
        nodata = self.bands[index].GetNoDataValue()
        if nodata is None:
            return numpy.ones(samples.shape, bool)
        finite = numpy.isfinite(samples)
        if not math.isfinite(nodata):
            return finite
        known = numpy.where(finite, samples, 0.0)
        tolerance = numpy.maximum(1e-6, numpy.maximum(abs(known), abs(nodata)) * 1e-5)
        return finite & (abs(known - nodata) > tolerance)

    def range(self, index):
        """Minimum and maximum of the valid finite cells, 0 and 0 if there are none."""
        samples, valid = self.doubles(index, Window(0, 0, self.nx, self.ny, self.nx, self.ny))
        known = samples[valid & numpy.isfinite(samples)]
        return (float(known.min()), float(known.max())) if known.size else (0.0, 0.0)


@dataclasses.dataclass(frozen=True)
class Window:
    """A window of the presented grid and the number of samples to take from it."""

    x: int
    y: int
    nx: int
    ny: int
    samples_x: int
    samples_y: int


class Reprojection:
    """Both ways between a layer and a scene; x is always east."""

    def __init__(self, source, target):
        self.needed = bool(source and target)
        if self.needed:
            a, b = pyproj.CRS.from_user_input(source), pyproj.CRS.from_user_input(target)
            self.needed = not a.equals(b, ignore_axis_order=True)
        if self.needed:
            self.forward = pyproj.Transformer.from_crs(a, b, always_xy=True).transform
            self.back = pyproj.Transformer.from_crs(b, a, always_xy=True).transform

    @staticmethod
    def box(transform, box):
        """The box of 21 points an edge; None if none of them has an image."""
        x0, y0, x1, y1 = box
        xs, ys = numpy.linspace(x0, x1, 22)[:-1], numpy.linspace(y0, y1, 22)[:-1]
        edge_x = numpy.concatenate([xs, 0 * ys + x1, x1 + x0 - xs, 0 * ys + x0])
        edge_y = numpy.concatenate([0 * xs + y0, ys, 0 * xs + y1, y1 + y0 - ys])
        tx, ty = transform(edge_x, edge_y)
        there = numpy.isfinite(tx) & numpy.isfinite(ty)
        return bounds(tx[there], ty[there]) if there.any() else None


def widened(box, size):
    """The box in the shape of the picture, with the same centre."""
    x0, y0, x1, y1 = box
    width, height = x1 - x0, y1 - y0
    wanted = size[0] / size[1]
    if width < height * wanted:
        width = height * wanted
    else:
        height = width / wanted
    cx, cy = (x0 + x1) / 2, (y0 + y1) / 2
    return (cx - width / 2, cy - height / 2, cx + width / 2, cy + height / 2)


@dataclasses.dataclass
class Placement:
    """Where a layer lies on the page: its box, the low corner and the size of its bitmap."""

    box: tuple
    left: int
    bottom: int
    nx: int
    ny: int


def place(extent, view, size):
    """None if the layer is off the page."""
    x0, y0 = max(extent[0], view[0]), max(extent[1], view[1])
    x1, y1 = min(extent[2], view[2]), min(extent[3], view[3])
    if not (x0 < x1 and y0 < y1):
        return None
    to_page = box_to_box(view, (0, 0, *size))
    p0, p1 = transformed(to_page, x0, y0), transformed(to_page, x1, y1)
    left, right = whole_side(p0[0], p1[0])
    bottom, top = whole_side(p0[1], p1[1])
    return Placement((x0, y0, x1, y1), left, bottom, right - left, top - bottom)


def whole_side(low, high):
    """Both ends to whole pixels; what would vanish takes the pixel that it begins in."""
    a, b = rounded(low), rounded(high)
    return (a, b) if a < b else (math.floor(low), math.floor(low) + 1)


def map_to_nodes(grid):
    """Moved by half a cell, so that the floor of a coordinate is the index of the nearest node."""
    matrix = numpy.linalg.inv(grid.index_to_map)
    matrix[0, 2] += 0.5
    matrix[1, 2] += 0.5
    return matrix


def window_of(grid, placement, reprojection, interpolate, nudge=Nudge()):
    """The nodes that a bitmap needs and how many samples stand for them; None if there are none."""
    box = placement.box
    if reprojection.needed:
        box = Reprojection.box(reprojection.back, box)
        if box is None:
            return None
    matrix = map_to_nodes(grid)
    area = (box[2] - box[0]) * (box[3] - box[1]) / (placement.nx * placement.ny)
    determinant = matrix[0, 0] * matrix[1, 1] - matrix[0, 1] * matrix[1, 0]
    step = math.sqrt(abs(determinant)) * math.sqrt(abs(area)) * (1 + nudge.step * Nudge.RELATIVE)
    step = max(1.0, step)
    nodes = box_transformed(matrix, box)
    pad = 1.0 if interpolate else 0.0

    def along(low, high, count):
        low += nudge.low * Nudge.WINDOW
        high += nudge.high * Nudge.WINDOW
        low = math.floor(math.floor(low / step) * step) - pad
        high = math.ceil(math.ceil(high / step) * step) + pad
        width = high - low
        first, last = max(0, low), min(high, count - 1)
        if first > last:
            return None
        samples = math.ceil(width / step) * (last - first) / width + 1.0
        samples = max(1, int(samples + nudge.count * Nudge.WINDOW))
        return int(first), int(last - first + 1), samples

    x, y = along(nodes[0], nodes[2], grid.nx), along(nodes[1], nodes[3], grid.ny)
    if x is None or y is None:
        return None
    return Window(x[0], y[0], x[1], y[1], x[2], y[2])


def sample_coordinates(grid, placement, window, reprojection):
    """Sample coordinates of the low corner of each pixel; NaN where nothing is mapped."""
    pixel_to_map = box_to_box((0, 0, placement.nx, placement.ny), placement.box)
    nodes = (window.x, window.y, window.x + window.nx, window.y + window.ny)
    samples = (0, 0, window.samples_x, window.samples_y)
    map_to_sample = box_to_box(nodes, samples) @ map_to_nodes(grid)
    x, y = numpy.meshgrid(numpy.arange(placement.nx, dtype=float),
                          numpy.arange(placement.ny, dtype=float))  # fmt: skip
    if not reprojection.needed:
        return transformed(map_to_sample @ pixel_to_map, x, y)
    columns = numpy.arange(-LATTICE_STEP, placement.nx + LATTICE_STEP, LATTICE_STEP, dtype=float)
    rows = numpy.arange(-LATTICE_STEP, placement.ny + LATTICE_STEP, LATTICE_STEP, dtype=float)
    vertex_x, vertex_y = reprojection.back(
        *transformed(pixel_to_map, *numpy.meshgrid(columns, rows))
    )
    vertices = transformed(map_to_sample, vertex_x, vertex_y)
    i, j = (x // LATTICE_STEP + 1).astype(int), (y // LATTICE_STEP + 1).astype(int)
    u, v = x / LATTICE_STEP % 1, y / LATTICE_STEP % 1
    return tuple(in_triangles(numpy.asarray(vertex), i, j, u, v) for vertex in vertices)


def in_triangles(vertex, i, j, u, v):
    """Linear in each of the two triangles that share the diagonal from the cell's low corner."""
    with numpy.errstate(invalid="ignore"):
        low, high = vertex[j, i], vertex[j + 1, i + 1]
        right, left = vertex[j, i + 1], vertex[j + 1, i]
        below = low + u * (right - low) + v * (high - right)
        above = low + v * (left - low) + u * (high - left)
    return numpy.where(u >= v, below, above)
