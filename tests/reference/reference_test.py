#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Answers of the reference that a person can check by hand."""

import tempfile
import unittest

import numpy
from osgeo import gdal

import geometry
import reference
from geometry import Nudge, Placement
from reference import Look, Scene

RED, GREEN, BLUE, BLACK = (255, 0, 0, 0), (0, 255, 0, 0), (0, 0, 255, 0), (0, 0, 0, 0)
FOUR = {"breaks": (0, 10, 20), "colors": (RED, GREEN, BLUE, BLACK)}


class reference_test(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)

    def grid(self, rows, transform=(0, 1, 0, 2, 0, -1), nodata=None):
        """A file with the rows as they are written here, the northern one first."""
        path = self.folder.name + "/grid.tif"
        cells = numpy.array(rows, numpy.float32)
        size = cells.shape[::-1]
        dataset = gdal.GetDriverByName("GTiff").Create(path, *size, 1, gdal.GDT_Float32)
        dataset.SetGeoTransform(transform)
        if nodata is not None:
            dataset.GetRasterBand(1).SetNoDataValue(nodata)
        dataset.WriteArray(cells)
        return path

    def drawn(self, path, size, extent=None, **look):
        """Letters of the picture's colours, the top row first; a dot is transparent."""
        scene = Scene([(path, Look(field="Band 1", **(look or FOUR)))], size, extent)
        page = scene.draw(scene.windows())
        names = {(1, 0, 0, 1): "r", (0, 1, 0, 1): "g", (0, 0, 1, 1): "b", (0, 0, 0, 1): "k"}
        return ["".join(names.get(tuple(p), ".") for p in row) for row in page[::-1]]

    def test_a_value_on_a_boundary_belongs_to_the_class_below(self):
        path = self.grid([[-1, 0, 0.5], [10, 20, 21]])
        self.assertEqual(self.drawn(path, (3, 2)), ["rrg", "gbk"])

    def test_rows_are_presented_from_the_south_however_they_run_in_the_file(self):
        path = self.grid([[5, 15], [25, -5]], (0, 1, 0, 0, 0, 1))
        self.assertEqual(self.drawn(path, (2, 2)), ["kr", "gb"])

    def test_a_box_of_another_shape_is_widened_about_its_centre(self):
        path = self.grid([[5, 15], [25, -5]])
        self.assertEqual(self.drawn(path, (4, 2)), [".gb.", ".kr."])

    def test_a_view_off_the_grid_is_empty(self):
        self.assertEqual(self.drawn(self.grid([[5], [5]]), (2, 1), (1, 0, 3, 1)), [".."])

    def test_nodata_has_a_tolerance_and_takes_nan_with_it(self):
        path = self.grid([[5e-7, 2e-6, numpy.nan, numpy.inf]], (0, 1, 0, 1, 0, -1), nodata=0)
        self.assertEqual(self.drawn(path, (4, 1)), [".g.."])

    def test_nan_without_nodata_is_other(self):
        path = self.grid([[numpy.nan, numpy.inf]], (0, 1, 0, 1, 0, -1))
        self.assertEqual(self.drawn(path, (2, 1)), [".k"])
        self.assertEqual(self.drawn(path, (2, 1), **FOUR, other=BLUE), ["bk"])

    def test_an_interpolated_picture_lacks_the_outer_half_cell(self):
        path = self.grid([[5] * 3] * 3, (0, 1, 0, 3, 0, -1))
        self.assertEqual(
            self.drawn(path, (6, 6), **FOUR, interpolate=True),
            ["......", ".gggg.", ".gggg.", ".gggg.", ".gggg.", "......"],
        )

    def test_values_are_found_within_a_billionth(self):
        path = self.grid([[1, 2, 3]], (0, 1, 0, 1, 0, -1))
        values = ((1 + 5e-10, RED), (2 + 5e-9, GREEN), (3, BLUE))
        self.assertEqual(self.drawn(path, (3, 1), values=values), ["r.b"])

    def test_a_window_inside_the_grid_has_a_sample_a_step(self):
        path = self.grid([[0] * 100] * 100, (0, 1, 0, 100, 0, -1))
        grid = geometry.Grid(path)
        none = geometry.Reprojection("", "")
        whole = geometry.window_of(grid, Placement((0, 0, 100, 100), 0, 0, 50, 50), none, False)
        self.assertEqual(whole, geometry.Window(0, 0, 100, 100, 50, 50))
        inner = geometry.window_of(grid, Placement((20, 40, 40, 60), 0, 0, 10, 10), none, True)
        self.assertEqual(inner, geometry.Window(19, 39, 23, 23, 12, 12))

    def test_the_opacity_of_a_layer_is_cut_to_an_integer(self):
        scene = Scene([(self.grid([[5], [5]]), Look(simple=RED, transparency=1))], (1, 2))
        page = scene.draw(scene.windows())
        self.assertAlmostEqual(page[0, 0, 3] * 255, 252)

    def test_a_channel_rounds_half_up(self):
        values = reference.channel(numpy.array([-1, 0.5, 7, 300, numpy.nan]), (0, 255))
        self.assertEqual(values.tolist(), [0, 1, 7, 255, 0])

    def test_a_mesh_is_linear_in_each_triangle(self):
        vertex = numpy.array([[0.0, 10.0], [100.0, 1000.0]])
        at = lambda u, v: float(geometry.in_triangles(vertex, 0, 0, u, v))
        self.assertEqual(at(0.5, 0.0), 5)
        self.assertEqual(at(0.0, 0.5), 50)
        self.assertEqual(at(0.5, 0.5), 500)
        self.assertEqual(at(1.0, 0.5), 505)

    def test_a_nudge_changes_what_lies_on_a_tie_and_nothing_else(self):
        scene = Scene([(self.grid([[5, 15], [25, -5]]), Look(field="Band 1", **FOUR))], (2, 2))
        plain = scene.draw(scene.windows())
        moved = scene.draw(scene.windows(), Nudge(x=-1))
        self.assertTrue((moved[:, 1] == plain[:, 0]).all())
        scene = Scene(scene_layers(scene), (7, 5), (0.13, 0.3, 1.53, 1.3))
        plain = scene.draw(scene.windows())
        moved = scene.draw(scene.windows(), Nudge(x=-1, y=1))
        self.assertTrue((moved == plain).all())


def scene_layers(scene):
    return [(grid.dataset.GetDescription(), look) for grid, look in scene.layers]


if __name__ == "__main__":
    unittest.main()
