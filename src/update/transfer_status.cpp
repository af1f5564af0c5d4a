// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/transfer_status.h"

#include "core/text.h"
#include "core/words.h"

namespace tallywick {

std::string transferText(const TransferInfo& info) {
  const std::string inAll = info.bytesInAll == 0 ? "" : join(" of ", grouped(info.bytesInAll));
  return join(info.file, ": ", grouped(info.bytesDone), inAll, " bytes");
}

}  // namespace tallywick
