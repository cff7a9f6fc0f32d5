#pragma once

/// Registers the construction of the largest descriptor of the catalogue, when that is in the factory.
void registerLargestDescriptor();
