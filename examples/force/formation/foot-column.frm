; Five metres from man to man.
(foot-column
  (positions
    (position (offset -5.0 1.0 0.0))
    (position (offset -10.0 -1.0 0.0)))
  (extra-spacing -5.0 0.0 0.0))
