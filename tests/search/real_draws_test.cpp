// The searches over real draws of both games, against a count of plain numbers over the same exports.
#include "core/text.h"
#include "search/combinations.h"
#include "search_window.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iomanip>
#include <iterator>
#include <sstream>

namespace tallywick {
namespace {

struct Export {
  const char* file;
  const GameInfo* game;
  std::string_view history;
  void (*search)(TwoThreePage&, const DataFolder&, MessageBoxes&);
  Frame GameFrames::*frame;
};

const Export exports[] = {
    {"powerball.csv", &powerBall, test::powerBallDraws, Command38_Click, &GameFrames::Frame4},
    {"mega-millions.csv", &megaMillions, test::megaMillionsDraws, Command25_Click, &GameFrames::Frame11},
};

/// Month, day, year, five white balls, the extra ball; what follows is not looked at.
using Numbers = std::vector<int>;

class RealDraws : public testing::TestWithParam<Export>, public test::SearchWindow {
 protected:
  void SetUp() override {
    const std::filesystem::path file = std::filesystem::path(TALLYWICK_REAL_DRAWS) / GetParam().file;
    if (!std::filesystem::exists(file)) GTEST_SKIP() << "no " << file;
    std::ifstream exported(file);
    std::string line;
    std::string history;
    std::getline(exported, line);
    while (std::getline(exported, line)) {
      history += recordOf(line);
      std::replace_if(
          line.begin(), line.end(), [](char c) { return c < '0' || c > '9'; }, ' ');
      std::istringstream numbers(line);
      draws.emplace_back(std::istream_iterator<int>(numbers), std::istream_iterator<int>());
    }
    ASSERT_GT(draws.size(), 1000U);
    files.write(GetParam().history, history);
    showOnly({GetParam().frame});
    fillDrawPickers(pages, files.folder(), *GetParam().game);
  }

  /// A line of an export as a record: numbers with two digits, a field for each.
  static std::string recordOf(std::string line) {
    std::erase(line, '"');
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '/' || c == ' '; }, ',');
    std::istringstream fields(line + ",");
    std::string record;
    std::string field;
    for (int i = 0; i < 10; ++i) {
      if (!std::getline(fields, field, ',')) field.clear();
      record += (i == 0 ? "\"" : ",\"") + std::string(field.size() == 1 ? "0" : "") + field + "\"";
    }
    return record + "\r\n";
  }

  static std::string dateOf(const Numbers& draw) {
    std::ostringstream date;
    date.fill('0');
    date << ' ' << std::setw(2) << draw[0] << '-' << std::setw(2) << draw[1] << '-' << draw[2];
    return date.str();
  }

  /// The dates of the draws that hold `numbers` among the first `compared` ones.
  std::vector<std::string> datesOf(const std::vector<int>& numbers, std::ptrdiff_t compared) const {
    std::vector<std::string> dates;
    for (const Numbers& draw : draws) {
      std::ptrdiff_t found = 0;
      for (int number : numbers) {
        found +=
            std::min<std::ptrdiff_t>(1, std::count(draw.begin() + 3, draw.begin() + 3 + compared, number));
      }
      if (found == std::ssize(numbers)) dates.push_back(dateOf(draw));
    }
    return dates;
  }

  static std::vector<std::string> datesIn(const ListBox& list) {
    std::vector<std::string> dates = test::itemsOf(list);
    for (std::string& item : dates) item.resize(11);
    return dates;
  }

  std::vector<Numbers> draws;
};

INSTANTIATE_TEST_SUITE_P(Games, RealDraws, testing::ValuesIn(exports),
                         [](const auto& exported) { return std::string(exported.param.game->code); });

TEST_P(RealDraws, EveryCombinationFindsTheDrawsOfAnIndependentCount) {
  TwoThreePage& page = pages.twoThree;
  for (std::size_t source = 0; source < draws.size(); source += 61) {
    page.Combo4.setText(page.Combo4.items()[source]);
    for (const Combination& combination : combinations) {
      Command37_Click(page);
      std::vector<int> numbers;
      for (std::size_t i = 0; i < combination.size(); ++i) {
        toggleMark(page.numbers[combination.positions[i] - 1U]);
        numbers.push_back(draws[source][combination.positions[i] + 2U]);
      }
      const bool isWhiteOnly =
          combination.positions == Positions{1, 2, 3} || combination.positions == Positions{1, 2, 4};
      const std::vector<std::string> expected = datesOf(numbers, isWhiteOnly ? 5 : 6);
      GetParam().search(page, files.folder(), boxes);
      ASSERT_EQ(datesIn(page.List8), expected) << page.Label25.caption();
      ASSERT_TRUE(page.Label25.caption().ends_with(" " + std::to_string(expected.size()) + "  Times."));
    }
  }
}

TEST_P(RealDraws, EveryNumberIsCountedAsByAnIndependentCount) {
  for (int number = 1; number < 80; ++number) {
    pages.played.Command23.setCaption(twoDigits(number));
    Command30_Click(pages.played, frames, files.folder(), boxes);
    const std::vector<std::string> expected = datesOf({number}, 6);
    ASSERT_EQ(datesIn(pages.played.List7), expected) << number;
    ASSERT_EQ(pages.played.Label24.caption(),
              twoDigits(number) + " Played: " + std::to_string(expected.size()) + " Times");
  }
}

}  // namespace
}  // namespace tallywick
