// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/script/script_run.h"

#include "core/text.h"
#include "display/judging.h"
#include "ui/script/control_json.h"

#include <iostream>
#include <istream>
#include <ostream>

namespace tallywick::script {

namespace {

/// Cuts the first word off `rest`, with the blanks before it and the one behind it.
std::string_view takeWord(std::string_view& rest) {
  while (rest.starts_with(' ')) rest.remove_prefix(1);
  const std::size_t blank = rest.find(' ');
  const std::string_view word = rest.substr(0, blank);
  rest.remove_prefix(blank == std::string_view::npos ? rest.size() : blank + 1);
  return word;
}

template <typename Use>
void forEachWord(std::string_view rest, Use use) {
  if (trimmed(rest).empty()) throw BadLine("a name is missing");
  while (!rest.empty()) {
    const std::string_view word = takeWord(rest);
    if (!word.empty()) use(word);
  }
}

bool canBeClicked(ControlType type) {
  return type == ControlType::button || type == ControlType::menu || type == ControlType::option;
}

std::string_view itemAt(const TextLines& items, std::size_t index) {
  if (index >= items.size()) throw BadLine(join("there are ", std::to_string(items.size()), " items"));
  return items[index];
}

}  // namespace

void ScriptRun::run(std::istream& lines) {
  std::string line;
  for (std::size_t number = 1; !platform_.ended() && std::getline(lines, line); ++number) {
    if (line.ends_with('\r')) line.pop_back();
    try {
      runLine(line);
    } catch (const BadLine& error) {
      throw BadLine(join("line ", std::to_string(number), ": ", error.what()));
    }
  }
  if (lines.bad()) throw BadLine("the script cannot be read to its end");
}

void ScriptRun::runLine(std::string_view line) {
  std::string_view rest = line;
  const std::string_view verb = takeWord(rest);
  if (verb.empty() || verb.starts_with('#')) return;
  if (verb == "click") {
    click(trimmed(rest));
  } else if (verb == "choose") {
    choose(rest);
  } else if (verb == "type") {
    type(rest);
  } else if (verb == "answer") {
    answer(trimmed(rest));
  } else if (verb == "now") {
    if (!clock_.set(trimmed(rest))) throw BadLine("now takes MM-DD-YYYY HH:MM:SS");
  } else if (verb == "show") {
    forEachWord(rest, [&](std::string_view name) { show(name); });
  } else if (verb == "print") {
    forEachWord(rest, [&](std::string_view name) { print(name); });
  } else if (verb == "close") {
    close(trimmed(rest));
  } else if (verb == "windows") {
    if (!trimmed(rest).empty()) throw BadLine("windows takes no argument");
    listWindows();
  } else if (verb == "plays") {
    judgePlays(trimmed(rest));
  } else {
    throw BadLine(join("\"", verb, "\" is not a command"));
  }
}

void ScriptRun::click(std::string_view name) {
  Control& target = control(name);
  if (!canBeClicked(target.type())) throw BadLine(join(name, " cannot be clicked"));
  if (!tallywick::click(target)) out_ << oneLine({{"notClickable", name}}) << std::endl;
}

void ScriptRun::choose(std::string_view rest) {
  Control& target = control(takeWord(rest));
  const auto number = wholeNumber<std::size_t>(trimmed(rest));
  if (!number) throw BadLine("choose takes a name and an index from 0");
  const std::size_t index = *number;
  if (auto* combo = dynamic_cast<ComboBox*>(&target)) {
    combo->setText(std::string(itemAt(combo->items(), index)));
  } else if (auto* tabs = dynamic_cast<TabStrip*>(&target)) {
    if (index >= static_cast<std::size_t>(tabs->tabs())) throw BadLine("there is no such tab");
    tabs->setTab(static_cast<int>(index));
  } else if (auto* list = dynamic_cast<ListBox*>(&target)) {
    // Nothing follows from the choice in a list; only that there is such an item.
    static_cast<void>(itemAt(list->items(), index));
  } else {
    throw BadLine(join(target.name(), " has no items"));
  }
}

void ScriptRun::type(std::string_view rest) {
  Control& target = control(takeWord(rest));
  auto* combo = dynamic_cast<ComboBox*>(&target);
  if (combo == nullptr) throw BadLine(join(target.name(), " is not a drop-down"));
  combo->setText(rest);
}

void ScriptRun::answer(std::string_view rest) {
  if (rest != "yes" && rest != "no") throw BadLine("answer takes yes or no");
  platform_.queueAnswer(rest == "yes" ? MessageBox::Answer::yes : MessageBox::Answer::no);
}

void ScriptRun::show(std::string_view name) {
  const Form* form = application_.find(name);
  out_ << oneLine(form != nullptr ? describe(*form) : describe(control(name))) << std::endl;
}

void ScriptRun::print(std::string_view name) {
  const Form* form = application_.find(name);
  out_ << (form != nullptr ? form->title() + "\n" : plainText(control(name))) << std::flush;
}

void ScriptRun::close(std::string_view name) {
  const Form* form = application_.find(name);
  if (form == nullptr) throw BadLine(join("no window \"", name, "\" is open"));
  application_.close(*form);
}

void ScriptRun::listWindows() {
  Json names = Json::array();
  for (const Form* form : application_.windows()) names.push_back(form->name());
  out_ << oneLine({{"windows", names}}) << std::endl;
}

void ScriptRun::judgePlays(std::string_view game) {
  if (game != "powerball" && game != "mega-millions") throw BadLine("plays takes powerball or mega-millions");
  const GameInfo& info = game == "powerball" ? powerBall : megaMillions;
  const Judgement judgement = tallywick::judgePlays(info, application_.surroundings().folder);
  for (const JudgedPlay& play : judgement.plays) out_ << oneLine({{"play", describe(play)}}) << "\n";
  out_ << std::flush;
  for (const std::string& torn : judgement.torn) {
    std::cerr << "tallywick-script: " << torn << "; what comes before it is judged" << std::endl;
  }
}

Control& ScriptRun::control(std::string_view name) const {
  const std::size_t dot = name.find('.');
  const std::string_view window = dot == std::string_view::npos ? "Form1" : name.substr(0, dot);
  const std::string_view controlName = dot == std::string_view::npos ? name : name.substr(dot + 1);
  const Form* form = application_.find(window);
  if (form == nullptr) throw BadLine(join("no window \"", window, "\" is open"));
  Control* found = form->find(controlName);
  if (found == nullptr) throw BadLine(join(window, " has no control \"", controlName, "\""));
  return *found;
}

}  // namespace tallywick::script
