// SPDX-License-Identifier: GPL-3.0-or-later
// Copies every file of a server folder into a local folder.
#pragma once

#include "update/folder_transfer.h"

namespace tallywick {

/// SourceFolder is the server's, TargetFolder the local one.
class Download : public FolderTransfer {
 public:
  /// `listener` hears of the transfer's progress.
  explicit Download(const TransferFactory& newTransfer, TransferListener* listener = nullptr);

  /// Raises the error of an empty property before anything is transferred; the component's errors pass
  /// through.
  void Start();
};

}  // namespace tallywick
