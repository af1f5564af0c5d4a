// SPDX-License-Identifier: GPL-3.0-or-later
// Rows and sides that also fit into a narrow window, as large text makes it: a row goes on in the next line,
// and what is side by side goes below each other.
#pragma once

#include <QLayout>
#include <QSplitter>
#include <vector>

namespace tallywick {

/// A row that goes on in the next line where it is too long. Its height does not follow from its width, as
/// with Sentences.
class Flow : public QLayout {
 public:
  explicit Flow(QWidget* parent = nullptr);
  ~Flow() override;

  /// What stretches shares the rest of its line with others that do.
  void addWidget(QWidget* widget, bool stretches = false);
  void addLayout(QLayout* layout);
  void addSpacing(int width);
  void addStretch();

  void addItem(QLayoutItem* item) override;
  int count() const override { return static_cast<int>(items_.size()); }
  QLayoutItem* itemAt(int index) const override;
  QLayoutItem* takeAt(int index) override;
  QSize sizeHint() const override;
  QSize minimumSize() const override;
  void setGeometry(const QRect& rect) override;

 private:
  struct Item {
    QLayoutItem* item;
    bool stretches;
  };
  struct Line {
    std::vector<Item> items;
    int width = 0;
    int height = 0;
  };

  std::vector<Line> linesIn(int width) const;
  int heightIn(int width) const;
  void place(const Line& line, const QRect& area) const;

  std::vector<Item> items_;
  /// The last one; the toolkit forgets it with each change.
  int width_ = 0;
};

/// Parts beside each other; below each other where they need more width than there is.
class Sides : public QSplitter {
 public:
  /// What each part needs beside the others.
  enum class Room { least, wanted };
  /// The name is for the memory of the layout.
  explicit Sides(const QString& name, Room room = Room::wanted);

  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  int neededWidth() const;
  void arrange();

  const Room room_;
};

}  // namespace tallywick
