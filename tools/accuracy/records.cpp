#include "accuracy/records.h"

#include <fmt/format.h>
#include <fmt/ostream.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace lum::accuracy {

std::map<std::string, std::string> ReadRows(const std::string& path, KeyOfRow key) {
  std::map<std::string, std::string> rows;
  std::string line;
  std::ifstream stored(path);
  std::getline(stored, line);
  while (std::getline(stored, line)) rows[key(line)] = line;
  return rows;
}

void UpdateRows(const std::string& path, const char* header, const std::vector<std::string>& rows, KeyOfRow key) {
  auto stored = ReadRows(path, key);
  for (const std::string& row : rows) stored[key(row)] = row;
  const std::string part = path + ".part";
  std::ofstream file(part);
  fmt::print(file, "{}\n", header);
  for (const auto& [unused, text] : stored) fmt::print(file, "{}\n", text);
  file.close();
  if (!file) throw std::runtime_error(fmt::format("{}: cannot be written", part));
  std::filesystem::rename(part, path);
}

}  // namespace lum::accuracy
