// SPDX-License-Identifier: GPL-3.0-or-later
// The search pages: four panels of one shape on a tab strip of their own.
#pragma once

#include "search/search_hints.h"
#include "ui/qt/pages/drawn_lists.h"

#include <QTabWidget>
#include <functional>
#include <memory>
#include <vector>

class QLabel;

namespace tallywick {

class Binding;
class Button;
class ComboBox;
class DataFolder;
class HintPanel;
class Label;
class LineList;
class ListBox;
class MainForm;

/// What a panel is made of.
struct SearchPanel {
  struct Search {
    Button& button;
    /// What is searched, where a panel has several searches.
    QString name;
    char mnemonic;
  };

  QString sourceLabel;
  ComboBox& source;
  std::vector<Button*> displays;
  std::vector<Button*> numbers;
  std::vector<Search> searches;
  ComboBox& results;
  Label& tally;
  ListBox& list;
  /// The list's heading before a search and, where a search fills it, after one.
  QString listTitle;
  /// What a press will search, and what it would be searching.
  std::function<SearchHint()> hint = {};
  std::function<Searched()> now = {};
  std::shared_ptr<SearchMemory> memory = {};
  /// How many balls a search takes.
  std::size_t mostMarked = 1;
  /// Of which game the numbers are.
  GameOfLines gameOf = {};
};

class SearchPanelView : public QWidget {
 public:
  SearchPanelView(const SearchPanel& panel, Binding& binding);

  /// Says what a press will search and whose result is shown; to be called after every change of the model.
  void showHints();
  /// The record book has other draws than before.
  void drawsChanged() { panel_.memory->drawsChanged(); }

 private:
  void addSource(const SearchPanel& panel, Binding& binding);
  void addNumbers(const SearchPanel& panel, Binding& binding);
  void addResults(const SearchPanel& panel, Binding& binding);
  QWidget* lists(const SearchPanel& panel, Binding& binding);
  /// Under the drop-down: how many draws were found, and a list of them where the model's own has none.
  void showFound();

  SearchPanel panel_;
  HintPanel* hint_ = nullptr;
  QLabel* listTitle_ = nullptr;
  QLabel* found_ = nullptr;
  /// The model's list with its title, and beside it the window's own of what was found.
  QWidget* listed_ = nullptr;
  QWidget* foundLines_ = nullptr;
  std::size_t foundRevision_ = 0;
};

class SearchView : public QTabWidget {
 public:
  SearchView(MainForm& form, const DataFolder& folder, Binding& binding);

  void showHints();
  /// The record book has other draws than before: what was found may lack some.
  void drawsChanged();

 private:
  void add(SearchPanel panel, const QString& title, const GameOfLines& gameOf, Binding& binding);

  std::vector<SearchPanelView*> panels_;
};

}  // namespace tallywick
