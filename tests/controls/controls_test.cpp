// SPDX-License-Identifier: GPL-3.0-or-later
// The controls by themselves: what a form finds, which changes reach a binding, and what can be pressed.
#include "controls/controls.h"

#include "controls/button_row.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace tallywick {
namespace {

struct Controls : testing::Test {
  /// The names of the controls that changed since the last call.
  std::string changes() {
    std::string names;
    for (const Control* control : form.takeChanges()) names += control->name() + " ";
    return names;
  }
  Form form{"Form1"};
};

TEST_F(Controls, AFormFindsThemByNameAndAliasInTheirOrder) {
  ButtonRow<2> row(form, {"Command2", "Command1"});
  form.addAlias("01", row[1]);
  EXPECT_EQ(form.find("Command2"), &row[0]);
  EXPECT_EQ(form.find("01"), &row[1]);
  EXPECT_EQ(form.find("command1"), nullptr);
  EXPECT_EQ(form.controls(), (std::vector<Control*>{&row[0], &row[1]}));
  EXPECT_THROW(Label(form, "01"), std::logic_error);
}

// Each row makes a change, and then the same one again, which is none.
TEST_F(Controls, EachChangeIsReportedOnceAndNoChangeIsNot) {
  Button button(form, "button", "a");
  Label label(form, "label");
  ComboBox combo(form, "combo");
  TabStrip tabs(form, "tabs", 4);
  ProgressBar progress(form, "progress");
  StatusBar status(form, "status", 3);
  MenuEntry entry(form, "entry", "&File");
  OptionButton option(form, "option", "x");
  EXPECT_EQ(changes(), "");
  const std::pair<const char*, std::function<void()>> rows[] = {
      {"button", [&] { button.setCaption("b"); }},
      {"button", [&] { button.setBackColor(colors::cyan); }},
      {"button", [&] { button.setEnabled(false); }},
      {"button", [&] { button.setToolTip("tip"); }},
      {"button", [&] { button.hide(); }},
      {"button", [&] { button.show(); }},
      {"label", [&] { label.setCaption("c"); }},
      {"combo", [&] { combo.setText("t"); }},
      {"tabs", [&] { tabs.setTab(3); }},
      {"progress", [&] { progress.setValue(50); }},
      {"status", [&] { status.setPanel(3, "x"); }},
      {"entry", [&] { entry.setEnabled(false); }},
      {"option", [&] { option.setValue(true); }},
  };
  for (const auto& [name, change] : rows) {
    change();
    change();
    EXPECT_EQ(changes(), std::string(name) + " ");
    change();
    EXPECT_EQ(changes(), "") << name;
  }
  EXPECT_EQ(status.panels(), (std::vector<std::string>{"", "", "x"}));
  EXPECT_THROW(status.setPanel(4, ""), std::out_of_range);
}

TEST_F(Controls, ListsPicturesAndChartsAreShownAnewEachTime) {
  ListBox list(form, "list");
  ComboBox combo(form, "combo");
  Image image(form, "image", true);
  Chart chart(form, "chart");
  combo.setText("text");
  for (int times = 0; times < 2; ++times) {
    changes();
    image.load("%01.bmp", "01");
    chart.clear();
    chart.setTitle("title");
    chart.addBar(2, "07", colors::red);
    EXPECT_EQ(changes(), "image ") << "the chart waits for draw()";
    chart.draw();
    list.add("a");
    list.add("b");
    list.setEmphasis({"a", ""});
    combo.add("item");
    EXPECT_EQ(changes(), "chart list combo ");
  }
  EXPECT_EQ(image.picture() + image.number() + (image.isExtraBall() ? "+" : ""), "%01.bmp01+");
  EXPECT_EQ(chart.bars().size(), 1U);
  EXPECT_EQ(list.items().size(), 4U);
  EXPECT_EQ(list.items()[3], "b");
  EXPECT_EQ(list.emphasis(), std::vector<std::string>{"a"}) << "an empty text cannot stand out";
  const std::size_t revision = list.items().revision();
  list.clear();
  combo.clear();
  EXPECT_EQ(changes(), "list combo ");
  EXPECT_TRUE(list.items().empty() && list.emphasis().empty() && list.items().revision() != revision);
  EXPECT_TRUE(combo.items().empty() && combo.text().empty());
}

// Items of one length and of several are kept differently, and controls that share items keep them once.
TEST_F(Controls, ItemsThatAreSharedChangeInTheirOwnListAlone) {
  ListBox list(form, "list");
  ComboBox combo(form, "combo");
  for (std::string_view item : {"ab", "cd"}) list.add(item);
  combo.shareItems(list);
  EXPECT_EQ(combo.items()[1].data(), list.items()[1].data());
  EXPECT_EQ(changes(), "list combo ");
  combo.addJoined("", "");
  combo.addJoined("e", "fg");
  const std::string large(100'000, 'h');
  combo.add(large);
  EXPECT_EQ(list.items().size(), 2U);
  const std::vector<std::string_view> expected = {"ab", "cd", "", "efg", large};
  for (std::size_t i = 0; i < expected.size(); ++i) EXPECT_EQ(combo.items()[i], expected[i]);
  list.shareItems(combo);
  combo.clear();
  EXPECT_TRUE(combo.items().empty() && list.items().size() == 5);
  list.clear();
  list.add("x");
  EXPECT_EQ(list.items()[0], "x");
}

TEST_F(Controls, OnlyWhatIsVisibleAndEnabledIsPressed) {
  int presses = 0;
  Button button(form, "button");
  MenuEntry entry(form, "entry", "x");
  OptionButton option(form, "option", "x");
  Label label(form, "label");
  EXPECT_TRUE(click(button)) << "nothing to run is no obstacle";
  button.onClick = entry.onClick = option.onClick = [&] { ++presses; };
  EXPECT_TRUE(click(button) && click(entry) && click(option));
  EXPECT_EQ(presses, 3);
  button.hide();
  entry.setEnabled(false);
  option.hide();
  EXPECT_FALSE(click(button) || click(entry) || click(option) || click(label));
  button.show();
  button.setEnabled(false);
  EXPECT_FALSE(click(button));
  EXPECT_EQ(presses, 3);
}

TEST_F(Controls, ColoursAndSeparatorsHaveTheirTexts) {
  EXPECT_EQ(Color::rgb(0, 10, 255).text(), "#000AFF");
  EXPECT_EQ(colors::buttonFace.text() + colors::threeDLight.text(), "buttonFace3dLight");
  const MenuEntry file(form, "file", "&File");
  const MenuEntry line(form, "line", "-", file);
  EXPECT_TRUE(line.isSeparator() && !file.isSeparator() && line.parent() == &file &&
              file.parent() == nullptr);
}

}  // namespace
}  // namespace tallywick
