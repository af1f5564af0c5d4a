// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/dialogs/fetch_dialog.h"

#include <QCoreApplication>
#include <QLocale>

namespace tallywick {

using namespace Qt::StringLiterals;

FetchDialog::FetchDialog(QWidget* parent) : dialog_(u"Connecting…"_s, u"&Cancel"_s, 0, 0, parent) {
  constexpr int letters = 48;
  dialog_.setWindowTitle(u"Fetching the Draws of Both Games"_s);
  dialog_.setWindowModality(Qt::ApplicationModal);
  dialog_.setMinimumWidth(dialog_.fontMetrics().averageCharWidth() * letters);
  dialog_.setAutoClose(false);
  dialog_.setMinimumDuration(0);
  dialog_.show();
}

void FetchDialog::progress(const TransferProgress& soFar) {
  if (soFar.bytes > 0) {
    const QLocale locale;
    dialog_.setLabelText(
        u"%1 of %2 files, %3"_s.arg(locale.toString(soFar.files), locale.toString(soFar.filesInAll),
                                    locale.formattedDataSize(static_cast<qint64>(soFar.bytes), 1)));
  }
  QCoreApplication::processEvents();
}

}  // namespace tallywick
