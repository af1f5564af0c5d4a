// SPDX-License-Identifier: GPL-3.0-or-later
// A comma-separated export with a line of column names, read row by row.
#pragma once

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick::exports {

/// Fields may be enclosed in double quotes, in which a doubled quote is one and commas and line ends belong
/// to the field. Lines end with CR LF, LF or CR; a byte-order mark and empty lines are passed over. Only the
/// row at hand is in memory.
class CsvReader {
 public:
  /// Reads at most so many characters and returns how many; 0 at the end.
  using Source = std::function<std::size_t(char* to, std::size_t size)>;

  struct Row {
    /// Where the row begins in the file, from 1.
    std::size_t line = 1;
    std::vector<std::string> fields;
    /// Whether its last quote is never closed: the file is cut short there.
    bool isCut = false;

    /// The field without outer blanks; empty where the row has no such field.
    std::string_view field(std::size_t column) const;
  };

  /// A row of more characters than this is an error.
  static constexpr std::size_t longestRow = 65536;

  /// Reads the column names.
  explicit CsvReader(Source source);
  /// `text` must outlive the reader.
  explicit CsvReader(std::string_view text);

  /// The first column with one of these names; blanks, underscores and letter case make no difference.
  std::optional<std::size_t> column(std::initializer_list<std::string_view> names) const;

  /// Reads the next row; false at the end. std::runtime_error with the line's number where a row is too long.
  bool next(Row& row);

 private:
  void readNames();
  void readRow(Row& row);
  void readField(std::string& field, Row& row);
  void readQuoted(std::string& field, Row& row);
  bool isEndOfField();
  char take();
  bool skip(char letter);
  /// Reads on where the piece is used up. False at the end.
  bool refill();

  Source source_;
  std::vector<char> piece_;
  std::size_t position_ = 0;
  std::size_t size_ = 0;
  std::size_t line_ = 1;
  std::size_t rowLine_ = 1;
  std::size_t rowLength_ = 0;
  std::vector<std::string> names_;
};

}  // namespace tallywick::exports
