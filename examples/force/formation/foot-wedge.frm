(foot-wedge
  (positions
    (position (offset -5.0 -5.0 0.0))
    (position (offset -5.0 5.0 0.0))
    (position (offset -10.0 -10.0 0.0))
    (position (offset -10.0 10.0 0.0)))
  (extra-spacing -5.0 0.0 0.0))
