// SPDX-License-Identifier: GPL-3.0-or-later
// The one place where the controls of a window's model meet their widgets: it names the widget, shows the
// control's properties on it, and leads the widget's actions to the handlers.
#pragma once

#include "controls/controls.h"
#include "ui/qt/parts/wording.h"

#include <QObject>
#include <QPointer>
#include <functional>
#include <unordered_map>
#include <unordered_set>
#include <vector>

class QAbstractButton;
class QAction;
class QLabel;
class QProgressBar;
class QRadioButton;
class QTabWidget;
class QWidget;

namespace tallywick {

class BallButton;
class BallPicture;
class ChartView;
class ChoiceList;
class DataFolder;
class HandlerRunner;
class LineList;
class Picker;

class Binding : public QObject {
 public:
  Binding(Form& form, HandlerRunner& runner, const DataFolder& folder);

  void bind(Button& button, QAbstractButton& widget, const Wording& wording = literally());
  void bind(Button& button, BallButton& widget);
  void bind(Label& label, QLabel& widget, const Wording& wording = asLabel());
  /// The caption names the list's header; its columns have the same titles in every list.
  void bind(Label& label, LineList& columns);
  /// The widget was made for the list's items.
  void bind(ListBox& list, LineList& widget);
  /// The widget was made for the drop-down's items.
  void bind(ComboBox& combo, Picker& widget);
  void bind(ComboBox& combo, ChoiceList& widget);
  void bind(Frame& frame, QWidget& widget);
  /// The widget may have more tabs behind the strip's; the model does not know of them.
  void bind(TabStrip& strip, QTabWidget& widget);
  void bind(Chart& chart, ChartView& widget);
  void bind(Image& image, BallPicture& widget);
  void bind(ProgressBar& bar, QProgressBar& widget);
  /// The panels' labels, in their order; the first one bears the name.
  void bind(StatusBar& status, const std::vector<QLabel*>& panels);
  void bind(MenuEntry& entry, QAction& widget, const Wording& wording);
  void bind(OptionButton& option, QRadioButton& widget, const Wording& wording = literally());

  /// A change of this control is read out by screen readers.
  void announceChangesOf(const Control& control) { announced_.insert(&control); }

  /// Raises std::logic_error that names the controls which no widget shows; nothing as long as parts of the
  /// window are to come.
  void requireEveryControl() const;
  /// A part of the window is made later, and binds its controls then.
  void awaitPart() { ++awaited_; }
  void partMade();

  /// Copies the controls that changed to their widgets.
  void showChanges();
  /// What a window derives from several controls; runs after each showChanges().
  std::function<void()> afterChanges;

  /// Takes the place of a press's click, where it is set.
  std::function<void(Control&)> onPress;

  /// The model goes; from now on the widgets lead nowhere.
  void release();
  bool isReleased() const { return form_ == nullptr; }

  HandlerRunner& runner() const { return runner_; }
  const DataFolder& folder() const { return folder_; }

 protected:
  /// A mnemonic presses its button at once; the toolkit's own way takes a tenth of a second, in which keys
  /// get lost.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Bound {
    QPointer<QObject> widget;
    std::function<void()> show;
  };

  void enter(Control& control, QObject& widget, std::function<void()> show);
  /// Runs what a click on the control runs.
  void press(Control& control);
  /// Changes the model as a user's action asks, without a click.
  void take(const std::function<void()>& change);

  Form* form_;
  HandlerRunner& runner_;
  const DataFolder& folder_;
  std::unordered_map<const Control*, Bound> bound_;
  std::unordered_set<const Control*> announced_;
  int awaited_ = 0;
};

}  // namespace tallywick
