(gun-ammo
  (ammo-select (target-type 1 1 -1 -1 -1 -1 -1) (ammo
    (munition (munition-type 1 2 2 225 2 13 3 0) (munition-name "120mm-heat")))))
