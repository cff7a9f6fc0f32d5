#pragma once

#include <string>

class AxReaderWriter;

/// A record as it is written, but of the type that it was made as: several types share a class, which writes one of
/// them.
std::string recordText(AxReaderWriter const& record, bool all = false);
/// Sets that type in a text that begins with the record's own items. Nothing happens for what is no record.
void tellType(AxReaderWriter const& record, std::string& text);
