// SPDX-License-Identifier: GPL-3.0-or-later
// The sequential reader over a file that it reads in pieces. The first byte chooses the number of fields; the
// rest, written again and again, fills more than one piece.
#include "core/draws.h"
#include "core/plays.h"
#include "core/runtime_error.h"
#include "core/sequential_reader.h"
#include "core/winnings.h"
#include "fuzz/property.h"
#include "support/scratch_folder.h"

#include <array>
#include <optional>
#include <string>

namespace tallywick::fuzz {

namespace {

/// The next record is the same from both, or torn in both. False at their end.
template <std::size_t Count>
bool sameNext(SequentialReader& left, SequentialReader& right) {
  require(left.atEnd() == right.atEnd(), "both ways of reading end at one record");
  if (left.atEnd()) return false;
  const auto next = [](SequentialReader& reader) -> std::optional<Fields<Count>> {
    try {
      return reader.record<Count>();
    } catch (const RuntimeError&) {
      return std::nullopt;
    }
  };
  const auto record = next(left);
  require(record == next(right), "reading in pieces changes no record");
  return record.has_value();
}

template <std::size_t Count>
void check(std::string_view text) {
  constexpr std::size_t morePieces = std::size_t{300} << 10U;
  std::string longText(text);
  while (!text.empty() && longText.size() < morePieces) longText += text;
  static const test::ScratchFolder scratch;
  scratch.write("input", longText);
  SequentialReader pieces(scratch.folder(), "input", SequentialReader::Reading::inPieces);
  SequentialReader memory(longText, "input");
  while (sameNext<Count>(pieces, memory)) continue;
}

constexpr std::array checks = {check<1>, check<winningsFields>, check<playFields>, check<drawFields>,
                               check<doublePlayFields>};

}  // namespace

}  // namespace tallywick::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tallywick::fuzz;
  if (size < 2) return 0;
  checks[data[0] % checks.size()](textOf(data + 1, size - 1));
  return 0;
}
