(ammunition
  (ammo-select (target-type 1 1 225 -1 -1 -1 -1) (ammo (munition (munition-name "sabot"))))
  (ammo-select (target-type 1 1 -1 -1 -1 -1 -1) (ammo (munition (munition-nam "heat") (warhead -5))))
  (ammo-selekt (ammo (munition (munition-name "sabot")))))
