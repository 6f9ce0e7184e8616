#!/usr/bin/python3
"""Times one piece of work of another program in this process and prints a line of JSON.

  peers.py PEER FILE KIND X0,Y0,X1,Y1 CRS fresh|kept [B0,B1,...]

PEER is qgis, mapnik or gdal; KIND is classes, values or image (pictures of 1920 x 1080), shade or isolines (the
same, qgis alone), pan or first (a window's map, qgis alone), statistics (gdal and qgis), natural or unique (classes
of values, qgis alone), histogram or quantile (gdal alone), or shading (gdal alone: gdaldem on 1920 x 1080 made nodes, from
memory to memory). For pictures "gdal" is the floor: a bare nearest read of the same window into doubles (bytes
for an image) and one copy of the pixels.
"""
import json
import statistics
import sys
import time

import numpy as np

WIDTH, HEIGHT, RUNS = 1920, 1080, 7
UTM = "EPSG:32637"
WINDOWS = ("pan", "first")
RAMP = ["#%02x%02x%02x" % (k * 20, 128, 255 - k * 20) for k in range(12)]
PROJ = {UTM: "+proj=utm +zone=37 +datum=WGS84 +units=m +no_defs",
        "EPSG:3857": "+proj=merc +a=6378137 +b=6378137 +lat_ts=0 +lon_0=0 +x_0=0 +y_0=0 +k=1 +units=m "
                     "+nadgrids=@null +no_defs"}


def widened(box):
    w, h = box[2] - box[0], box[3] - box[1]
    scale = max(w / WIDTH, h / HEIGHT)
    mx, my = (box[0] + box[2]) / 2, (box[1] + box[3]) / 2
    return (mx - scale * WIDTH / 2, my - scale * HEIGHT / 2,
            mx + scale * WIDTH / 2, my + scale * HEIGHT / 2)


def timed(work, runs=RUNS):
    times = []
    for run in range(runs + 1):
        start = time.perf_counter()
        work()
        if run:
            times.append((time.perf_counter() - start) * 1e3)
    return {"ms": statistics.median(times), "min": min(times), "max": max(times)}


def value_colour(v):
    return "#%02x%02x%02x" % (v * 6 % 256, 255 - v * 5, v * 97 % 256)


def qgis_project(q, folder):
    """A project of the grids in a folder, made and then read again and again."""
    import glob
    project, file = q.QgsProject.instance(), folder + "/p.qgs"
    project.addMapLayers([q.QgsRasterLayer(path, path, "gdal") for path in sorted(glob.glob(folder + "/*.tif"))])
    project.write(file)

    def read():
        project.clear()
        assert project.read(file) and len(project.mapLayers()) == 200
    return timed(read, 5)


def qgis_window(q, layer, kind, extent, breaks):
    """The map of its window: its first picture since a time of the monotonic clock, or one moved by a third."""
    from qgis.gui import QgsMapCanvas
    from qgis.PyQt.QtCore import QEventLoop
    canvas, loop = QgsMapCanvas(), QEventLoop()
    canvas.mapCanvasRefreshed.connect(loop.quit)
    canvas.resize(WIDTH, HEIGHT)
    canvas.setLayers([layer])
    canvas.setExtent(extent)
    canvas.show()
    canvas.refresh()
    loop.exec()
    canvas.grab()
    if kind == "first":
        return {"ms": (time.monotonic() - breaks[0]) * 1e3}
    step = [extent.width() / 3]

    def pan():
        moved = canvas.extent()
        canvas.setExtent(q.QgsRectangle(moved.xMinimum() + step[0], moved.yMinimum(), moved.xMaximum() + step[0],
                                        moved.yMaximum()))
        step[0] = -step[0]
        canvas.refresh()
        loop.exec()
    return timed(pan)


def qgis(path, kind, box, crs, fresh, breaks):
    from qgis import core as q
    from qgis.PyQt.QtCore import QSize
    from qgis.PyQt.QtGui import QColor
    application = q.QgsApplication([], kind in WINDOWS)
    application.initQgis()
    if kind == "project":
        return qgis_project(q, path)

    def layer():
        options = q.QgsRasterLayer.LayerOptions()
        options.loadDefaultStyle = False
        made = q.QgsRasterLayer(path, "layer", "gdal", options)
        provider = made.dataProvider()
        if kind in ("statistics", "unique"):
            return made
        if kind == "classes" or kind in WINDOWS:
            ramp = q.QgsColorRampShader()
            ramp.setColorRampType(q.QgsColorRampShader.Discrete)
            ramp.setColorRampItemList([q.QgsColorRampShader.ColorRampItem(v, QColor(c))
                                       for v, c in zip((breaks[1:] if kind == "first" else breaks)
                                                       + [float("inf")], RAMP)])
            shader = q.QgsRasterShader()
            shader.setRasterShaderFunction(ramp)
            made.setRenderer(q.QgsSingleBandPseudoColorRenderer(provider, 1, shader))
        elif kind == "shade":
            made.setRenderer(q.QgsHillshadeRenderer(provider, 1, 315, 45))
        elif kind == "isolines":
            lines = q.QgsRasterContourRenderer(provider)
            lines.setContourInterval(50)
            lines.setContourIndexInterval(250)
            made.setRenderer(lines)
        elif kind == "values":
            made.setRenderer(q.QgsPalettedRasterRenderer(
                provider, 1, [q.QgsPalettedRasterRenderer.Class(v, QColor(value_colour(v)))
                              for v in range(1, 41)]))
        else:
            made.setRenderer(q.QgsMultiBandColorRenderer(provider, 1, 2, 3))
        return made

    def draw(made):
        settings = q.QgsMapSettings()
        settings.setOutputSize(QSize(WIDTH, HEIGHT))
        settings.setOutputDpi(96)
        settings.setDestinationCrs(q.QgsCoordinateReferenceSystem(crs))
        settings.setExtent(q.QgsRectangle(*widened(box)))
        settings.setLayers([made])
        job = q.QgsMapRendererSequentialJob(settings)
        job.start()
        job.waitForFinished()
        return job.renderedImage()

    if kind in WINDOWS:
        return qgis_window(q, layer(), kind, q.QgsRectangle(*widened(box)), breaks)
    if kind == "statistics":
        wanted = (q.QgsRasterBandStats.Min | q.QgsRasterBandStats.Max | q.QgsRasterBandStats.Mean
                  | q.QgsRasterBandStats.StdDev)
        return timed(lambda: layer().dataProvider().bandStatistics(1, wanted, q.QgsRectangle(), 0), 3)
    if kind == "natural":
        return natural_breaks(q, path)
    if kind == "unique":
        return unique_values(q, layer)
    if fresh:
        return timed(lambda: draw(layer()))
    made = layer()
    return timed(lambda: draw(made))


def natural_breaks(q, path):
    from osgeo import gdal as g
    values = [float(v) for v in g.Open(path).ReadAsArray().ravel()]
    found = []

    def classify():
        found.append(q.QgsClassificationJenks().classes(values, 10))
    return dict(timed(classify, 3), check=[c.upperBound() for c in found[-1]])


def unique_values(q, layer):
    """Of a layer made anew: what it has counted once it keeps."""
    found = []

    def collect():
        made = layer()  # it must outlive its provider
        found.append(len(q.QgsPalettedRasterRenderer.classDataFromRaster(made.dataProvider(), 1)))
    return dict(timed(collect, 3), check=[found[-1]])


def mapnik(path, kind, box, crs, fresh, breaks):
    import mapnik as m
    if kind == "image":
        colorizer, band = "", ""
    else:
        stops = (zip([-9000.0] + breaks, RAMP) if kind == "classes"
                 else ((v, value_colour(v)) for v in range(1, 41)))
        colorizer = '<RasterColorizer default-mode="%s" default-color="transparent">%s</RasterColorizer>' % (
            "discrete" if kind == "classes" else "exact",
            "".join('<stop value="%.9g" color="%s"/>' % stop for stop in stops))
        band = '<Parameter name="band">1</Parameter>'
    xml = ('<Map srs="%s" background-color="white"><Style name="s"><Rule><RasterSymbolizer scaling="near">%s'
           '</RasterSymbolizer></Rule></Style><Layer name="l" srs="%s"><StyleName>s</StyleName><Datasource>'
           '<Parameter name="type">gdal</Parameter><Parameter name="file">%s</Parameter>%s</Datasource></Layer>'
           '</Map>') % (PROJ[crs], colorizer, PROJ[UTM], path, band)

    def load():
        made = m.Map(WIDTH, HEIGHT)
        m.load_map_from_string(made, xml)
        made.zoom_to_box(m.Box2d(*widened(box)))
        return made

    def draw(made):
        m.render(made, m.Image(WIDTH, HEIGHT))

    if fresh:
        return timed(lambda: draw(load()))
    made = load()
    return timed(lambda: draw(made))


def gdaldem(g):
    y, x = np.mgrid[HEIGHT - 1:-1:-1, 0:WIDTH]
    heights = g.GetDriverByName("MEM").Create("", WIDTH, HEIGHT, 1, g.GDT_Float64)
    heights.SetGeoTransform((0, 10, 0, HEIGHT * 10, 0, -10))
    heights.GetRasterBand(1).WriteArray(200 * np.sin(x / 70) * np.cos(y / 50) + x)
    shade = g.DEMProcessing("", heights, "hillshade", format="MEM").ReadAsArray()[1:-1, 1:-1]
    return dict(timed(lambda: g.DEMProcessing("", heights, "hillshade", format="MEM"), 15),
                check=float(shade.mean(dtype=float)))


def distribution(g, path, kind):
    """A histogram between fixed limits, or the quantiles of one between the limits of the field."""
    found = []

    def compute():
        data = g.Open(path)
        band = data.GetRasterBand(1)
        if kind == "histogram":
            found.append(band.GetHistogram(250, 1250, 256, False, False))
            return
        low, high = band.ComputeStatistics(False)[:2]
        heights = np.concatenate(([0], np.cumsum(band.GetHistogram(low, high, 256, True, False))))
        places = np.linspace(low, high, 257)
        found.append(np.interp(heights[-1] * np.arange(1, 11) / 10, heights, places).tolist())
    return dict(timed(compute, 3), check=found[-1])


def gdal(path, kind, box, crs, fresh, breaks):
    from osgeo import gdal as g
    g.UseExceptions()
    if kind == "shading":
        return gdaldem(g)
    if kind in ("histogram", "quantile"):
        return distribution(g, path, kind)
    if kind == "statistics":
        found = []

        def compute():
            data = g.Open(path)  # it must outlive its band
            found.append(data.GetRasterBand(1).ComputeStatistics(False))
        return dict(timed(compute, 3), check=found[-1])
    data = g.Open(path)
    x0, dx, _, y0, _, dy = data.GetGeoTransform()
    b = widened(box)
    low = (max(b[0], x0), max(b[1], y0 + dy * data.RasterYSize))
    high = (min(b[2], x0 + dx * data.RasterXSize), min(b[3], y0))
    window = [round((low[0] - x0) / dx), round((high[1] - y0) / dy),
              round((high[0] - low[0]) / dx), round((low[1] - high[1]) / dy)]
    scale = (b[2] - b[0]) / WIDTH
    nx, ny = round((high[0] - low[0]) / scale), round((high[1] - low[1]) / scale)
    picture, shown = np.zeros(WIDTH * HEIGHT * 4, np.uint8), np.zeros(WIDTH * HEIGHT * 4, np.uint8)
    if kind == "image":
        buffer = np.zeros((3, ny, nx), np.uint8)
    else:
        buffer = np.zeros((ny, nx))

    def read():
        source = g.Open(path) if fresh else data
        if kind == "image":
            source.ReadAsArray(*window, buf_xsize=nx, buf_ysize=ny, buf_obj=buffer)
        else:
            source.GetRasterBand(1).ReadAsArray(*window, nx, ny, buf_obj=buffer)
        np.copyto(shown, picture)
    return timed(read)


def main(argv):
    peer, path, kind, box, crs, span = argv[:6]
    breaks = [float(b) for b in argv[6].split(",")] if len(argv) > 6 else []
    box = [float(v) for v in box.split(",")]
    result = {"qgis": qgis, "mapnik": mapnik, "gdal": gdal}[peer](path, kind, box, crs, span == "fresh", breaks)
    print(json.dumps(result), flush=True)
    import os
    os._exit(0)  # the tear-down of a peer is not measured, and may crash


if __name__ == "__main__":
    main(sys.argv[1:])
