<?xml version="1.0" encoding="UTF-8"?>
<style_library version="1" caption="Lithology">
  <item caption="Sedimentary">
    <item index="1" caption="Unconsolidated sediments" />
    <item index="3" caption="Siliciclastic rocks" />
    <item index="5" caption="Mixed sedimentary rocks" />
    <item index="6" caption="Carbonate rocks" />
    <item index="14" caption="Evaporites" />
  </item>
  <item caption="Volcanic">
    <item index="2" caption="Basic volcanic rocks" />
    <item index="7" caption="Acid volcanic rocks" />
    <item index="10" caption="Intermediate volcanic rocks" />
    <item index="12" caption="Pyroclastics" />
  </item>
  <item caption="Plutonic">
    <item index="4" caption="Basic plutonic rocks" />
    <item index="9" caption="Acid plutonic rocks" />
    <item index="13" caption="Intermediate plutonic rocks" />
  </item>
  <item index="8" caption="Metamorphic rocks" />
  <item index="11" caption="Water bodies" />
  <item index="16" caption="Ice and glaciers" />
  <item index="15" caption="No data" />
  <points>
    <style index="1" visible="1" use_figure="1" figure="1" color="246 232 170 0" size="2.5" />
    <style index="3" visible="1" use_figure="1" figure="1" color="226 196 110 0" size="2.5" />
    <style index="5" visible="1" use_figure="1" figure="1" color="190 178 128 0" size="2.5" />
    <style index="6" visible="1" use_figure="1" figure="1" color="124 182 220 0" size="2.5" />
    <style index="14" visible="1" use_figure="1" figure="1" color="214 176 216 0" size="2.5" />
    <style index="2" visible="1" use_figure="1" figure="1" color="116 142 86 0" size="2.5" />
    <style index="7" visible="1" use_figure="1" figure="1" color="240 160 134 0" size="2.5" />
    <style index="10" visible="1" use_figure="1" figure="1" color="178 150 118 0" size="2.5" />
    <style index="12" visible="1" use_figure="1" figure="1" color="222 140 160 0" size="2.5" />
    <style index="4" visible="1" use_figure="1" figure="1" color="78 96 116 0" size="2.5" />
    <style index="9" visible="1" use_figure="1" figure="1" color="226 96 92 0" size="2.5" />
    <style index="13" visible="1" use_figure="1" figure="1" color="170 84 108 0" size="2.5" />
    <style index="8" visible="1" use_figure="1" figure="1" color="148 120 172 0" size="2.5" />
    <style index="11" visible="1" use_figure="1" figure="1" color="72 132 200 0" size="2.5" />
    <style index="16" visible="1" use_figure="1" figure="1" color="232 242 248 0" size="2.5" />
    <style index="15" visible="1" use_figure="1" figure="1" color="176 176 176 0" size="2.5" />
  </points>
  <lines>
    <style index="1" visible="1" width="0.5" color="246 232 170 0" />
    <style index="3" visible="1" width="0.5" color="226 196 110 0" />
    <style index="5" visible="1" width="0.5" color="190 178 128 0" />
    <style index="6" visible="1" width="0.5" color="124 182 220 0" />
    <style index="14" visible="1" width="0.5" color="214 176 216 0" />
    <style index="2" visible="1" width="0.5" color="116 142 86 0" />
    <style index="7" visible="1" width="0.5" color="240 160 134 0" />
    <style index="10" visible="1" width="0.5" color="178 150 118 0" />
    <style index="12" visible="1" width="0.5" color="222 140 160 0" />
    <style index="4" visible="1" width="0.5" color="78 96 116 0" />
    <style index="9" visible="1" width="0.5" color="226 96 92 0" />
    <style index="13" visible="1" width="0.5" color="170 84 108 0" />
    <style index="8" visible="1" width="0.5" color="148 120 172 0" />
    <style index="11" visible="1" width="0.5" color="72 132 200 0" />
    <style index="16" visible="1" width="0.5" color="232 242 248 0" />
    <style index="15" visible="1" width="0.5" color="176 176 176 0" />
  </lines>
  <polygons>
    <style index="1" visible="1" color="246 232 170 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="3" visible="1" color="226 196 110 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="5" visible="1" color="190 178 128 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="6" visible="1" color="124 182 220 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="14" visible="1" color="214 176 216 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="2" visible="1" color="116 142 86 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="7" visible="1" color="240 160 134 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="10" visible="1" color="178 150 118 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="12" visible="1" color="222 140 160 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="4" visible="1" color="78 96 116 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="9" visible="1" color="226 96 92 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="13" visible="1" color="170 84 108 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="8" visible="1" color="148 120 172 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="11" visible="1" color="72 132 200 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="16" visible="1" color="232 242 248 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="15" visible="1" color="176 176 176 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
  </polygons>
</style_library>
