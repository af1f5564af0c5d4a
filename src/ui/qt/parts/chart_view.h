// SPDX-License-Identifier: GPL-3.0-or-later
// The bar chart of the last hundred draws. Each bar bears its count and its number; the whole can be read as
// text, saved as a picture and printed.
#pragma once

#include "controls/controls.h"

#include <QWidget>

class QCPTextElement;
class QCustomPlot;

namespace tallywick {

class HandlerRunner;

class ChartView : public QWidget {
 public:
  explicit ChartView(HandlerRunner& runner, QWidget* parent = nullptr);

  void show(const Chart& chart);
  /// The title and each number with its count, for screen readers.
  static QString inWords(const QString& title, const std::vector<Chart::Bar>& bars);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void draw();
  void addBar(int place, const Chart::Bar& bar);
  void colorAxes();
  void addActions(HandlerRunner& runner);
  void saveAsPicture();
  void print();

  QCustomPlot* plot_;
  QCPTextElement* heading_;
  QString title_;
  std::vector<Chart::Bar> bars_;
};

}  // namespace tallywick
