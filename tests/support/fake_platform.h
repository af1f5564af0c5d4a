// SPDX-License-Identifier: GPL-3.0-or-later
// A platform that keeps what it is asked for.
#pragma once

#include "app/application.h"
#include "support/fakes.h"
#include "support/record_book.h"

#include <map>
#include <string>
#include <vector>

namespace tallywick::test {

class FakePlatform : public Platform {
 public:
  MessageBox::Answer show(const MessageBox& box) override { return boxes.show(box); }
  void refresh() override {}
  void start(std::string_view program, std::string_view folder) override { starter.start(program, folder); }
  void openWindow(const std::shared_ptr<Form>& form) override { events.push_back("open " + form->name()); }
  void closeWindow(Form& form) override { events.push_back("close " + form.name()); }
  void openPage(std::string_view address) override { events.push_back("page " + std::string(address)); }
  std::string registryValue(std::string_view key, std::string_view value) override {
    return registry[join(key, ":", value)];
  }
  bool fileExists(std::string_view path) override { return path == existingFile; }
  void endProgram() override { events.push_back("end"); }

  RecordingBoxes boxes;
  RecordingStarter starter;
  std::vector<std::string> events;
  std::map<std::string, std::string> registry;
  std::string existingFile;
};

/// The program with everything around it faked, on a complete record book.
class ApplicationTest {
 public:
  ApplicationTest() { writeRecordBook(scratch); }

  MainForm& start() {
    application.showMainWindow();
    return static_cast<MainForm&>(*application.find("Form1"));
  }
  void press(std::string_view name) const { click(*application.find("Form1")->find(name)); }

  ScratchFolder scratch;
  FakePlatform platform;
  FixedClock clock{"12-28-2026", "12:00:00"};
  MixingGenerator random{1};
  Application application{
      {scratch.folder(), {"", Settings::Tls::off, "https://example.org/", ""}, clock, random, platform, {}}};
};

}  // namespace tallywick::test
