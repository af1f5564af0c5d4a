// SPDX-License-Identifier: GPL-3.0-or-later
// Times start-up and every action on a data folder without windows: `tallywick_model_actions FOLDER
// [ROUNDS]`.
#include "actions.h"
#include "reported_main.h"
#include "support/fake_platform.h"

#include <cstdio>
#include <cstdlib>

namespace tallywick {
namespace {

int run(int count, char** arguments) {
  if (count < 2) {
    std::fprintf(stderr, "usage: %s FOLDER [ROUNDS]\n", arguments[0]);
    return 2;
  }
  const DataFolder folder{std::filesystem::path(arguments[1])};
  test::FakePlatform platform;
  const FixedClock clock("11-20-2026", "12:00:00");
  MixingGenerator random(1);
  Application application({folder, {}, clock, random, platform, {}});
  application.showMainWindow();
  bench::measureActions([&](std::string_view step) { bench::perform(application, step); },
                        count > 2 ? std::atoi(arguments[2]) : 2);
  return 0;
}

}  // namespace
}  // namespace tallywick

int main(int count, char** arguments) {
  return tallywick::bench::reported(tallywick::run, count, arguments);
}
