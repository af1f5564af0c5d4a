// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/program/program_icon.h"

namespace tallywick {

using namespace Qt::StringLiterals;

QIcon programIcon() {
  QIcon own;
  for (const int size : {16, 24, 32, 48, 64, 128, 256}) own.addFile(u":/icons/tallywick-%1.png"_s.arg(size));
  return QIcon::fromTheme(u"org.tallywick.Tallywick"_s, own);
}

}  // namespace tallywick
