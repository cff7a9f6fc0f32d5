; The first munition of the list is the gunner's first choice.
(gun-120mm-ammo
  (ammo-select (target-type 1 1 -1 -1 -1 -1 -1) (ammo
    (munition (munition-type 1 2 2 225 2 13 3 0) (munition-name "120mm-heat"))))
  (ammo-select (target-type 1 1 -1 1 -1 -1 -1) (ammo
    (munition (munition-type 1 2 2 225 2 13 8 0) (munition-name "120mm-sabot"))
    (munition (munition-type 1 2 2 225 2 13 3 0) (munition-name "120mm-heat"))))
  (ammo-select (target-type 1 2 -1 20 -1 -1 -1) (ammo
    (munition (munition-type 1 2 2 225 2 13 3 0) (munition-name "120mm-heat")))))
