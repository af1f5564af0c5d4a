// SPDX-License-Identifier: GPL-3.0-or-later
// Lists of text lines that stay quick with a million lines.
#pragma once

#include "controls/text_lines.h"

#include <QAbstractListModel>
#include <QElapsedTimer>
#include <QListView>
#include <QString>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick {

/// Shows lines that somebody else owns; they must outlive the model.
class LineListModel : public QAbstractListModel {
  Q_OBJECT

 public:
  /// Whether a line is emphasised, asked for the lines on the screen only.
  using StandOut = std::function<bool(std::size_t row, std::string_view line)>;
  enum Role { StandsOutRole = Qt::UserRole };

  explicit LineListModel(const TextLines& lines, QObject* parent = nullptr);

  /// To be called after every change of the lines.
  void reset();
  /// `meaning` is said by screen readers after the line, for example "winning".
  void setStandOut(StandOut standsOut, const QString& meaning);

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

  /// Texts shown in bold where they are a field of a line.
  void setEmphasis(std::vector<std::string> texts);
  const std::vector<std::string>& emphasis() const { return emphasis_; }
  /// What an empty list says.
  void setPlaceholder(const QString& text);
  /// The width that the list asks for, in characters of its face.
  void setColumns(int columns);

  /// The selected lines in the order of the list, each with a line end but the last.
  QString selectedText() const;

  void keyboardSearch(const QString& typed) override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QSize sizeOf(int columns, int rows) const;

  std::vector<std::string> emphasis_;
  QString placeholder_;
  int columns_ = 40;
  QString typed_;
  QElapsedTimer sinceTyped_;
};

}  // namespace tallywick
