<?xml version="1.0" encoding="UTF-8"?>
<style_library version="1" caption="Land cover">
  <item caption="Vegetation">
    <item index="10" caption="Tree cover" />
    <item index="20" caption="Shrubland" />
    <item index="30" caption="Grassland" />
    <item index="40" caption="Cropland" />
    <item index="100" caption="Moss and lichen" />
  </item>
  <item caption="Open ground">
    <item index="50" caption="Built-up" />
    <item index="60" caption="Bare or sparse vegetation" />
    <item index="70" caption="Snow and ice" />
  </item>
  <item caption="Water">
    <item index="80" caption="Permanent water" />
    <item index="90" caption="Herbaceous wetland" />
    <item index="95" caption="Mangroves" />
  </item>
  <points>
    <style index="10" visible="1" use_figure="1" figure="1" color="44 102 58 0" size="2.5" />
    <style index="20" visible="1" use_figure="1" figure="1" color="178 160 72 0" size="2.5" />
    <style index="30" visible="1" use_figure="1" figure="1" color="158 196 92 0" size="2.5" />
    <style index="40" visible="1" use_figure="1" figure="1" color="232 206 118 0" size="2.5" />
    <style index="100" visible="1" use_figure="1" figure="1" color="206 212 158 0" size="2.5" />
    <style index="50" visible="1" use_figure="1" figure="1" color="192 74 62 0" size="2.5" />
    <style index="60" visible="1" use_figure="1" figure="1" color="204 190 170 0" size="2.5" />
    <style index="70" visible="1" use_figure="1" figure="1" color="238 244 250 0" size="2.5" />
    <style index="80" visible="1" use_figure="1" figure="1" color="64 124 186 0" size="2.5" />
    <style index="90" visible="1" use_figure="1" figure="1" color="112 172 170 0" size="2.5" />
    <style index="95" visible="1" use_figure="1" figure="1" color="36 136 108 0" size="2.5" />
  </points>
  <lines>
    <style index="10" visible="1" width="0.5" color="44 102 58 0" />
    <style index="20" visible="1" width="0.5" color="178 160 72 0" />
    <style index="30" visible="1" width="0.5" color="158 196 92 0" />
    <style index="40" visible="1" width="0.5" color="232 206 118 0" />
    <style index="100" visible="1" width="0.5" color="206 212 158 0" />
    <style index="50" visible="1" width="0.5" color="192 74 62 0" />
    <style index="60" visible="1" width="0.5" color="204 190 170 0" />
    <style index="70" visible="1" width="0.5" color="238 244 250 0" />
    <style index="80" visible="1" width="0.5" color="64 124 186 0" />
    <style index="90" visible="1" width="0.5" color="112 172 170 0" />
    <style index="95" visible="1" width="0.5" color="36 136 108 0" />
  </lines>
  <polygons>
    <style index="10" visible="1" color="44 102 58 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="20" visible="1" color="178 160 72 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="30" visible="1" color="158 196 92 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="40" visible="1" color="232 206 118 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="100" visible="1" color="206 212 158 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="50" visible="1" color="192 74 62 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="60" visible="1" color="204 190 170 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="70" visible="1" color="238 244 250 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="80" visible="1" color="64 124 186 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="90" visible="1" color="112 172 170 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="95" visible="1" color="36 136 108 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
  </polygons>
</style_library>
