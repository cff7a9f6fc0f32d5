(column
  (positions
    (position (offset -50.0 0.0 0.0)))
  (extra-spacing -50.0 0.0 0.0))
