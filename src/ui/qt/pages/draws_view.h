// SPDX-License-Identifier: GPL-3.0-or-later
// The draws page: the chart of the last hundred draws with the newest draws as pictures, and the number
// table.
#pragma once

#include <QTabWidget>
#include <string>

class QLabel;
class QPushButton;

namespace tallywick {

class Binding;
class MainForm;
class NumberTableView;
struct DrawsPage;

class DrawsView : public QTabWidget {
 public:
  DrawsView(MainForm& form, Binding& binding);

  /// To be called after every change of the model.
  void showChanges();
  /// The record book has other draws than before: chart and pictures may lack some.
  void drawsChanged();

 private:
  /// Says of which game the chart is, and whether it or the pictures are older than the draws.
  void showNotes();
  QWidget* chart(DrawsPage& page, Binding& binding);
  QWidget* pictures(DrawsPage& page, Binding& binding);

  const MainForm& form_;
  NumberTableView* numbers_;
  QLabel* chartNote_ = nullptr;
  QPushButton* toNumbers_ = nullptr;
  QLabel* picturesNote_ = nullptr;
  bool isChartOld_ = false;
  bool arePicturesOld_ = false;
  /// The numbers that were pictured last.
  std::string pictured_;
};

}  // namespace tallywick
