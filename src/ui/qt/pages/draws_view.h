// SPDX-License-Identifier: GPL-3.0-or-later
// The draws page: the chart of the last hundred draws with the newest draws as pictures, and the number
// table.
#pragma once

#include <QTabWidget>

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

 private:
  QWidget* chart(DrawsPage& page, Binding& binding);
  QWidget* pictures(DrawsPage& page, Binding& binding);

  NumberTableView* numbers_;
};

}  // namespace tallywick
