<?xml version="1.0" encoding="UTF-8"?>
<style_library version="1" caption="Литология">
  <item caption="Осадочные породы">
    <item index="1" caption="Рыхлые отложения" />
    <item index="3" caption="Обломочные породы" />
    <item index="5" caption="Смешанные осадочные породы" />
    <item index="6" caption="Карбонатные породы" />
    <item index="14" caption="Эвапориты" />
  </item>
  <item caption="Вулканические породы">
    <item index="2" caption="Основные вулканиты" />
    <item index="7" caption="Кислые вулканиты" />
    <item index="10" caption="Средние вулканиты" />
    <item index="12" caption="Пирокластические породы" />
  </item>
  <item caption="Плутонические породы">
    <item index="4" caption="Основные интрузии" />
    <item index="9" caption="Кислые интрузии" />
    <item index="13" caption="Средние интрузии" />
  </item>
  <item index="8" caption="Метаморфические породы" />
  <item index="11" caption="Водоёмы" />
  <item index="16" caption="Лёд и ледники" />
  <item index="15" caption="Нет данных" />
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
