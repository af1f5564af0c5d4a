// SPDX-License-Identifier: GPL-3.0-or-later
// The sentences of the manual's pages, and which of them have the words that a player looks for.
#pragma once

#include <QDir>
#include <QRegularExpression>
#include <QStringList>
#include <vector>

class QTextDocument;

namespace tallywick {

/// A page, and its sentence that tells most about the words.
struct FoundPlace {
  QString page;
  QString title;
  QString sentence;
  /// Of the sentence, in the page's document.
  int position = 0;
};

struct FoundPlaces {
  std::vector<FoundPlace> places;
  /// Every place's page has every word.
  bool areWhole = true;
};

/// Finds in the pages that have been read.
class ManualIndex {
 public:
  explicit ManualIndex(const QString& folder);

  /// Reads one more page, so that no step is long; false where all are read.
  bool readNext();
  /// The pages that have all of these words, or else the most of them, the best page first. A word stands for
  /// all that begin with it.
  FoundPlaces find(const QString& words) const;
  /// What to light for these words; matches nothing where there are none.
  static QRegularExpression anyOf(const QString& words);

 private:
  struct Sentence {
    QString text;
    int position = 0;
    bool isHeading = false;
  };
  struct Page {
    QString name;
    QString title;
    std::vector<Sentence> sentences;
  };

  static std::vector<Sentence> sentencesOf(const QTextDocument& page);

  QDir folder_;
  QStringList unread_;
  std::vector<Page> pages_;
};

}  // namespace tallywick
