// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/pages/drawn_lists.h"

#include "core/text.h"
#include "core/words.h"
#include "frames/game_frames.h"
#include "plays/judged_plays.h"
#include "plays/play_table.h"
#include "ui/qt/binding/binding.h"
#include "ui/qt/parts/ball.h"
#include "ui/qt/parts/layouts.h"
#include "ui/qt/parts/line_list.h"
#include "ui/qt/parts/picker.h"

#include <QButtonGroup>
#include <algorithm>
#include <exception>
#include <memory>
#include <optional>
#include <unordered_map>

namespace tallywick {

namespace {

std::string titleOf(LineField field, Game game) {
  switch (field) {
    case LineField::date:
      return "Date";
    case LineField::whites:
      return "Numbers";
    case LineField::extra:
      return std::string(extraBallName(game));
    case LineField::amount:
      return join("Amount (", amountUnit, ")");
    case LineField::matched:
      return "Matched";
    case LineField::prize:
      return "Prize";
    case LineField::ball:
    case LineField::figure:
      break;
  }
  return {};
}

template <typename Numbers>
std::string keyOf(std::string_view date, const Numbers& white, std::string_view extra) {
  std::string key(date);
  for (std::string_view number : white) key.append(" ").append(number);
  return key.append(" ").append(extra);
}

/// What the plays of a game matched, by their dates and numbers.
class MatchedPlays {
 public:
  explicit MatchedPlays(PlayJudge& judge) : judge_(judge) {}

  /// The files may have changed.
  void forget() { highlights_.reset(); }

  LineHighlights of(const ListedLine& play, Game game) {
    if (!highlights_) read(game);
    const auto found = highlights_->find(keyOf(play.date, play.white, play.extra));
    return found == highlights_->end() ? LineHighlights() : found->second;
  }

 private:
  void read(Game game) {
    highlights_.emplace();
    try {
      const std::shared_ptr<const JudgedPlays> judged = judge_.plays(infoOf(game));
      for (const JudgedPlay& play : judged->judgement.plays) {
        if (play.state != DrawState::drawn) continue;
        highlights_->insert_or_assign(keyOf(play.date, play.white, play.extra),
                                      LineHighlights{play.match.whites, play.match.extra, play.match.wins(),
                                                     matchCount(play.match, game), prizeText(play)});
      }
    } catch (const std::exception&) {
      // Painting raises nothing; where a file is missing the plays are shown without matches.
      highlights_->clear();
    }
  }

  PlayJudge& judge_;
  std::optional<std::unordered_map<std::string, LineHighlights>> highlights_;
};

}  // namespace

GameOfLines gameOnShowOf(const GameFrames& frames) {
  return [&frames] {
    const GameInfo* const game = gameOnShow(frames);
    return game != nullptr ? game->game : Game::powerBall;
  };
}

LineColumns columnsFor(const LineFields& fields, Game game) {
  LineColumns columns;
  for (const LineField field : fields) columns.push_back({field, titleOf(field, game)});
  // Beside numbers there is little room; what it is the list's heading says.
  const bool hasNumbers = std::ranges::find(fields, LineField::whites) != fields.end();
  for (LineColumn& column : columns) {
    if (hasNumbers && column.field == LineField::amount) column.title = amountUnit;
  }
  return columns;
}

void showInColumns(LineList& list, const LineFields& fields, const GameOfLines& gameOf) {
  list.beforeReload = [&list, fields, gameOf] {
    const Game game = gameOf();
    list.showColumns(columnsFor(fields, game), game);
  };
  list.beforeReload();
}

void showInColumns(Picker& picker, const LineFields& fields, const GameOfLines& gameOf) {
  picker.beforeReload = [&picker, fields, gameOf] {
    const Game game = gameOf();
    picker.showColumns(columnsFor(fields, game), game);
  };
  picker.beforeReload();
}

QHBoxLayout* ballRow(std::span<Button* const> numbers, const GameOfLines& gameOf, Binding& binding,
                     QWidget* parent) {
  constexpr std::size_t extra = 5;
  QHBoxLayout* balls = row();
  auto* group = new QButtonGroup(parent);
  group->setExclusive(false);
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    auto* ball = new BallButton(parent);
    if (i == extra) ball->setExtraBallOf(gameOf);
    group->addButton(ball);
    balls->addWidget(ball);
    binding.bind(*numbers[i], *ball);
  }
  return balls;
}

void highlightMatches(LineList& list, PlayJudge& judge) {
  const auto plays = std::make_shared<MatchedPlays>(judge);
  list.beforeReload = [plays, show = list.beforeReload] {
    plays->forget();
    show();
  };
  list.lineModel()->setHighlight([&list, plays](std::string_view line) {
    const auto isMatched = [](const LineColumn& column) { return column.field == LineField::matched; };
    if (std::ranges::none_of(list.columns(), isMatched)) return LineHighlights();
    return plays->of(readLine(line), list.game());
  });
}

void highlightCommon(LineList& list, PlayJudge& judge, const std::optional<ComparedDraw>& draw) {
  const auto plays = std::make_shared<MatchedPlays>(judge);
  list.beforeReload = [plays, show = list.beforeReload] {
    plays->forget();
    show();
  };
  list.lineModel()->setHighlight([&list, &draw, plays](std::string_view line) {
    const ListedLine play = readLine(line);
    if (!draw || play.white.front().empty()) return LineHighlights();
    Match match;
    for (const std::string_view number : play.white) {
      if (std::ranges::find(draw->white, number) != draw->white.end()) match.whites.emplace_back(number);
    }
    match.extra = play.extra == draw->extra;
    const bool isItsOwn = play.date == draw->date;
    return LineHighlights{match.whites, match.extra, isItsOwn && match.wins(), matchCount(match, list.game()),
                          isItsOwn ? plays->of(play, list.game()).prize : "other date"};
  });
}

}  // namespace tallywick
