(shoulder-launcher-ammo
  (ammo-select (target-type 1 1 -1 -1 -1 -1 -1) (ammo
    (munition (munition-type 1 2 2 225 1 8 0 0) (guidance-mode "infrared") (munition-name "javelin")))))
