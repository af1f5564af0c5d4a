// SPDX-License-Identifier: GPL-3.0-or-later
// Opens an empty window of the toolkit, of the main window's size, and ends when it is painted.
#include "painted_window.h"

#include <QApplication>
#include <QMainWindow>

int main(int count, char** arguments) {
  const QApplication qt(count, arguments);
  QMainWindow window;
  window.resize(1200, 800);
  tallywick::bench::paint([&] { window.show(); });
  return 0;
}
