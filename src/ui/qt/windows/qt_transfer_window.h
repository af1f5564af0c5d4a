// SPDX-License-Identifier: GPL-3.0-or-later
// The progress window that a transfer can be asked to show.
#pragma once

#include "update/transfer_component.h"

#include <memory>

class QProgressDialog;

namespace tallywick {

class QtTransferWindow : public TransferWindow {
 public:
  QtTransferWindow();
  ~QtTransferWindow() override;

  void show(const TransferInfo& info) override;
  void close() override;

 private:
  std::unique_ptr<QProgressDialog> dialog_;
};

}  // namespace tallywick
