# SPDX-License-Identifier: MIT
"""Small made-up grids and the ways to draw them. The same number gives the same case."""

import dataclasses
import functools
import math
import os
import random

import numpy
from osgeo import gdal, osr

from reference import Look

TYPES = {
    "Byte": (gdal.GDT_Byte, numpy.uint8),
    "UInt16": (gdal.GDT_UInt16, numpy.uint16),
    "Int16": (gdal.GDT_Int16, numpy.int16),
    "UInt32": (gdal.GDT_UInt32, numpy.uint32),
    "Int32": (gdal.GDT_Int32, numpy.int32),
    "UInt64": (gdal.GDT_UInt64, numpy.uint64),
    "Int64": (gdal.GDT_Int64, numpy.int64),
    "Float32": (gdal.GDT_Float32, numpy.float32),
    "Float64": (gdal.GDT_Float64, numpy.float64),
    "CFloat32": (gdal.GDT_CFloat32, numpy.complex64),
}
SIZES = [(1, 1), (1, 7), (7, 1), (3, 2), (10, 10), (64, 48), (255, 257), (600, 400)]
LAYOUTS = {
    "strips": [],
    "one row": ["BLOCKYSIZE=1"],
    "tiles": ["TILED=YES", "BLOCKXSIZE=16", "BLOCKYSIZE=32"],
    "big tiles": ["TILED=YES", "BLOCKXSIZE=128", "BLOCKYSIZE=128"],
    "deflate": ["TILED=YES", "BLOCKXSIZE=64", "BLOCKYSIZE=64", "COMPRESS=DEFLATE"],
    "lzw strips": ["COMPRESS=LZW", "BLOCKYSIZE=13"],
    "bands apart": ["INTERLEAVE=BAND", "TILED=YES", "BLOCKXSIZE=32", "BLOCKYSIZE=32"],
    "big-endian": ["ENDIANNESS=BIG"],
    "sparse": ["TILED=YES", "BLOCKXSIZE=32", "BLOCKYSIZE=32", "SPARSE_OK=TRUE"],
}
UTM = "EPSG:32637"
# A geotransform of (columns, rows); exact ones have only whole and halved numbers.
PLACES = {
    "whole": lambda nx, ny: (500000, 1, 0, 6000000 + ny, 0, -1),
    "halves": lambda nx, ny: (12.5, 0.5, 0, -7.25, 0, -0.5),
    "thirty": lambda nx, ny: (399960, 30, 0, 6000000, 0, -30),
    "oblong": lambda nx, ny: (-1000, 2, 0, 300, 0, -0.75),
    "degrees": lambda nx, ny: (37.1 / 3, 1 / 1200, 0, 55.7, 0, -1 / 1200),
    "tiny": lambda nx, ny: (500000.1, 0.001, 0, 5000000.3, 0, -0.001),
    "south-up": lambda nx, ny: (500000, 10, 0, 6000000, 0, 10),
    "westward": lambda nx, ny: (500000, -10, 0, 6000000, 0, -10),
    "none": lambda nx, ny: None,
}
IMAGE_ROLES = {
    "gray": [gdal.GCI_GrayIndex],
    "gray and alpha": [gdal.GCI_GrayIndex, gdal.GCI_AlphaBand],
    "palette": [gdal.GCI_PaletteIndex],
    "rgb": [gdal.GCI_RedBand, gdal.GCI_GreenBand, gdal.GCI_BlueBand],
    "rgba": [gdal.GCI_RedBand, gdal.GCI_GreenBand, gdal.GCI_BlueBand, gdal.GCI_AlphaBand],
    "bgr": [gdal.GCI_BlueBand, gdal.GCI_GreenBand, gdal.GCI_RedBand],
    "no blue": [gdal.GCI_RedBand, gdal.GCI_GreenBand, gdal.GCI_AlphaBand],
    "rgb and gray": [gdal.GCI_GrayIndex, gdal.GCI_RedBand, gdal.GCI_GreenBand, gdal.GCI_BlueBand],
}


@dataclasses.dataclass
class Case:
    name: str
    layers: list = dataclasses.field(default_factory=list)  # (path, Look)
    size: tuple = (64, 48)
    extent: tuple = None
    crs: str = None
    background: tuple = None
    automatic: bool = False  # no option names the way of drawing
    name_field: bool = True


def rotated(degrees, cell=10.0, flip=-1):
    c, s = math.cos(math.radians(degrees)) * cell, math.sin(math.radians(degrees)) * cell
    return lambda nx, ny: (500000, c, -s * flip, 6000000, s, c * flip)


def field_data(rng, nx, ny, kind, levels=0):
    """A smooth field with some noise, spread over much of the type; of so many values if asked."""
    noise = numpy.random.default_rng(rng.getrandbits(32))
    x, y = numpy.meshgrid(numpy.linspace(0, 3, nx), numpy.linspace(0, 2, ny))
    field = numpy.sin(x * rng.uniform(1, 3)) + numpy.cos(y * rng.uniform(1, 3))
    field = (field + noise.uniform(-0.3, 0.3, field.shape) + 2.5) / 5
    if levels:
        field = numpy.round(field * levels) / levels
    if numpy.dtype(kind).kind in "iu":
        low, high = (0, 200) if numpy.dtype(kind).itemsize == 1 else (0, 30000)
        if numpy.dtype(kind).kind == "i":
            low = -high
        return (low + field * (high - low)).astype(kind)
    return (field * 2000 - 500).astype(kind)


def nodata_of(rng, kind, how, data):
    """A NoData value of some sort, put into the data where it fits; None for none."""
    floating = numpy.dtype(kind).kind in "fc"
    value = {
        "none": None, "usual": -9999.0 if numpy.dtype(kind).kind != "u" else 255.0, "zero": 0.0,
        "nan": math.nan, "inf": math.inf, "cannot be": 300.5 if floating else -1e10,
        "lowest": -3.4028234663852886e38, "near": 100000.0,
    }[how]  # fmt: skip
    holes = numpy.random.default_rng(rng.getrandbits(32)).integers(0, 100, data.shape)
    if value is not None and (floating or numpy.iinfo(kind).min <= value <= numpy.iinfo(kind).max):
        data[holes < 10] = kind(value)
    if how == "near" and floating:
        data[holes == 10] = kind(100000.9)  # within the tolerance
        data[holes == 11] = kind(100001.1)  # beyond it
    if how == "zero" and floating:
        data[holes == 10] = kind(5e-7)
        data[holes == 11] = kind(2e-6)
    if floating:
        data[holes == 12] = kind(math.nan)
        data[holes == 13] = kind(math.inf)
        data[holes == 14] = kind(-math.inf)
    return value


def color(rng):
    return (*(rng.randrange(256) for _ in range(3)), rng.choice([0] * 6 + [128, 200, 255]))


def color_text(c):
    return "#" + "".join(f"{v:02x}" for v in (*c[:3], 255 - c[3]))[: 6 if c[3] == 0 else 8]


class Maker:
    """Writes the files of a case into a folder."""

    def __init__(self, folder, number):
        self.folder, self.number, self.count = folder, number, 0
        self.rng = random.Random(number)

    def write(self, arrays, type_name, place, crs=None, nodata=None, layout="strips", roles=None,
              palette=None, overviews=None, names=()):  # fmt: skip
        self.count += 1
        path = os.path.join(self.folder, f"{self.number}_{self.count}.tif")
        ny, nx = arrays[0].shape
        options = LAYOUTS[layout] + (["PHOTOMETRIC=MINISBLACK"] if len(arrays) > 1 else [])
        dataset = gdal.GetDriverByName("GTiff").Create(
            path, nx, ny, len(arrays), TYPES[type_name][0], options
        )
        transform = PLACES.get(place, place)(nx, ny) if isinstance(place, str) else place(nx, ny)
        if transform:
            dataset.SetGeoTransform(transform)
        if crs:
            system = osr.SpatialReference()
            system.SetFromUserInput(crs)
            dataset.SetProjection(system.ExportToWkt())
        for i, array in enumerate(arrays):
            band = dataset.GetRasterBand(i + 1)
            if roles:
                band.SetColorInterpretation(roles[i])
            if palette:
                table = gdal.ColorTable()
                for entry, c in enumerate(palette):
                    table.SetColorEntry(entry, c)
                band.SetColorTable(table)
            if names:
                band.SetDescription(names[i])
            if nodata is not None:
                band.SetNoDataValue(int(nodata) if "Int64" in type_name else nodata)
            band.WriteArray(array)
        if overviews:
            dataset.FlushCache()
            dataset.BuildOverviews(overviews, [f for f in (2, 4, 8) if f < max(nx, ny)])
        return path

    def look(self, data, kind, **wanted):
        """A way to draw the data, with random colours."""
        rng = self.rng
        finite = data.real[numpy.isfinite(data.real)].astype(float)
        known = sorted(set(finite.ravel().tolist())) or [0.0]
        look = Look(field="Band 1", **wanted)
        if kind == "range":
            self.range_scale(look, known)
        elif kind == "values":
            picked = rng.sample(known, min(len(known), rng.randrange(1, 9)))
            # As near to the value as a match may be.
            look.values = tuple((v * (1 + rng.choice([0, 5e-10])), color(rng)) for v in picked)
        elif kind == "gray":
            look.draw, look.interpolate = "gray", False
            middle = known[0] + 1 + (known[-1] - known[0]) / 2
            look.limits = rng.choice([None, (known[0] + 0.37, middle)])
        else:
            look.simple = color(rng)
        if kind in ("range", "values") and rng.random() < 0.3:
            look.other = color(rng)
        return look

    def range_scale(self, look, known):
        rng = self.rng
        picked = rng.sample(known, min(len(known), rng.randrange(2, 9)))
        # Interpolated values reach a boundary that is a value only by the luck of rounding.
        shift = 0.01234 if look.interpolate else rng.choice([0, 0, 0.5])
        breaks = sorted({v + shift for v in picked} | {known[0] - 1.25})
        look.breaks = tuple(breaks)
        count = len(breaks) + 1
        tails = rng.random() < 0.7
        hidden = () if tails else (0, count - 1)
        look.colors = tuple(None if i in hidden else color(rng) for i in range(count))


def number_text(value):
    return repr(float(value))


def arguments(case):
    """The command line of a case without program and output; one look serves all layers."""
    look = case.layers[0][1]
    a = ["render", *[path for path, _ in case.layers], "--size", f"{case.size[0]}x{case.size[1]}"]
    if not case.automatic:
        a += ["--draw", look.draw]
    if case.name_field and not look.simple and look.draw in ("scale", "gray"):
        a += ["--field", look.field]
    if look.breaks:
        colors = look.colors if look.colors[0] else look.colors[1:-1]
        a += ["--breaks=" + ",".join(map(number_text, look.breaks))]
        a += ["--colors=" + ",".join(map(color_text, colors))]
    if look.values:
        a += ["--values=" + ",".join(f"{number_text(v)}={color_text(c)}" for v, c in look.values)]
    colors = {"--other": look.other, "--simple": look.simple, "--background": case.background}
    a += [f"{option}={color_text(c)}" for option, c in colors.items() if c]
    numbers = {"--limits": look.limits, "--extent": case.extent}
    a += [f"{option}=" + ",".join(map(number_text, n)) for option, n in numbers.items() if n]
    if look.rgb:
        a += ["--rgb=" + ",".join(look.rgb)]
    if look.interpolate:
        a += ["--interpolate"]
    if look.transparency:
        a += ["--transparency", str(look.transparency)]
    if case.crs:
        a += ["--crs", case.crs]
    return a


def picture_size(nx, ny, cells_per_pixel):
    """Of a whole grid at about so many cells a pixel, with a margin on two sides."""
    def side(n):
        return max(2, min(260, round(n / cells_per_pixel)))
    return side(nx) + 3, side(ny)


def one(maker, title, type_name=None, size=None, factor=None, nodata="none", layout="strips",
        place="whole", crs=None, overviews=None, kind=None, name_field=True, **wanted):  # fmt: skip
    """One layer of one field; what is not given is chosen."""
    rng = maker.rng
    type_name = type_name or rng.choice(["Byte", "Int16", "Float32"])
    cell = TYPES[type_name][1]
    nx, ny = size or rng.choice(SIZES[3:])
    kind = kind or rng.choice(["range", "range", "range", "gray", "values", "simple"])
    data = field_data(rng, nx, ny, cell, levels=10 if kind == "values" else 0)
    value = nodata_of(rng, cell, nodata, data)
    path = maker.write([data], type_name, place, crs, value, layout, [gdal.GCI_Undefined],
                       overviews=overviews)  # fmt: skip
    case = Case(f"{title}: {type_name} {nx}x{ny}", [(path, maker.look(data, kind, **wanted))],
                name_field=name_field)  # fmt: skip
    case.size = picture_size(nx, ny, factor or rng.choice([0.3, 1, 1, 2.3, 5]))
    return case


def in_format(maker, driver, ending, **wanted):
    """The same as `one` in a file of another format."""
    case = one(maker, f"format {driver}", **wanted)
    path, look = case.layers[0]
    copy = path[: -len("tif")] + ending
    gdal.GetDriverByName(driver).CreateCopy(copy, gdal.Open(path), strict=False)  # closed again
    dataset = gdal.Open(copy)
    look.field = dataset.GetRasterBand(1).GetDescription() or "Band 1"
    case.layers = [(copy, look)]
    return case


def image(maker, title, roles, nodata=None, automatic=False, **options):
    """The bands' own colours."""
    rng = maker.rng
    nx, ny = rng.choice(SIZES[3:])
    arrays = [field_data(rng, nx, ny, numpy.uint8) for _ in IMAGE_ROLES[roles]]
    palette = None
    if roles == "palette":
        palette = [(*color(rng)[:3], rng.choice([255, 255, 100, 0])) for _ in range(256)]
    path = maker.write(arrays, "Byte", "whole", None, nodata, roles=IMAGE_ROLES[roles],
                       palette=palette, **options)  # fmt: skip
    look = Look(draw="image", transparency=rng.choice([0, 0, 40]))
    size = picture_size(nx, ny, rng.choice([0.4, 1, 2.7]))
    name = f"{title}: {roles} {nx}x{ny}"
    return Case(name, [(path, look)], size, automatic=automatic)


def channels(maker, title):
    """Three of four named fields, found by names in whatever case."""
    rng = maker.rng
    nx, ny = rng.choice(SIZES[3:])
    type_name = rng.choice(["Byte", "UInt16", "Float32"])
    arrays = [field_data(rng, nx, ny, TYPES[type_name][1]) for _ in range(4)]
    nodata = nodata_of(rng, TYPES[type_name][1], rng.choice(["none", "usual", "zero"]), arrays[2])
    names = ["near infrared", "red", "Green", "blue"]
    path = maker.write(arrays, type_name, "halves", None, nodata, rng.choice(list(LAYOUTS)[:7]),
                       [gdal.GCI_Undefined] * 4, names=names)  # fmt: skip
    wanted = tuple(rng.sample(["Near Infrared", "red", "GREEN", "blue"], 3))
    look = Look(draw="rgb", rgb=wanted, limits=rng.choice([None, (3.3, 150.9)]))
    return Case(f"{title}: {type_name} {nx}x{ny}", [(path, look)], picture_size(nx, ny, 1.3))


def part(maker, title, share, shift, picture, **wanted):
    """Looks at a part: `share` of the grid's sides, its centre moved by `shift` sides."""
    case = one(maker, title, size=(255, 257), **wanted)
    g = PLACES["whole"](255, 257)
    cx, cy = g[0] + g[1] * 255 * (0.5 + shift[0]), g[3] + g[5] * 257 * (0.5 + shift[1])
    w, h = abs(g[1]) * 255 * share / 2, abs(g[5]) * 257 * share / 2
    case.extent, case.size = (cx - w, cy - h, cx + w, cy + h), picture
    return case


def turned(maker, degrees, flip):
    return one(maker, f"turned {degrees} {flip}", place=rotated(degrees, flip=flip), size=(64, 48),
               nodata="usual", factor=maker.rng.choice([0.4, 1.1, 2.2]))  # fmt: skip


def stacked(maker, crs=(None, None, None)):
    """Grids that lie over one another, the upper ones partly clear. One look serves all."""
    rng = maker.rng
    kind, transparency = rng.choice(["range", "gray", "simple"]), rng.choice([0, 30])
    first = one(maker, "stacked", "Float32", (64, 48), nodata="usual", crs=crs[0], kind=kind,
                transparency=transparency)  # fmt: skip
    look = first.layers[0][1]
    for system, place in zip(crs[1:], (lambda nx, ny: (500020.5, 0.5, 0, 6000060, 0, -0.75),
                                       lambda nx, ny: (499990, 2, 0, 6000030, 0, 2))):  # fmt: skip
        if system == "EPSG:4326":
            place = lambda nx, ny: (39.0001, 1e-5, 0, 54.1465, 0, -5e-6)
        data = field_data(rng, 50, 40, numpy.float32)
        first.layers.append((maker.write([data], "Float32", place, system, -9999), look))
    first.size = rng.choice([(120, 90), (97, 61)])
    first.background = rng.choice([None, (255, 255, 255, 0), (10, 200, 30, 100)])
    if look.draw == "gray":
        look.limits = (-400.3, 1300.9)
    return first


def reprojected(maker, source, target, place, factor, interpolate):
    size = maker.rng.choice([(64, 48), (255, 257)])
    case = one(maker, f"{source} in {target} {factor}", size=size, factor=factor, place=place,
               crs=source, interpolate=interpolate, nodata="usual")  # fmt: skip
    case.crs = target
    return case


REPROJECTED = [
    (UTM, "EPSG:3857", "thirty"),
    (UTM, "EPSG:4326", "thirty"),
    (UTM, "EPSG:32638", "thirty"),
    (UTM, "EPSG:4326", "south-up"),
    ("EPSG:4326", UTM, lambda nx, ny: (37, 0.01, 0, 56, 0, -0.01)),
    ("EPSG:4326", "EPSG:3857", lambda nx, ny: (-20, 0.25, 0, 60, 0, -0.25)),
    ("EPSG:3857", "EPSG:4326", lambda nx, ny: (4e6, 500, 0, 7e6, 0, -500)),
    ("EPSG:4326", "+proj=laea +lat_0=52 +lon_0=10", lambda nx, ny: (-10, 0.1, 0, 70, 0, -0.1)),
]
FORMATS = {
    "AAIGrid": "asc",
    "ENVI": "dat",
    "HFA": "img",
    "PNG": "png",
    "BMP": "bmp",
    "VRT": "vrt",
    "netCDF": "nc",
    "RST": "rst",
    "GSBG": "grd",
    "COG": "cog.tif",
}
VIEWS = [
    (0.3, (0, 0)),
    (0.5, (0.45, 0.1)),
    (0.5, (-0.6, -0.6)),
    (3, (0.2, 0)),
    (0.02, (0.1, 0.1)),
    (1, (5, 0)),
    (1, (1, 0)),
    (0.001, (0.031, 0.017)),
]
BOTH = (False, True)


def of_one_field():
    for type_name in TYPES:
        for size in SIZES:
            yield functools.partial(one, title="type", type_name=type_name, size=size)
    for factor in (0.2, 0.37, 0.5, 1, 1.01, 1.5, 2, 3.3, 7, 12.5, 25, 40):
        large = functools.partial(one, size=(600, 400), factor=factor)
        for layout in LAYOUTS:
            yield functools.partial(large, title=f"factor {factor} {layout}", layout=layout)
        for how in ("NEAREST", "AVERAGE"):
            yield functools.partial(large, title=f"factor {factor} overviews {how}",
                                    layout="tiles", overviews=how)  # fmt: skip
        yield functools.partial(large, title=f"factor {factor} interpolated", interpolate=True,
                                kind="range", nodata="usual")  # fmt: skip
    for how in ("usual", "zero", "nan", "inf", "cannot be", "lowest", "near"):
        for type_name in ("Byte", "Int16", "UInt16", "Int32", "Int64", "Float32", "Float64"):
            if how in ("usual", "zero", "cannot be") or "Float" in type_name:
                for interpolate in BOTH:
                    yield functools.partial(one, title=f"NoData {how}", type_name=type_name,
                                            nodata=how, interpolate=interpolate)  # fmt: skip
    for driver, ending in FORMATS.items():
        if gdal.GetDriverByName(driver):
            type_name = "Byte" if driver in ("PNG", "BMP") else "Float32"
            for place in ("whole", "south-up"):
                yield functools.partial(in_format, driver=driver, ending=ending, place=place,
                                        type_name=type_name, crs=UTM)  # fmt: skip
    for transparency in (0, 1, 33, 50, 99, 100):
        for kind in ("range", "values", "gray", "simple"):
            yield functools.partial(one, title=f"transparency {transparency} {kind}", kind=kind,
                                    transparency=transparency)  # fmt: skip
    for kind in ("range", "values", "gray", "simple"):
        for layout in LAYOUTS:
            yield functools.partial(one, title=f"unasked field, {kind}", kind=kind, layout=layout,
                                    name_field=False)  # fmt: skip


def of_images():
    for roles in IMAGE_ROLES:
        for layout in ("strips", "deflate", "bands apart"):
            yield functools.partial(image, title=f"image {layout}", roles=roles, layout=layout)
        for nodata in (0, 7, 255, -1):
            yield functools.partial(image, title=f"NoData {nodata}", roles=roles, nodata=nodata)
        yield functools.partial(image, title="unasked", roles=roles, automatic=True)
    for roles in ("rgb", "rgba", "gray"):
        yield functools.partial(image, title="overviews", roles=roles, overviews="AVERAGE",
                                layout="tiles")  # fmt: skip
    for _ in range(16):
        yield functools.partial(channels, title="channels")


def of_views():
    for place in PLACES:
        for factor in (0.4, 1, 2.6):
            for interpolate in BOTH:
                yield functools.partial(one, title=f"place {place} {factor}", place=place,
                                        factor=factor, interpolate=interpolate)  # fmt: skip
    for degrees in (15, 45, 90, 135, 200, 270, 301.5):
        for flip in (-1, 1):
            yield functools.partial(turned, degrees=degrees, flip=flip)
    for share, shift in VIEWS:
        for interpolate in BOTH:
            for picture in ((120, 90), (33, 101)):
                yield functools.partial(part, title=f"view {share} {shift}", share=share,
                                        shift=shift, interpolate=interpolate,
                                        picture=picture)  # fmt: skip
    for _ in range(20):
        yield stacked


def of_projections():
    for source, target, place in REPROJECTED:
        for factor in (0.4, 1.3, 4):
            for interpolate in BOTH:
                yield functools.partial(reprojected, source=source, target=target, place=place,
                                        factor=factor, interpolate=interpolate)  # fmt: skip
    for crs in ((UTM, UTM, None), (UTM, "EPSG:4326", None), (UTM, "EPSG:4326", UTM)):
        for _ in range(3):
            yield functools.partial(stacked, crs=crs)


def make_cases(folder, numbers=None):
    """(number, case) of all, or of the numbers given; the files go into the folder."""
    families = [*of_one_field(), *of_images(), *of_views(), *of_projections()]
    for number, family in enumerate(families):
        if numbers is None or number in numbers:
            yield number, family(Maker(folder, number))
