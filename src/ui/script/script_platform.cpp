// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/script/script_platform.h"

#include "app/started_program.h"
#include "core/file_names.h"
#include "core/text.h"
#include "ui/script/control_json.h"

#include <filesystem>
#include <iostream>

namespace tallywick::script {

namespace {

std::string_view nameOf(MessageBox::Icon icon) {
  switch (icon) {
    case MessageBox::Icon::none:
      return "none";
    case MessageBox::Icon::exclamation:
      return "exclamation";
    case MessageBox::Icon::information:
      return "information";
    case MessageBox::Icon::question:
      return "question";
  }
  return "none";
}

std::string_view nameOf(MessageBox::Answer answer) {
  if (answer == MessageBox::Answer::ok) return "ok";
  return answer == MessageBox::Answer::yes ? "yes" : "no";
}

}  // namespace

MessageBox::Answer ScriptPlatform::show(const MessageBox& box) {
  MessageBox::Answer answer = MessageBox::Answer::ok;
  if (box.buttons == MessageBox::Buttons::yesNo) {
    answer = MessageBox::Answer::no;
    if (!answers_.empty()) {
      answer = answers_.front();
      answers_.pop_front();
    }
  }
  Json json;
  json["text"] = box.text;
  json["title"] = box.title;
  json["icon"] = nameOf(box.icon);
  json["buttons"] = box.buttons == MessageBox::Buttons::ok ? "ok" : "yesNo";
  json["answer"] = nameOf(answer);
  out_ << oneLine({{"messageBox", json}}) << std::endl;
  return answer;
}

void ScriptPlatform::start(std::string_view program, std::string_view workingFolder) {
  Json json;
  json["program"] = program;
  json["workingFolder"] = workingFolder;
  out_ << oneLine({{"started", json}}) << std::endl;
  startAsked(folder_, program, workingFolder, "tallywick-script");
}

void ScriptPlatform::openPage(std::string_view address) {
  out_ << oneLine({{"opened", address}}) << std::endl;
}

std::string ScriptPlatform::registryValue(std::string_view, std::string_view) {
  return {};
}

bool ScriptPlatform::fileExists(std::string_view path) {
  std::error_code ignored;
  return std::filesystem::is_regular_file(pathOf(path), ignored);
}

}  // namespace tallywick::script
