#include "AxLoadPoint.h"

AxLoadPoint::~AxLoadPoint() = default;
