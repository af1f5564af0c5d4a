// SPDX-License-Identifier: GPL-3.0-or-later
// Shows the progress of a transfer in a status bar: what is done, the file in hand and its bytes.
#pragma once

#include "controls/controls.h"
#include "update/transfer_component.h"

#include <string>

namespace tallywick {

/// "QZRNUM6.Dat: 12,345 of 81,000 bytes"; where the server does not report the length, without it.
std::string transferText(const TransferInfo& info);

/// Writes into the bar's first panel.
class TransferStatus : public TransferListener {
 public:
  explicit TransferStatus(StatusBar& bar) : bar_(bar) {}
  void status(std::string_view text) override { bar_.setPanel(1, text); }
  void transferInfo(const TransferInfo& info) override { bar_.setPanel(1, transferText(info)); }

 private:
  StatusBar& bar_;
};

}  // namespace tallywick
