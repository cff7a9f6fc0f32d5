#pragma once

/// Posture of a life form (SISO-REF-010).
enum AxLifeformState : int
{
    AxLifeformNull = 0,
    AxLifeformUprightStanding = 1,
    AxLifeformUprightWalking = 2,
    AxLifeformUprightRunning = 3,
    AxLifeformKneeling = 4,
    AxLifeformProne = 5,
    AxLifeformCrawling = 6,
    AxLifeformSwimming = 7,
    AxLifeformParachuting = 8,
    AxLifeformJumping = 9,
    AxLifeformSitting = 10,
    AxLifeformSquatting = 11,
    AxLifeformCrouching = 12,
    AxLifeformWading = 13,
    AxLifeformSurrender = 14,
    AxLifeformDetained = 15
};
