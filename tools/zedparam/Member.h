#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

class AxReaderWriter;

/// The member, list element or content of that name, of several elements the one at `index`; null when there is none.
/// `known` receives all names there are, unless it is null.
AxReaderWriter* memberOf(AxReaderWriter& parent, std::string_view name, std::size_t index = 0,
                         std::vector<std::string_view>* known = nullptr);
