// SPDX-License-Identifier: GPL-3.0-or-later
// What is done in the windows alone, without a control of the model: the steps of one walk through them.
#pragma once

#include <QString>

namespace tallywick::bench {

/// Takes the walk `rounds` times in the open main window of `folder`, and prints a line for each step with a
/// name, as measureActions() does. A step lasts until all that it led to is painted; a dialog that it opens
/// stays open for the next one. The folder has the sample of 11-18-2026, as real draws. What the walk saves
/// is written beside the folder.
void measureWindowSteps(const QString& folder, int rounds);

}  // namespace tallywick::bench
