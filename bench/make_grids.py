#!/usr/bin/python3
"""Makes the grids that bench/run measures on, those that are absent: make_grids.py FOLDER.

One seeded surface of value noise, 10 m cells, EPSG:32637, tiles of 256 x 256; NoData -9999 in blobs.
  terrain_{1000,20000}.tif      float32 without overviews
  terrain_{1000,20000}_ovr.tif  the same with nearest overviews 2 to 128
  rgb_10000_ovr.tif             three byte bands with overviews
  classes_5000.tif              byte, values 1 to 40, NoData 0
"""
import os
import shutil
import subprocess
import sys

import numpy as np
from osgeo import gdal, osr

gdal.UseExceptions()
WORLD = 20000
STRIP = 256


class Noise:
    """Octaves of random lattices, joined by smoothstep; rows come strip by strip."""

    def __init__(self, size, seed, periods):
        self.size = size
        self.octaves = []
        for period in periods:
            side = WORLD // period + 2
            lattice = np.random.default_rng(seed * 1000 + period).random((side, side), np.float32)
            column, share = np.divmod(np.arange(size), period)
            self.octaves.append((period, lattice, column, self.smooth(share / period)))

    @staticmethod
    def smooth(t):
        t = np.asarray(t, np.float32)
        return t * t * (3 - 2 * t)

    def strip(self, first, rows):
        """Rows first .. first + rows - 1, about 0 .. 1."""
        out = np.zeros((rows, self.size), np.float32)
        weight = 0.0
        for period, lattice, column, fx in self.octaves:
            row, share = np.divmod(np.arange(first, first + rows), period)
            fy = self.smooth(share / period)[:, None]
            amplitude = period ** 0.9
            weight += amplitude
            for r in np.unique(row):
                low = lattice[r][column] * (1 - fx) + lattice[r][column + 1] * fx
                high = lattice[r + 1][column] * (1 - fx) + lattice[r + 1][column + 1] * fx
                at = row == r
                out[at] += np.float32(amplitude) * (low + (high - low) * fy[at])
        return out / np.float32(weight)


def create(path, size, bands, kind, nodata=None, options=()):
    data = gdal.GetDriverByName("GTiff").Create(
        path, size, size, bands, kind, ["TILED=YES", "BLOCKXSIZE=256", "BLOCKYSIZE=256", *options])
    system = osr.SpatialReference()
    system.ImportFromEPSG(32637)
    data.SetProjection(system.ExportToWkt())
    data.SetGeoTransform((400000.0, 10, 0, 6200000.0, 0, -10))
    for band in range(bands):
        if nodata is not None:
            data.GetRasterBand(band + 1).SetNoDataValue(nodata)
    return data


def strips(size):
    return ((y, min(STRIP, size - y)) for y in range(0, size, STRIP))


def terrain(path, size):
    data = create(path, size, 1, gdal.GDT_Float32, -9999)
    heights = Noise(size, 1, [4096 >> k for k in range(10)])
    blobs = Noise(size, 2, (256, 64))
    for y, rows in strips(size):
        z = heights.strip(y, rows) * np.float32(1500)
        z[blobs.strip(y, rows) > 0.889] = -9999
        data.GetRasterBand(1).WriteArray(z, 0, y)


def rgb(path, size):
    data = create(path, size, 3, gdal.GDT_Byte, options=["PHOTOMETRIC=RGB"])
    surfaces = [Noise(size, seed, [512 >> k for k in range(7)]) for seed in (3, 4, 5)]
    for y, rows in strips(size):
        for band, surface in enumerate(surfaces):
            values = np.clip(surface.strip(y, rows) * 255, 0, 255).astype(np.uint8)
            data.GetRasterBand(band + 1).WriteArray(values, 0, y)


def classes(path, size):
    data = create(path, size, 1, gdal.GDT_Byte, 0)
    surface, blobs = Noise(size, 6, [1024 >> k for k in range(6)]), Noise(size, 2, (256, 64))
    for y, rows in strips(size):
        values = (np.clip(surface.strip(y, rows), 0, 1) * 400).astype(np.int32) * 7 % 40 + 1
        values[blobs.strip(y, rows) > 0.889] = 0
        data.GetRasterBand(1).WriteArray(values.astype(np.uint8), 0, y)


def make(folder, name, function, *arguments):
    path = os.path.join(folder, name)
    if not os.path.exists(path):
        print("making", path, flush=True)
        part = path + ".part.tif"
        function(part, *arguments)
        os.rename(part, path)
    return path


def with_overviews(path, source):
    shutil.copyfile(source, path)
    subprocess.run(["gdaladdo", "-q", "-r", "nearest", path, *"2 4 8 16 32 64 128".split()],
                   check=True)


def main(folder):
    os.makedirs(folder, exist_ok=True)
    for size in (1000, 20000):
        plain = make(folder, "terrain_%d.tif" % size, terrain, size)
        make(folder, "terrain_%d_ovr.tif" % size, with_overviews, plain)
    make(folder, "rgb_10000_ovr.tif", lambda path: (rgb(path, 10000), subprocess.run(
        ["gdaladdo", "-q", "-r", "nearest", path, *"2 4 8 16 32 64 128".split()], check=True)))
    make(folder, "classes_5000.tif", classes, 5000)


if __name__ == "__main__":
    main(sys.argv[1])
