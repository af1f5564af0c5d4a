// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/script/control_json.h"

#include "core/text.h"

#include <sstream>
#include <string_view>

namespace tallywick::script {

namespace {

Json named(std::string_view name, std::string_view type) {
  return {{"name", name}, {"type", type}};
}

Json itemsOf(const TextLines& lines) {
  Json items = Json::array();
  for (std::size_t i = 0; i < lines.size(); ++i) items.push_back(lines[i]);
  return items;
}

Json describeButton(const Button& button) {
  Json json = named(button.name(), "button");
  json["caption"] = button.caption();
  json["backColor"] = button.backColor().text();
  json["visible"] = button.visible();
  json["enabled"] = button.enabled();
  json["toolTip"] = button.toolTip();
  return json;
}

Json describeLabel(const Label& label) {
  Json json = named(label.name(), "label");
  json["caption"] = label.caption();
  json["visible"] = label.visible();
  return json;
}

Json describeList(const ListBox& list) {
  Json json = named(list.name(), "list");
  json["items"] = itemsOf(list.items());
  json["visible"] = list.visible();
  return json;
}

Json describeCombo(const ComboBox& combo) {
  Json json = named(combo.name(), "combo");
  json["text"] = combo.text();
  json["items"] = itemsOf(combo.items());
  json["visible"] = combo.visible();
  return json;
}

Json describeFrame(const Frame& frame) {
  Json json = named(frame.name(), "frame");
  json["visible"] = frame.visible();
  return json;
}

Json describeTabs(const TabStrip& tabs) {
  Json json = named(tabs.name(), "tabs");
  json["tab"] = tabs.tab();
  return json;
}

Json describeChart(const Chart& chart) {
  Json json = named(chart.name(), "chart");
  json["title"] = chart.title();
  json["bars"] = Json::array();
  for (const Chart::Bar& bar : chart.bars()) {
    json["bars"].push_back({{"value", bar.value}, {"label", bar.label}, {"color", bar.color.text()}});
  }
  return json;
}

Json describeImage(const Image& image) {
  Json json = named(image.name(), "image");
  json["picture"] = image.picture();
  return json;
}

Json describeProgress(const ProgressBar& progress) {
  Json json = named(progress.name(), "progress");
  json["value"] = progress.value();
  json["visible"] = progress.visible();
  return json;
}

Json describeStatus(const StatusBar& status) {
  Json json = named(status.name(), "status");
  json["panels"] = status.panels();
  return json;
}

Json describeMenu(const MenuEntry& entry) {
  Json json = named(entry.name(), "menu");
  json["caption"] = entry.caption();
  json["enabled"] = entry.enabled();
  return json;
}

Json describeOption(const OptionButton& option) {
  Json json = named(option.name(), "option");
  json["value"] = option.value();
  json["visible"] = option.visible();
  return json;
}

std::string_view nameOf(DrawState state) {
  if (state == DrawState::unknown) return "unknown";
  return state == DrawState::drawn ? "drawn" : "waiting";
}

void addMatch(Json& json, const Match& match) {
  json["matched"] = match.whites;
  json["extraMatched"] = match.extra;
  json["wins"] = match.wins();
}

/// A caption as it looks: a doubled ampersand is one, a single one only marks a letter.
std::string looksLike(std::string_view caption) {
  std::string text;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&' && ++i == caption.size()) break;
    text += caption[i];
  }
  return text + "\n";
}

std::string linesOf(const TextLines& lines) {
  std::string text;
  for (std::size_t i = 0; i < lines.size(); ++i) text.append(lines[i]).append("\n");
  return text;
}

std::string panelsOf(const StatusBar& status) {
  std::string text;
  for (const std::string& panel : status.panels()) text.append(text.empty() ? "" : " | ").append(panel);
  return text + "\n";
}

std::string barsOf(const Chart& chart) {
  std::string text = chart.title() + "\n";
  for (const Chart::Bar& bar : chart.bars()) {
    text.append(bar.label).append(": ").append(std::to_string(static_cast<long>(bar.value))).append("\n");
  }
  return text;
}

}  // namespace

Json describe(const Control& control) {
  switch (control.type()) {
    case ControlType::button:
      return describeButton(static_cast<const Button&>(control));
    case ControlType::label:
      return describeLabel(static_cast<const Label&>(control));
    case ControlType::list:
      return describeList(static_cast<const ListBox&>(control));
    case ControlType::combo:
      return describeCombo(static_cast<const ComboBox&>(control));
    case ControlType::frame:
      return describeFrame(static_cast<const Frame&>(control));
    case ControlType::tabs:
      return describeTabs(static_cast<const TabStrip&>(control));
    case ControlType::chart:
      return describeChart(static_cast<const Chart&>(control));
    case ControlType::image:
      return describeImage(static_cast<const Image&>(control));
    case ControlType::progress:
      return describeProgress(static_cast<const ProgressBar&>(control));
    case ControlType::status:
      return describeStatus(static_cast<const StatusBar&>(control));
    case ControlType::menu:
      return describeMenu(static_cast<const MenuEntry&>(control));
    case ControlType::option:
      return describeOption(static_cast<const OptionButton&>(control));
  }
  return {};
}

Json describe(const Form& form) {
  Json json = named(form.name(), "window");
  json["title"] = form.title();
  return json;
}

Json describe(const JudgedPlay& play) {
  Json json;
  json["file"] = play.file == PlaySlot::committed ? "committed" : "played";
  json["date"] = play.date;
  json["white"] = play.white;
  json["extra"] = play.extra;
  json["state"] = nameOf(play.state);
  addMatch(json, play.match);
  json["jackpot"] = play.jackpot;
  json["prize"] = play.prize ? Json(*play.prize) : Json();
  json["doublePlay"] = nullptr;
  if (play.doublePlay) addMatch(json["doublePlay"] = Json::object(), *play.doublePlay);
  return json;
}

namespace {

std::string rawText(const Control& control) {
  switch (control.type()) {
    case ControlType::button:
      return looksLike(static_cast<const Button&>(control).caption());
    case ControlType::label:
      return looksLike(static_cast<const Label&>(control).caption());
    case ControlType::menu:
      return looksLike(static_cast<const MenuEntry&>(control).caption());
    case ControlType::option:
      return looksLike(static_cast<const OptionButton&>(control).caption());
    case ControlType::combo:
      return static_cast<const ComboBox&>(control).text() + "\n";
    case ControlType::list:
      return linesOf(static_cast<const ListBox&>(control).items());
    case ControlType::status:
      return panelsOf(static_cast<const StatusBar&>(control));
    case ControlType::chart:
      return barsOf(static_cast<const Chart&>(control));
    case ControlType::image:
      return static_cast<const Image&>(control).number() + "\n";
    case ControlType::progress:
      return std::to_string(static_cast<const ProgressBar&>(control).value()) + "\n";
    case ControlType::tabs:
      return std::to_string(static_cast<const TabStrip&>(control).tab()) + "\n";
    case ControlType::frame:
      return static_cast<const Frame&>(control).visible() ? "shown\n" : "hidden\n";
  }
  return {};
}

/// Turns every text of `json` into UTF-8.
void makeUtf8(Json& json) {
  if (json.is_string()) {
    std::string& text = json.get_ref<std::string&>();
    text = asUtf8(text);
  }
  if (json.is_structured()) {
    for (Json& part : json) makeUtf8(part);
  }
}

}  // namespace

std::string plainText(const Control& control) {
  std::string raw = rawText(control);
  if (isUtf8(raw)) return raw;
  std::string text;
  std::istringstream lines(raw);
  for (std::string line; std::getline(lines, line);) text.append(asUtf8(line)).append("\n");
  return text;
}

std::string oneLine(const Json& json) {
  try {
    return json.dump();
  } catch (const Json::type_error&) {
    Json shown = json;
    makeUtf8(shown);
    return shown.dump();
  }
}

}  // namespace tallywick::script
