; Guns or vehicles abreast.
(line
  (positions
    (position (offset 0.0 -50.0 0.0))
    (position (offset 0.0 50.0 0.0))
    (position (offset 0.0 -100.0 0.0))
    (position (offset 0.0 100.0 0.0)))
  (extra-spacing -50.0 0.0 0.0))
