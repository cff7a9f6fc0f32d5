; Metres from the leader: x forward, y right. Two on the flanks, one behind.
(wedge
  (positions
    (position (offset -50.0 -50.0 0.0) (role "left-wing"))
    (position (offset -50.0 50.0 0.0) (role "right-wing"))
    (position (offset -100.0 0.0 0.0)))
  (extra-spacing -50.0 0.0 0.0))
