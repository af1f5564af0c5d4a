// SPDX-License-Identifier: GPL-3.0-or-later
// A small but complete record book for tests that need every file.
#pragma once

#include "core/text.h"
#include "support/scratch_folder.h"

#include <string>

namespace tallywick::test {

/// So many draws of one a day, newest first, from the last day of `year` backwards: 28 days a month. The
/// white balls of draw N (from 0) are N+1, N+2 … modulo 60, the extra ball is N modulo 20 and one, the tenth
/// field "2".
inline std::string dailyDraws(int count, std::string_view fieldsAfterDraw = "\"2\"", int year = 2026) {
  std::string text;
  for (int n = 0; n < count; ++n) {
    const int day = 28 - n % 28;
    const int month = 12 - n / 28 % 12;
    text +=
        join("\"", twoDigits(month), "\",\"", twoDigits(day), "\",\"", std::to_string(year - n / 336), "\"");
    for (int ball = 0; ball < 5; ++ball) text += join(",\"", twoDigits((n + ball) % 60 + 1), "\"");
    text += join(",\"", twoDigits(n % 20 + 1), "\",", fieldsAfterDraw, "\r\n");
  }
  return text;
}

/// Draws, Double Play, amounts and a few plays of both games.
inline void writeRecordBook(const ScratchFolder& scratch) {
  for (const char* folder : {"QzrNumbers/QZR6PWR/", "QzrNumbers/QZR6MEG/"}) {
    scratch.write(join(folder, "QZRNUM6.Dat"), dailyDraws(120));
    scratch.write(join(folder, "QZRNUM62.Dat"), dailyDraws(120));
  }
  scratch.write("QzrNumbers/QZR6PWR/QZRNUM72.Dat",
                dailyDraws(120, R"("2","","41","42","43","44","45","06","")"));
  scratch.write("QzrNumbers/QZR6PWR/QzrPwr.Win",
                records({"12,28,2026,40,1", "12,27,2026, 250 ,0", "12,26,2026,230,0"}));
  scratch.write("QzrNumbers/QZR6MEG/QzrMeg.Win",
                records({"12,28,2026,12,0", "12,27,2026,40,0", "12,26,2026,30,0"}));
  scratch.write("QzrNumbers/QZR6PWR/QZR6PWR2.Ply",
                records({"12-28-2026,01,02,03,50,51,20,3000020", "12-27-2026,50,51,52,53,54,20,0000050"}));
  scratch.write("QzrNumbers/QZR6PWR/QZR6PWR1.Ply", records({"12-30-2026,01,02,03,50,51,20,3000020"}));
}

}  // namespace tallywick::test
