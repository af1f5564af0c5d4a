// SPDX-License-Identifier: GPL-3.0-or-later
// Lists of text lines that stay quick with a million lines. Lines that are draws, plays or amounts can be
// shown in columns under a header; what is copied, found by typing and read aloud is the text.
#pragma once

#include "controls/text_lines.h"
#include "core/games.h"
#include "ui/qt/parts/listed_line.h"

#include <QAbstractListModel>
#include <QElapsedTimer>
#include <QListView>
#include <QString>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace tallywick {

class LineHeader;

/// What is to be seen in a line at once.
struct LineHighlights {
  /// White balls that were found or matched, and the extra one.
  std::vector<std::string> whites;
  bool extra = false;
  bool wins = false;
  /// The text of the column for it: "3 + PowerBall".
  std::string matched;
  /// The same of the prize: "$7".
  std::string prize;
};

/// Shows lines that somebody else owns; they must outlive the model.
class LineListModel : public QAbstractListModel {
  Q_OBJECT

 public:
  /// Whether a line is emphasised, asked for the lines on the screen only.
  using StandOut = std::function<bool(std::size_t row, std::string_view line)>;
  /// Asked for the lines on the screen only, and when they are saved or printed.
  using Highlight = std::function<LineHighlights(std::string_view line)>;
  enum Role { StandsOutRole = Qt::UserRole };

  explicit LineListModel(const TextLines& lines, QObject* parent = nullptr);

  /// To be called after every change of the lines.
  void reset();
  /// `meaning` is said by screen readers after the line, for example "winning".
  void setStandOut(StandOut standsOut, const QString& meaning);
  void setHighlight(Highlight highlight) { highlight_ = std::move(highlight); }
  LineHighlights highlightsOf(std::string_view line) const;

  const TextLines& lines() const { return lines_; }
  /// The length of the longest line, in characters.
  std::size_t longestLine() const { return longest_; }

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  void measure();
  bool standsOut(std::size_t row) const;

  const TextLines& lines_;
  int rows_ = 0;
  std::size_t longest_ = 0;
  StandOut standsOut_;
  QString meaning_;
  Highlight highlight_;
};

/// A list in a fixed-width face with extended selection. What is typed goes to the next line with a field
/// that begins so: a date or a number.
class LineList : public QListView {
  Q_OBJECT

 public:
  /// A list that gets its model later, for example the view of a drop-down.
  explicit LineList(QWidget* parent = nullptr);
  explicit LineList(const TextLines& lines, QWidget* parent = nullptr);

  /// The model; null as long as there is none.
  LineListModel* lineModel() const;
  /// Shows the lines anew; to be called after every change of them.
  void reload();
  /// Runs before new lines are shown: for what depends on the game that they are of.
  std::function<void()> beforeReload;

  /// Shows the lines that fit the columns in them. The extra balls are those of `game`.
  void showColumns(const LineColumns& columns, Game game);
  /// The balls of a table are extra balls.
  void setExtraBalls(bool areExtra) { extraBalls_ = areExtra; }
  bool hasExtraBalls() const { return extraBalls_; }
  /// A list in a drop-down has columns and no header.
  void hideHeader();
  /// None where every line is text.
  const LineColumns& columns() const;
  Game game() const { return game_; }
  /// Null where every line is text.
  LineHeader* header() const { return header_; }
  /// Lets a click on the header ask for another order of the lines.
  void setSortable(std::function<void(int column)> sortBy);

  /// Texts shown in bold where they are a field of a line.
  void setEmphasis(std::vector<std::string> texts);
  const std::vector<std::string>& emphasis() const { return emphasis_; }
  /// Quick, whatever their count is.
  bool emphasises(std::string_view text) const { return emphasised_.contains(text); }
  /// For how many lines there is always room.
  void setLeastRows(int rows) { leastRows_ = rows; }
  /// What an empty list says.
  void setPlaceholder(const QString& text);
  /// The selected lines in the order of the list, each with a line end but the last.
  QString selectedText() const;

  /// The same for every line.
  QSize lineSize() const;

  void keyboardSearch(const QString& typed) override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void updateGeometries() override;
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QSize sizeOf(int width, int rows) const;
  int textWidth(int characters) const;
  bool showsHeader() const { return header_ != nullptr && !headerHidden_ && headerFits_; }
  /// Where all lines are text they have no header and no columns' width.
  void fitHeader();

  LineHeader* header_ = nullptr;
  bool headerHidden_ = false;
  bool headerFits_ = true;
  int leastRows_ = 3;
  bool extraBalls_ = false;
  Game game_ = Game::powerBall;
  std::vector<std::string> emphasis_;
  /// Views of them.
  std::unordered_set<std::string_view> emphasised_;
  QString placeholder_;
  QString typed_;
  QElapsedTimer sinceTyped_;
};

}  // namespace tallywick
