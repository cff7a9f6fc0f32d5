#pragma once

/// Registers queries of a damage table of 24 munitions, 6 surfaces, 4 angles and 5 rows.
void registerDamageQueries();
