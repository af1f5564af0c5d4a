// SPDX-License-Identifier: GPL-3.0-or-later
// Runs a fuzz target without a fuzzer: over every file of the corpus folders that are named, over each of
// them cut short at every length, and with each byte replaced by those that the formats give a meaning.
#include "fuzz/property.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

namespace {

/// Longer inputs are run as they are.
constexpr std::size_t longestVaried = 400;
constexpr std::string_view meaningful = "\",\n\r =;/\\\xFF\x80";

std::size_t executions = 0;

void execute(const std::string& bytes) {
  ++executions;
  // A copy of just this size, so that the address sanitizer sees a read beyond the end.
  const std::vector<std::uint8_t> input(bytes.begin(), bytes.end());
  LLVMFuzzerTestOneInput(input.data(), input.size());
}

void executeVaried(const std::string& bytes) {
  for (std::size_t length = 0; length < bytes.size(); ++length) execute(bytes.substr(0, length));
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    std::string changed = bytes;
    changed[at] = meaningful[at % meaningful.size()];
    execute(changed);
  }
}

}  // namespace

int main(int count, char** arguments) {
  for (int i = 1; i < count; ++i) {
    for (const auto& entry : std::filesystem::directory_iterator(arguments[i])) {
      std::ifstream file(entry.path(), std::ios::binary);
      std::ostringstream text;
      text << file.rdbuf();
      const std::string bytes = text.str();
      std::cout << entry.path().filename().string() << std::endl;
      execute(bytes);
      if (bytes.size() <= longestVaried) executeVaried(bytes);
    }
  }
  std::cout << "fuzz executions: " << executions << '\n';
  return executions > 0 ? 0 : 1;
}
