// SPDX-License-Identifier: GPL-3.0-or-later
#include "plays/judged_plays.h"

#include "core/draws.h"

namespace tallywick {

std::shared_ptr<const JudgedPlays> PlayJudge::plays(const GameInfo& game) {
  const std::vector<std::string> files = filesJudged(game);
  return judged_[game.game].of(stampsOf(folder_, files), [&] {
    JudgedPlays judged{readPlayTexts(game, folder_), {}};
    judged.judgement = judgePlays(game, folder_, judged.texts.played, judged.texts.committed);
    return std::make_shared<const JudgedPlays>(std::move(judged));
  });
}

}  // namespace tallywick
