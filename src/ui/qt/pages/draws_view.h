// SPDX-License-Identifier: GPL-3.0-or-later
// The draws page: the chart of the last hundred draws, and the newest draws as pictures.
#pragma once

#include <QWidget>

namespace tallywick {

class Binding;
struct DrawsPage;

class DrawsView : public QWidget {
 public:
  DrawsView(DrawsPage& page, Binding& binding);

 private:
  QWidget* chart(DrawsPage& page, Binding& binding);
  QWidget* pictures(DrawsPage& page, Binding& binding);
};

}  // namespace tallywick
