// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/manual_index.h"

#include <QFile>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>
#include <algorithm>
#include <array>
#include <bitset>
#include <functional>
#include <utility>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

/// Its pictures are not looked for.
class TextOnly : public QTextDocument {
  QVariant loadResource(int, const QUrl&) override { return {}; }
};

const QString front = u"index.html"_s;

/// Words of questions, which every page has.
const QStringList smallWords = {u"a"_s,  u"an"_s,  u"can"_s, u"do"_s,  u"does"_s, u"how"_s,
                                u"i"_s,  u"in"_s,  u"is"_s,  u"it"_s,  u"my"_s,   u"of"_s,
                                u"on"_s, u"the"_s, u"to"_s,  u"was"_s, u"what"_s};

constexpr auto anyCase =
    QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption;

/// The words to look for; the plural finds the singular.
QStringList wordsOf(const QString& text) {
  static const QRegularExpression noLetters(u"[^\\w]+"_s, QRegularExpression::UseUnicodePropertiesOption);
  QStringList words = text.toLower().split(noLetters, Qt::SkipEmptyParts);
  words.removeDuplicates();
  QStringList large = words;
  large.removeIf([](const QString& word) { return smallWords.contains(word); });
  if (!large.isEmpty()) words = large;
  for (QString& word : words) {
    if (word.size() > 3 && word.endsWith(u's')) word.chop(1);
  }
  return words;
}

QString beginning(const QString& word) {
  return word.size() == 1 ? u"\\b%1\\b"_s.arg(word) : u"\\b%1\\w*"_s.arg(word);
}

constexpr std::size_t mostWords = 16;
/// A bit for each word looked for.
using Words = std::bitset<mostWords>;

/// What of the words a sentence has: those that begin so, and those that are so.
struct Hits {
  Words begun;
  Words whole;
};

class Query {
 public:
  explicit Query(const QString& text) {
    for (const QString& word : wordsOf(text).mid(0, mostWords)) {
      begun_.emplace_back(beginning(word), anyCase);
      whole_.emplace_back(u"\\b%1s?\\b"_s.arg(word), anyCase);
    }
  }

  std::size_t size() const { return begun_.size(); }

  Hits in(const QString& text) const {
    Hits found;
    for (std::size_t i = 0; i < size(); ++i) {
      found.begun[i] = begun_[i].match(text).hasMatch();
      found.whole[i] = found.begun[i] && whole_[i].match(text).hasMatch();
    }
    return found;
  }

 private:
  std::vector<QRegularExpression> begun_;
  std::vector<QRegularExpression> whole_;
};

/// A rare word tells more than a frequent one.
class Worth {
 public:
  void count(const Hits& hits) {
    for (std::size_t i = 0; i < mostWords; ++i) {
      begun_[i] += hits.begun[i] ? 1 : 0;
      whole_[i] += hits.whole[i] ? 1 : 0;
    }
  }

  double of(const Hits& hits) const {
    double sum = 0;
    for (std::size_t i = 0; i < mostWords; ++i)
      sum += (hits.begun[i] ? 1.0 / begun_[i] : 0) + (hits.whole[i] ? 1.0 / whole_[i] : 0);
    return sum;
  }

 private:
  std::array<int, mostWords> begun_ = {};
  std::array<int, mostWords> whole_ = {};
};

/// A page with some of the words, and its best sentence.
struct Candidate {
  FoundPlace place;
  Words words;
  double worth = 0;
};

/// Those that have the most words.
FoundPlaces bestOf(std::vector<Candidate> pages, std::size_t wordsWanted) {
  std::size_t most = 0;
  for (const Candidate& page : pages) most = std::max(most, page.words.count());
  std::erase_if(pages, [most](const Candidate& page) { return page.words.count() < most; });
  std::ranges::stable_sort(pages, std::greater(), &Candidate::worth);
  FoundPlaces found;
  for (const Candidate& page : pages) found.places.push_back(page.place);
  found.areWhole = most == wordsWanted;
  return found;
}

}  // namespace

ManualIndex::ManualIndex(const QString& folder) : folder_(folder), unread_(folder_.entryList({u"*.html"_s})) {
  // The front page has a little of everything: it comes last.
  if (unread_.removeOne(front)) unread_ += front;
}

bool ManualIndex::readNext() {
  if (unread_.isEmpty()) return false;
  const QString name = unread_.takeFirst();
  QFile file(folder_.filePath(name));
  if (!file.open(QIODevice::ReadOnly)) return true;
  TextOnly text;
  text.setHtml(QString::fromUtf8(file.readAll()));
  pages_.push_back({name, text.metaInformation(QTextDocument::DocumentTitle), sentencesOf(text)});
  return true;
}

std::vector<ManualIndex::Sentence> ManualIndex::sentencesOf(const QTextDocument& page) {
  static const QRegularExpression end(u"(?<=[.?!])\\s+"_s);
  std::vector<Sentence> sentences;
  // The first line leads to the other pages.
  for (QTextBlock block = page.firstBlock().next(); block.isValid(); block = block.next()) {
    const QString text = block.text().simplified();
    if (text.isEmpty()) continue;
    const QTextTable* table = QTextCursor(block).currentTable();
    if (table != nullptr && table->cellAt(block.position()).column() > 0 && !sentences.empty()) {
      sentences.back().text += u": "_s + text;
      continue;
    }
    int position = 0;
    const bool isHeading = block.blockFormat().headingLevel() > 0;
    for (const QString& sentence : block.text().split(end)) {
      position = static_cast<int>(block.text().indexOf(sentence, position));
      sentences.push_back({sentence.simplified(), block.position() + position, isHeading});
    }
  }
  return sentences;
}

FoundPlaces ManualIndex::find(const QString& text) const {
  constexpr double ofHeading = 1.5;
  const Query query(text);
  std::vector<std::vector<Hits>> found(pages_.size());
  Worth worth;
  for (std::size_t page = 0; page < pages_.size(); ++page) {
    for (const Sentence& sentence : pages_[page].sentences)
      worth.count(found[page].emplace_back(query.in(sentence.text)));
  }
  std::vector<Candidate> pages;
  for (std::size_t page = 0; page < pages_.size(); ++page) {
    Candidate best;
    for (std::size_t i = 0; i < found[page].size(); ++i) {
      const Sentence& sentence = pages_[page].sentences[i];
      best.words |= found[page][i].begun;
      const double here = worth.of(found[page][i]) * (sentence.isHeading ? ofHeading : 1);
      if (here <= best.worth) continue;
      best.worth = here;
      best.place = {pages_[page].name, pages_[page].title, sentence.text, sentence.position};
    }
    if (best.words.any()) pages.push_back(best);
  }
  return bestOf(std::move(pages), query.size());
}

QRegularExpression ManualIndex::anyOf(const QString& text) {
  QStringList patterns = wordsOf(text);
  for (QString& word : patterns) word = beginning(word);
  return QRegularExpression(patterns.isEmpty() ? u"(?!)"_s : patterns.join(u'|'), anyCase);
}

}  // namespace tallywick
