// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/qt_transfer_window.h"

#include "core/outside.h"
#include "ui/qt/parts/wording.h"
#include "update/transfer_status.h"

#include <QApplication>
#include <QProgressDialog>

namespace tallywick {

QtTransferWindow::QtTransferWindow() = default;
QtTransferWindow::~QtTransferWindow() = default;

void QtTransferWindow::show(const TransferInfo& info) {
  constexpr int wholeFile = 100;
  if (!dialog_) {
    dialog_ = std::make_unique<QProgressDialog>(QApplication::activeWindow());
    dialog_->setWindowTitle(toQString(programTitle));
    dialog_->setCancelButton(nullptr);
    dialog_->setMinimumDuration(0);
    dialog_->setAutoReset(false);
  }
  // Without a length the bar only shows that something happens.
  dialog_->setMaximum(info.bytesInAll == 0 ? 0 : wholeFile);
  dialog_->setLabelText(toQString(transferText(info)));
  if (info.bytesInAll != 0) dialog_->setValue(static_cast<int>(wholeFile * info.bytesDone / info.bytesInAll));
  dialog_->show();
}

void QtTransferWindow::close() {
  dialog_.reset();
}

}  // namespace tallywick
