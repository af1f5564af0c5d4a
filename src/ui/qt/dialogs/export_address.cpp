// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/dialogs/export_address.h"

#include "ui/qt/parts/wording.h"
#include "update/public_exports.h"

#include <QLineEdit>
#include <algorithm>

namespace tallywick {

std::string exportOf(const std::vector<ExportAddress>& addresses, Game game) {
  const auto found = std::ranges::find(addresses, game, &ExportAddress::game);
  return found == addresses.end() ? std::string() : found->address;
}

QLineEdit* addressField(const QString& name, const std::string& address) {
  auto* field = new QLineEdit(toQString(address));
  field->setReadOnly(true);
  field->setCursorPosition(0);
  field->setAccessibleName(name);
  return field;
}

}  // namespace tallywick
