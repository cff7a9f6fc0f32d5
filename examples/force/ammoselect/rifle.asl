(rifle-ammo
  (ammo-select (target-type 3 1 -1 -1 -1 -1 -1) (ammo
    (munition (munition-type 1 2 8 225 2 1 5 0) (munition-name "5.56mm-ball"))))
  (ammo-select (target-type 1 1 -1 6 -1 -1 -1) (ammo
    (munition (munition-type 1 2 8 225 2 1 5 0) (munition-name "5.56mm-ball")))))
