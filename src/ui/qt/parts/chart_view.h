// SPDX-License-Identifier: GPL-3.0-or-later
// The bar chart of the last hundred draws. Each bar has its count on top and its number below; a table beside
// or below it has the same values with the meaning of the colours. The chart can be read as text, saved as a
// picture and printed.
#pragma once

#include "controls/controls.h"

#include <QWidget>
#include <functional>

class QBoxLayout;
class QCPTextElement;
class QCustomPlot;
class QTableWidget;

namespace tallywick {

class HandlerRunner;

class ChartView : public QWidget {
 public:
  explicit ChartView(HandlerRunner& runner, QWidget* parent = nullptr);

  /// What is said of a chart under its title, and of a bar's colour in the table; set before the first chart.
  void setWords(std::function<QString(const Chart&)> explain,
                std::function<QString(Color, bool isLast)> meaningOf);

  void show(const Chart& chart);
  /// The title and each number with its count, for screen readers.
  static QString inWords(const QString& title, const std::vector<Chart::Bar>& bars);

 protected:
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void draw();
  /// The table beside the plot, or below it where there is too little room.
  void arrange();
  void addBar(int place, const Chart::Bar& bar);
  void colorAxes();
  void fillTable();
  void addActions(HandlerRunner& runner);
  void saveAsPicture();
  void print();

  QBoxLayout* parts_;
  QCustomPlot* plot_;
  QCPTextElement* heading_;
  QTableWidget* table_;
  std::function<QString(const Chart&)> explain_;
  std::function<QString(Color, bool isLast)> meaningOf_;
  QString title_;
  QString explanation_;
  std::vector<Chart::Bar> bars_;
};

}  // namespace tallywick
