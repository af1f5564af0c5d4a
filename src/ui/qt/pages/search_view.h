// SPDX-License-Identifier: GPL-3.0-or-later
// The search pages: four panels of one shape on a tab strip of their own.
#pragma once

#include <QTabWidget>
#include <vector>

namespace tallywick {

class Binding;
class Button;
class ComboBox;
class Label;
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
};

class SearchPanelView : public QWidget {
 public:
  SearchPanelView(const SearchPanel& panel, Binding& binding);

 private:
  void addSource(const SearchPanel& panel, Binding& binding);
  void addNumbers(const SearchPanel& panel, Binding& binding);
  void addResults(const SearchPanel& panel, Binding& binding);
};

class SearchView : public QTabWidget {
 public:
  SearchView(MainForm& form, Binding& binding);
};

}  // namespace tallywick
