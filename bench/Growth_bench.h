#pragma once

void registerGrowth();
