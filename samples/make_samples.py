#!/usr/bin/env python3
"""Makes the sample grids beside this script. The same call makes the same cells every time."""

import os

import numpy as np
from osgeo import gdal, osr

gdal.UseExceptions()
FOLDER = os.path.dirname(os.path.abspath(__file__))
COMPRESSED = ["COMPRESS=DEFLATE", "ZLEVEL=9", "TILED=YES", "BLOCKXSIZE=128", "BLOCKYSIZE=128"]


def waves(rows, columns, octaves, seed):
    """Smooth hills between 0 and 1: a sum of sine waves, each octave finer and lower."""
    random = np.random.RandomState(seed)
    y, x = np.mgrid[0:rows, 0:columns] / float(columns)
    total = np.zeros((rows, columns))
    for octave in range(octaves):
        for _ in range(6):
            angle, phase = random.uniform(0, 2 * np.pi, 2)
            wave = 2 * np.pi * 1.7 * 1.8**octave
            total += 0.55**octave * np.sin(wave * (x * np.cos(angle) + y * np.sin(angle)) + phase)
    return (total - total.min()) / (total.max() - total.min())


def create(name, bands, kind, epsg, corner, cell, options):
    rows, columns = bands[0].shape
    dataset = gdal.GetDriverByName("GTiff").Create(
        os.path.join(FOLDER, name), columns, rows, len(bands), kind, options)
    system = osr.SpatialReference()
    system.ImportFromEPSG(epsg)
    dataset.SetProjection(system.ExportToWkt())
    dataset.SetGeoTransform((corner[0], cell, 0, corner[1], 0, -cell))
    for index, cells in enumerate(bands):
        dataset.GetRasterBand(index + 1).WriteArray(cells)
    return dataset


def hills():
    """Heights in metres with a lake of NoData, and an overview inside the file."""
    heights = 180 + 900 * waves(300, 400, 6, seed=7) ** 1.6
    heights = np.round(heights * 4) / 4  # quarters of a metre compress well
    lake = heights < 235
    cells = np.where(lake, -9999, heights).astype(np.float32)
    dataset = create("hills.tif", [cells], gdal.GDT_Float32, 32637, (412000, 6187000), 25,
                     COMPRESSED + ["PREDICTOR=3"])
    band = dataset.GetRasterBand(1)
    band.SetDescription("height")
    band.SetNoDataValue(-9999)
    gdal.SetConfigOption("COMPRESS_OVERVIEW", "DEFLATE")
    dataset.BuildOverviews("NEAREST", [2])


def photo():
    """Three bands of colour; outside a disc all are NoData (0)."""
    side = 300
    y, x = np.mgrid[0:side, 0:side]
    inside = (x - 149.5) ** 2 + (y - 149.5) ** 2 < 145**2
    bands = []
    for seed, low, high in ((11, 60, 190), (12, 90, 200), (13, 40, 130)):
        shade = low + (high - low) * waves(side, side, 4, seed)
        bands.append(np.where(inside, np.round(shade / 2) * 2, 0).astype(np.uint8))
    dataset = create("photo.tif", bands, gdal.GDT_Byte, 3857, (4183000, 7509000), 10,
                     COMPRESSED + ["PREDICTOR=2", "PHOTOMETRIC=RGB"])
    for index in range(3):
        dataset.GetRasterBand(index + 1).SetNoDataValue(0)


def classes():
    """Kinds of ground, 0 to 4, with a palette."""
    ground = np.digitize(waves(200, 200, 3, seed=21), [0.3, 0.5, 0.65, 0.8]).astype(np.uint8)
    dataset = create("classes.tif", [ground], gdal.GDT_Byte, 4326, (36.0, 56.0), 0.005, COMPRESSED)
    palette = gdal.ColorTable()
    for value, color in enumerate([(38, 115, 178), (199, 224, 180), (107, 174, 92),
                                   (222, 196, 132), (166, 120, 90)]):
        palette.SetColorEntry(value, color + (255,))
    dataset.GetRasterBand(1).SetColorTable(palette)


if __name__ == "__main__":
    hills()
    photo()
    classes()
