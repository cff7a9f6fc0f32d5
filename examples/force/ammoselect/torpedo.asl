(torpedo-ammo
  (ammo-select (target-type 1 3 -1 -1 -1 -1 -1) (ammo
    (munition (munition-type 1 2 7 225 1 10 2 0) (munition-name "torpedo"))))
  (ammo-select (target-type 1 4 -1 -1 -1 -1 -1) (ammo
    (munition (munition-type 1 2 7 225 1 10 2 0) (munition-name "torpedo")))))
