; By the shooter's own supply: a launcher has only one of them.
(anti-armor-missile-ammo
  (ammo-select (target-type 1 1 -1 -1 -1 -1 -1) (ammo
    (munition (munition-type 1 2 2 225 1 1 5 0) (guidance-mode "wire") (munition-name "tow"))
    (munition (munition-type 1 2 2 222 1 7 0 0) (guidance-mode "wire") (munition-name "konkurs"))
    (munition (munition-type 1 2 2 222 1 8 0 0) (guidance-mode "radar") (munition-name "shturm"))))
  (ammo-select (target-type 5 1 -1 -1 -1 -1 -1) (ammo
    (munition (munition-type 1 2 2 225 1 1 5 0) (guidance-mode "wire") (munition-name "tow")))))
