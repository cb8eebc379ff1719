// Files of results: a header, then rows in the order of their keys.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace lum::accuracy {

using KeyOfRow = std::string (*)(const std::string& row);

// The rows by their keys; none where there is no such file.
std::map<std::string, std::string> ReadRows(const std::string& path, KeyOfRow key);

// Puts rows into the file in place of those of the same keys; the file is replaced in one step. Throws where it cannot be.
void UpdateRows(const std::string& path, const char* header, const std::vector<std::string>& rows, KeyOfRow key);

}  // namespace lum::accuracy
