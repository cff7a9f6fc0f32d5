(autocannon-ammo
  (ammo-select (target-type 1 1 -1 -1 -1 -1 -1) (ammo
    (munition (munition-name "autocannon-ap"))))
  (ammo-select (target-type 1 1 -1 6 -1 -1 -1) (ammo
    (munition (munition-name "autocannon-he"))))
  (ammo-select (target-type 1 2 -1 -1 -1 -1 -1) (ammo
    (munition (munition-name "autocannon-he"))))
  (ammo-select (target-type 3 1 -1 -1 -1 -1 -1) (ammo
    (munition (munition-name "autocannon-he")))))
