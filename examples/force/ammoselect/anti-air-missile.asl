; By the shooter's own supply, the longest reach first.
(anti-air-missile-ammo
  (ammo-select (target-type 1 2 -1 -1 -1 -1 -1) (ammo
    (munition (munition-type 1 2 1 225 1 27 1 6) (guidance-mode "radar") (munition-name "sm2"))
    (munition (munition-type 1 2 1 225 1 2 3 5) (guidance-mode "radar") (munition-name "aim120c"))
    (munition (munition-type 1 2 1 222 1 10 0 0) (guidance-mode "radar") (munition-name "r27"))
    (munition (munition-type 1 2 1 222 1 31 0 0) (guidance-mode "radar") (munition-name "9m311"))
    (munition (munition-type 1 2 1 225 1 1 3 2) (guidance-mode "infrared") (munition-name "aim9m")))))
