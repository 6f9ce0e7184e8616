# SPDX-License-Identifier: MIT
"""What a picture of grids must look like, worked out anew with numpy, GDAL and PROJ.

It shares no code with the product and is written for reading, not for speed: one function a stage,
whole arrays at once.
"""

import dataclasses
import itertools

import numpy

from geometry import Grid, Nudge, Reprojection, place, sample_coordinates, widened, window_of

INVISIBLE = (0, 0, 0, 255)


@dataclasses.dataclass
class Look:
    """How a layer wants to be drawn. Colours are r, g, b, transparency; None is invisible."""

    draw: str = "scale"  # scale, image, gray, rgb
    field: str = ""
    breaks: tuple = ()  # boundaries of a range scale
    colors: tuple = ()  # lower tail, classes, upper tail
    values: tuple = ()  # (value, colour) of a value scale
    other: tuple = None
    simple: tuple = None
    limits: tuple = None
    rgb: tuple = ()
    interpolate: bool = False
    transparency: int = 0


def nearest(values, valid, sx, sy):
    """Value of each pixel's sample, and whether there is one."""
    ny, nx = valid.shape
    with numpy.errstate(invalid="ignore"):
        inside = (sx >= 0) & (sy >= 0) & (sx < nx) & (sy < ny)
    ix = numpy.where(inside, sx, 0).astype(int)
    iy = numpy.where(inside, sy, 0).astype(int)
    return values[iy, ix], inside & valid[iy, ix]


def bilinear(values, valid, sx, sy):
    ny, nx = values.shape
    ux, uy = sx - 0.5, sy - 0.5
    with numpy.errstate(invalid="ignore"):
        inside = (ux >= 0) & (uy >= 0) & (ux < nx - 1) & (uy < ny - 1)
    if not inside.any():
        return numpy.zeros(sx.shape), inside
    ix = numpy.floor(numpy.where(inside, ux, 0)).astype(int)
    iy = numpy.floor(numpy.where(inside, uy, 0)).astype(int)
    fx, fy = numpy.where(inside, ux - ix, 0), numpy.where(inside, uy - iy, 0)
    total = numpy.zeros(sx.shape)
    for dx, dy in ((0, 0), (1, 0), (0, 1), (1, 1)):
        weight = (fx if dx else 1 - fx) * (fy if dy else 1 - fy)
        with numpy.errstate(invalid="ignore"):
            total = total + weight * values[iy + dy, ix + dx]
        inside = inside & valid[iy + dy, ix + dx]
    return total, inside


def by_range(look, values):
    """Row of each value: the lower tail, a class, the upper tail or, for NaN, the other."""
    breaks = numpy.array(look.breaks)
    rows = numpy.searchsorted(breaks, values, side="left")
    return painted(rows, numpy.isnan(values), look.colors, look.other)


def by_value(look, values):
    rows = numpy.full(values.shape, len(look.values))
    for row in reversed(range(len(look.values))):
        wanted = look.values[row][0]
        near = 1e-9 * numpy.maximum(abs(values), abs(wanted))
        with numpy.errstate(invalid="ignore"):
            rows[(values == wanted) | (abs(values - wanted) <= near)] = row
    infinite = numpy.isinf(values)
    rows[infinite] = len(look.values)
    colors = [c for _, c in look.values] + [look.other]
    return painted(rows, numpy.isnan(values), colors, look.other)


def painted(rows, other, colors, other_color):
    table = numpy.array([c or INVISIBLE for c in (*colors, other_color)], numpy.uint8)
    return table[numpy.where(other, len(colors), rows)]


def channel(values, limits):
    """0..255 between the limits, half up; NaN gives 0."""
    low, high = limits
    with numpy.errstate(invalid="ignore", over="ignore", divide="ignore"):
        if low == high:
            exact = numpy.where(values > low, 255.0, 0.0)
        else:
            exact = (values - low) / (high - low) * 255
        exact = numpy.clip(numpy.where(numpy.isnan(exact), 0, exact), 0, 255)
    return numpy.floor(exact + 0.5).astype(numpy.uint8)


def bitmap(pixels, there):
    return numpy.where(there[..., None], pixels, numpy.array(INVISIBLE, numpy.uint8))


def fill(grid, look, window, sx, sy):
    """Pixels r, g, b, transparency; None if the source has nothing to show in this way."""
    if look.draw == "scale":
        return fill_by_style(grid, look, window, sx, sy)
    if look.draw == "image":
        return fill_image(grid, window, sx, sy)
    names = (look.field,) if look.draw == "gray" else look.rgb
    fields = [grid.field(n) for n in names]
    if -1 in fields:
        return None
    parts, there = [], True
    for index in fields:
        values, known = nearest(*grid.doubles(index, window), sx, sy)
        parts.append(channel(values, look.limits or grid.range(index)))
        there = there & known
    return bitmap(stacked(parts if len(parts) == 3 else parts * 3), there)


def fill_by_style(grid, look, window, sx, sy):
    if look.simple:
        shape = (window.samples_y, window.samples_x)
        _, there = nearest(numpy.zeros(shape), numpy.ones(shape, bool), sx, sy)
        return bitmap(numpy.array(look.simple, numpy.uint8), there)
    index = grid.field(look.field)
    if index == -1:
        return None
    smooth = look.interpolate and look.breaks
    values, there = (bilinear if smooth else nearest)(*grid.doubles(index, window), sx, sy)
    values = numpy.where(there, values, 0.0)
    return bitmap((by_range if look.breaks else by_value)(look, values), there)


def fill_image(grid, window, sx, sy):
    last = {role: i for i, role in enumerate(grid.roles) if role}
    if {"red", "green", "blue"} <= last.keys() and len(grid.bands) > 1:
        names = ["red", "green", "blue"] + (["alpha"] if "alpha" in last else [])
        parts, there = [], True
        for name in names:
            part, known = nearest(*grid.bytes(last[name], window), sx, sy)
            parts.append(part)
            there = there & known
        alpha = 255 - parts[3] if len(parts) == 4 else None
        return bitmap(stacked(parts[:3], alpha), there)
    index = last.get("gray", last.get("palette"))
    if index is None:
        return None
    samples, valid = grid.bytes(index, window)
    palette = grid.bands[index].GetColorTable()
    if palette is not None:
        entries = numpy.zeros((256, 4), numpy.uint8)
        for i in range(palette.GetCount()):
            r, g, b, opacity = palette.GetColorEntry(i)
            entries[i] = (r, g, b, 255 - opacity)
        samples, there = nearest(samples, numpy.ones(valid.shape, bool), sx, sy)
        return bitmap(entries[samples], there)
    if grid.roles[index] == "palette":
        return None
    samples, there = nearest(samples, valid, sx, sy)
    return bitmap(stacked([samples] * 3), there)


def stacked(colors, transparency=None):
    if transparency is None:
        transparency = numpy.zeros(colors[0].shape, numpy.uint8)
    return numpy.stack([*colors, transparency], axis=-1)


class Scene:
    """Layers, lowest first, on a page of whole pixels."""

    def __init__(self, layers, size, extent=None, crs=None, background=None):
        self.layers = [(Grid(path), look) for path, look in layers]
        self.size = size
        self.background = background
        target = crs or self.layers[0][0].projection
        self.reprojections = [Reprojection(grid.projection, target) for grid, _ in self.layers]
        self.extents = [
            Reprojection.box(r.forward, grid.extent) if r.needed else grid.extent
            for (grid, _), r in zip(self.layers, self.reprojections)
        ]
        if extent is None:
            known = numpy.array([e for e in self.extents if e])
            extent = (*known[:, :2].min(axis=0), *known[:, 2:].max(axis=0))
        self.view = widened(extent, size)
        self.placements = [e and place(e, self.view, size) for e in self.extents]

    def exact(self):
        """Whether positions are those of one matrix, and not of a mesh or a turned grid."""
        turned = any(abs(g.index_to_map[0, 1]) + abs(g.index_to_map[1, 0]) for g, _ in self.layers)
        return not turned and not any(r.needed for r in self.reprojections)

    def windows(self, nudge=Nudge()):
        return tuple(
            p and window_of(grid, p, r, look.interpolate, nudge)
            for (grid, look), p, r in zip(self.layers, self.placements, self.reprojections)
        )

    def window_choices(self):
        """Windows that rounding may lead to; those without any nudge come first."""
        moves = itertools.product((0, -1, 1), repeat=4)
        nudges = [Nudge(step=s, low=l, high=h, count=c) for s, l, h, c in moves]
        return list(dict.fromkeys(self.windows(n) for n in nudges))

    def draw(self, windows, nudge=Nudge()):
        """Premultiplied red, green, blue and opacity from 0 to 1."""
        page = numpy.zeros((self.size[1], self.size[0], 4))
        if self.background:
            opacity = (255 - self.background[3]) / 255
            page[...] = [c / 255 * opacity for c in self.background[:3]] + [opacity]
        for (grid, look), p, r, window in zip(
            self.layers, self.placements, self.reprojections, windows
        ):
            if not p or not window:
                continue
            sx, sy = sample_coordinates(grid, p, window, r)
            sx, sy = sx + nudge.x * Nudge.SAMPLE, sy + nudge.y * Nudge.SAMPLE
            pixels = fill(grid, look, window, sx, sy)
            if pixels is not None:
                lay(page, pixels, p, (25500 - look.transparency * 255) // 100)
        return page


def lay(page, pixels, placement, alpha):
    """Source over, cut to the page."""
    rows = slice(placement.bottom, placement.bottom + placement.ny)
    columns = slice(placement.left, placement.left + placement.nx)
    below = page[rows, columns]
    height, width = below.shape[:2]
    pixels = pixels[:height, :width].astype(float)
    opacity = (255 - pixels[..., 3:]) / 255 * alpha / 255
    above = numpy.concatenate([pixels[..., :3] / 255 * opacity, opacity], axis=-1)
    page[rows, columns] = above + below * (1 - opacity)
