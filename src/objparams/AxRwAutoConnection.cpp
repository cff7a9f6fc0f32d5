#include "AxRwAutoConnection.h"

AxRwAutoConnection::~AxRwAutoConnection() = default;
