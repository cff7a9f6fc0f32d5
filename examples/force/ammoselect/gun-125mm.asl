(gun-125mm-ammo
  (ammo-select (target-type 1 1 -1 -1 -1 -1 -1) (ammo
    (munition (munition-name "125mm-heat"))))
  (ammo-select (target-type 1 1 -1 1 -1 -1 -1) (ammo
    (munition (munition-name "125mm-sabot"))
    (munition (munition-name "125mm-heat")))))
