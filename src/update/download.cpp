// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/download.h"

namespace tallywick {

Download::Download(const TransferFactory& newTransfer, TransferListener* listener)
    // Kept slip: the five letters of the scheme.
    : FolderTransfer({"ftp.Download", "fttp://"}, newTransfer) {
  component().setListener(listener);
}

void Download::Start() {
  check(allProperties);
  openSession();
  component().download(closedWith('/', SourceFolder()), "*.*", closedWith('\\', TargetFolder()));
}

}  // namespace tallywick
