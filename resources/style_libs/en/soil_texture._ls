<?xml version="1.0" encoding="UTF-8"?>
<style_library version="1" caption="Soil texture">
  <item caption="Clay">
    <item index="1" caption="Clay" />
    <item index="2" caption="Silty clay" />
    <item index="3" caption="Sandy clay" />
  </item>
  <item caption="Loam">
    <item index="4" caption="Clay loam" />
    <item index="5" caption="Silty clay loam" />
    <item index="6" caption="Sandy clay loam" />
    <item index="7" caption="Loam" />
    <item index="8" caption="Silt loam" />
    <item index="9" caption="Sandy loam" />
  </item>
  <item index="10" caption="Silt" />
  <item caption="Sand">
    <item index="11" caption="Loamy sand" />
    <item index="12" caption="Sand" />
  </item>
  <points>
    <style index="1" visible="1" use_figure="1" figure="1" color="132 74 60 0" size="2.5" />
    <style index="2" visible="1" use_figure="1" figure="1" color="152 96 92 0" size="2.5" />
    <style index="3" visible="1" use_figure="1" figure="1" color="178 92 58 0" size="2.5" />
    <style index="4" visible="1" use_figure="1" figure="1" color="166 124 82 0" size="2.5" />
    <style index="5" visible="1" use_figure="1" figure="1" color="156 134 112 0" size="2.5" />
    <style index="6" visible="1" use_figure="1" figure="1" color="204 138 82 0" size="2.5" />
    <style index="7" visible="1" use_figure="1" figure="1" color="188 158 106 0" size="2.5" />
    <style index="8" visible="1" use_figure="1" figure="1" color="172 164 134 0" size="2.5" />
    <style index="9" visible="1" use_figure="1" figure="1" color="222 178 116 0" size="2.5" />
    <style index="10" visible="1" use_figure="1" figure="1" color="148 158 150 0" size="2.5" />
    <style index="11" visible="1" use_figure="1" figure="1" color="236 206 146 0" size="2.5" />
    <style index="12" visible="1" use_figure="1" figure="1" color="248 232 186 0" size="2.5" />
  </points>
  <lines>
    <style index="1" visible="1" width="0.5" color="132 74 60 0" />
    <style index="2" visible="1" width="0.5" color="152 96 92 0" />
    <style index="3" visible="1" width="0.5" color="178 92 58 0" />
    <style index="4" visible="1" width="0.5" color="166 124 82 0" />
    <style index="5" visible="1" width="0.5" color="156 134 112 0" />
    <style index="6" visible="1" width="0.5" color="204 138 82 0" />
    <style index="7" visible="1" width="0.5" color="188 158 106 0" />
    <style index="8" visible="1" width="0.5" color="172 164 134 0" />
    <style index="9" visible="1" width="0.5" color="222 178 116 0" />
    <style index="10" visible="1" width="0.5" color="148 158 150 0" />
    <style index="11" visible="1" width="0.5" color="236 206 146 0" />
    <style index="12" visible="1" width="0.5" color="248 232 186 0" />
  </lines>
  <polygons>
    <style index="1" visible="1" color="132 74 60 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="2" visible="1" color="152 96 92 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="3" visible="1" color="178 92 58 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="4" visible="1" color="166 124 82 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="5" visible="1" color="156 134 112 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="6" visible="1" color="204 138 82 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="7" visible="1" color="188 158 106 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="8" visible="1" color="172 164 134 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="9" visible="1" color="222 178 116 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="10" visible="1" color="148 158 150 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="11" visible="1" color="236 206 146 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
    <style index="12" visible="1" color="248 232 186 0">
      <contour visible="1" width="0.1" color="96 96 96 0" />
    </style>
  </polygons>
</style_library>
