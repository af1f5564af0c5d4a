// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/transfer_panel.h"

#include "ui/qt/parts/layouts.h"

#include <QApplication>
#include <QLabel>
#include <QLocale>
#include <QPushButton>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

QString progressText(const TransferProgress& soFar) {
  if (soFar.filesInAll == 0) return u"Connecting…"_s;
  const QLocale locale;
  return u"%1 of %2 files, %3"_s.arg(locale.toString(soFar.files), locale.toString(soFar.filesInAll),
                                     locale.formattedDataSize(static_cast<qint64>(soFar.bytes), 1));
}

}  // namespace

TransferPanel::TransferPanel(QWidget* parent)
    : QWidget(parent), text_(new QLabel(this)), button_(new QPushButton(u"Cancel"_s, this)) {
  button_->setToolTip(u"Stops the update; your files stay as they are (Esc)"_s);
  button_->setShortcut(Qt::Key_Escape);
  connect(button_, &QPushButton::clicked, this, [this] { cancel(); });
  auto* line = new QHBoxLayout(this);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(theme::gap);
  line->addWidget(text_);
  line->addWidget(button_);
  hide();
}

void TransferPanel::showProgress(const TransferProgress& soFar) {
  if (!cancelled_) text_->setText(progressText(soFar));
  if (!isHidden()) return;
  focusBefore_ = QApplication::focusWidget();
  show();
  button_->setFocus();
}

void TransferPanel::end() {
  if (isHidden()) return;
  cancelled_ = false;
  button_->setEnabled(true);
  if (focusBefore_) focusBefore_->setFocus();
  hide();
}

void TransferPanel::cancel() {
  cancelled_ = true;
  button_->setEnabled(false);
  text_->setText(u"Cancelling…"_s);
}

}  // namespace tallywick
