// SPDX-License-Identifier: GPL-3.0-or-later
// Shows how far a fetch of draws is where no window of the model does, with Cancel.
#pragma once

#include "update/transfer_component.h"

#include <QProgressDialog>

namespace tallywick {

class FetchDialog : public TransferWatch {
 public:
  explicit FetchDialog(QWidget* parent);

  void progress(const TransferProgress& soFar) override;
  bool cancelled() override { return dialog_.wasCanceled(); }

 private:
  QProgressDialog dialog_;
};

}  // namespace tallywick
