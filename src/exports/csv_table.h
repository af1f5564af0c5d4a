// SPDX-License-Identifier: GPL-3.0-or-later
// A comma-separated export with a line of column names.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick::exports {

/// Fields may stand in double quotes, in which a doubled quote is one and commas and line ends belong to the
/// field. Lines end with CR LF or LF; a byte-order mark and empty lines are passed over.
class CsvTable {
 public:
  struct Row {
    /// Where the row begins in the file, from 1.
    std::size_t line;
    std::vector<std::string> fields;

    /// The field without outer blanks; empty where the row has no such field.
    std::string_view field(std::size_t column) const;
  };

  explicit CsvTable(std::string_view text);

  const std::vector<Row>& rows() const { return rows_; }

  /// The first column with one of these names; blanks, underscores and letter case make no difference.
  std::optional<std::size_t> column(std::initializer_list<std::string_view> names) const;

 private:
  std::vector<std::string> names_;
  std::vector<Row> rows_;
};

}  // namespace tallywick::exports
