#pragma once

#include <functional>
#include <string_view>

/// Finds, without making cells of the text, each component or system whose name another one of its list has already:
/// reading keeps the later of them. `report` receives the place of the later name, from 1.
void scanNames(std::string_view text,
               std::function<void(std::string_view name, unsigned line, unsigned column)> const& report);
