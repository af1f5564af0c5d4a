// SPDX-License-Identifier: GPL-3.0-or-later
// The model's texts as a widget shows them: ampersands and mnemonics.
#pragma once

#include <QString>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace tallywick {

QString toQString(std::string_view text);
std::string toText(const QString& text);
/// A file's path as text; bytes that are no UTF-8 are shown as question marks.
QString pathText(const std::filesystem::path& file);
std::filesystem::path toPath(const QString& file);

/// How a caption is put on the screen.
using Wording = std::function<QString(std::string_view caption)>;

/// Unchanged, for a widget that knows mnemonics: an ampersand is one, not a mark.
Wording literally();
/// As literally(), with the first `letter` of the caption (in either case) as its mnemonic.
Wording withMnemonic(char letter);
/// A label's caption: a doubled ampersand is one. For labels that are nobody's buddy.
Wording asLabel();
/// A label's caption as the label of another control, with a mnemonic that leads there.
Wording asLabelOfControl(char letter);

}  // namespace tallywick
