// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/parts/wording.h"

#include "core/file_names.h"
#include "core/text.h"

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

QString escaped(QString text) {
  return text.replace(u'&', u"&&"_s);
}

QString singleAmpersands(std::string_view caption) {
  return toQString(caption).replace(u"&&"_s, u"&"_s);
}

QString marked(const QString& text, char letter) {
  const auto at = text.indexOf(QLatin1Char(letter), 0, Qt::CaseInsensitive);
  if (at < 0) return escaped(text);
  return escaped(text.left(at)) + u'&' + escaped(text.mid(at));
}

}  // namespace

QString toQString(std::string_view text) {
  return QString::fromStdString(asUtf8(text));
}

std::string toText(const QString& text) {
  return text.toStdString();
}

QString pathText(const std::filesystem::path& file) {
  return toQString(textOf(file));
}

std::filesystem::path toPath(const QString& file) {
  return pathOf(toText(file));
}

Wording literally() {
  return [](std::string_view caption) { return escaped(toQString(caption)); };
}

Wording withMnemonic(char letter) {
  return [letter](std::string_view caption) { return marked(toQString(caption), letter); };
}

Wording asLabel() {
  return singleAmpersands;
}

Wording asLabelOfControl(char letter) {
  return [letter](std::string_view caption) { return marked(singleAmpersands(caption), letter); };
}

}  // namespace tallywick
