// SPDX-License-Identifier: GPL-3.0-or-later
// The surroundings of a scripted run: boxes are printed and answered from a queue, pages and programs are
// reported.
#pragma once

#include "app/platform.h"
#include "core/clock.h"
#include "core/data_folder.h"

#include <deque>
#include <iosfwd>

namespace tallywick::script {

class ScriptPlatform : public Platform {
 public:
  ScriptPlatform(std::ostream& out, const DataFolder& folder) : out_(out), folder_(folder) {}

  /// Queues the answer of the next Yes/No box; one without an answer in the queue is answered with No.
  void queueAnswer(MessageBox::Answer answer) { answers_.push_back(answer); }
  bool ended() const { return ended_; }

  MessageBox::Answer show(const MessageBox& box) override;
  void refresh() override {}
  void start(std::string_view program, std::string_view workingFolder) override;
  void openWindow(const std::shared_ptr<Form>&) override {}
  void closeWindow(Form&) override {}
  void openPage(std::string_view address) override;
  std::string registryValue(std::string_view key, std::string_view value) override;
  bool fileExists(std::string_view path) override;
  void endProgram() override { ended_ = true; }

 private:
  std::ostream& out_;
  const DataFolder& folder_;
  std::deque<MessageBox::Answer> answers_;
  bool ended_ = false;
};

}  // namespace tallywick::script
