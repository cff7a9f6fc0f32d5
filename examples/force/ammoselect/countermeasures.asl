; By type of the missile that comes.
(countermeasures
  (ammo-select (target-type 2 1 -1 -1 -1 -1 -1) (ammo
    (munition (munition-type 1 8 2 225 2 2 1 0) (munition-name "flare"))))
  (ammo-select (target-type 2 1 225 1 2 -1 -1) (ammo
    (munition (munition-type 1 8 2 225 1 1 7 1) (munition-name "chaff"))))
  (ammo-select (target-type 2 1 222 1 10 -1 -1) (ammo
    (munition (munition-type 1 8 2 225 1 1 7 1) (munition-name "chaff"))
    (munition (munition-type 1 8 2 225 2 2 1 0) (munition-name "flare")))))
