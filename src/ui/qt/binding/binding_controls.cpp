// SPDX-License-Identifier: GPL-3.0-or-later
// How each type of control is shown by its widget, and what the widget's actions lead to.
#include "core/data_folder.h"
#include "core/os.h"
#include "core/text.h"
#include "setup/ball_bitmap.h"
#include "ui/qt/binding/binding.h"
#include "ui/qt/parts/ball.h"
#include "ui/qt/parts/ball_picture.h"
#include "ui/qt/parts/chart_view.h"
#include "ui/qt/parts/choice_list.h"
#include "ui/qt/parts/line_actions.h"
#include "ui/qt/parts/line_header.h"
#include "ui/qt/parts/line_list.h"
#include "ui/qt/parts/picker.h"

#include <QAction>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QProgressBar>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTabWidget>
#include <stdexcept>
#include <utility>

namespace tallywick {

namespace {

/// Notices changes of lines.
class LineWatch {
 public:
  explicit LineWatch(const TextLines& lines) : lines_(lines) {}
  /// Whether they have changed since the last change was taken.
  bool takeChange() { return std::exchange(seen_, lines_.revision()) != lines_.revision(); }

 private:
  const TextLines& lines_;
  std::size_t seen_ = static_cast<std::size_t>(-1);
};

/// A heading as the name of what is below it.
QString spokenName(std::string_view caption) {
  QString name = asLabel()(caption).simplified();
  while (name.endsWith(QLatin1Char(':')) || name.endsWith(QLatin1Char(','))) name.chop(1);
  return name;
}

/// Whether it is one of those that a new record book gets. They are the same for both games: the window draws
/// these balls itself, with the look of their game.
bool isBallOfNewBook(const Image& image, std::string_view bytes) {
  const auto kind = image.isExtraBall() ? setup::BallKind::extra : setup::BallKind::white;
  const auto number = toQString(image.number()).toInt();
  return number > 0 && bytes == setup::ballPicture(kind, number);
}

/// The picture that the record book keeps for a number; null where there is none of its own that loads.
QPixmap loadPicture(const DataFolder& folder, const Image& image) {
  if (image.picture().empty()) return {};
  QPixmap picture;
  try {
    const os::FileBytes bytes = os::readFile(folder.resolve(image.picture()));
    if (isBallOfNewBook(image, bytes.view())) return {};
    const auto* const begin = reinterpret_cast<const uchar*>(bytes.view().data());
    picture.loadFromData(begin, static_cast<uint>(bytes.view().size()));
  } catch (const std::exception&) {
    return {};
  }
  return picture;
}

}  // namespace

bool Binding::eventFilter(QObject* watched, QEvent* event) {
  auto* button = qobject_cast<QAbstractButton*>(watched);
  if (button == nullptr || event->type() != QEvent::Shortcut) return QObject::eventFilter(watched, event);
  if (static_cast<const QShortcutEvent*>(event)->isAmbiguous()) {
    button->setFocus(Qt::ShortcutFocusReason);
  } else {
    button->click();
  }
  return true;
}

void Binding::bind(Button& button, QAbstractButton& widget, const Wording& wording) {
  widget.installEventFilter(this);
  connect(&widget, &QAbstractButton::clicked, this, [this, &button] { press(button); });
  enter(button, widget, [&button, &widget, wording] {
    widget.setText(wording(button.caption()));
    widget.setToolTip(toQString(button.toolTip()));
    widget.setEnabled(button.enabled());
    widget.setVisible(button.visible());
  });
}

void Binding::bind(Button& button, BallButton& widget) {
  connect(&widget, &QAbstractButton::clicked, this, [this, &button] { press(button); });
  enter(button, widget, [&button, &widget] {
    widget.setCaption(toQString(button.caption()));
    widget.setColor(button.backColor());
    widget.setToolTip(toQString(button.toolTip()));
    widget.setEnabled(button.enabled());
    widget.setVisible(button.visible());
  });
}

void Binding::bind(Label& label, QLabel& widget, const Wording& wording) {
  widget.setTextFormat(Qt::PlainText);
  enter(label, widget, [&label, &widget, wording] {
    widget.setText(wording(label.caption()));
    widget.setVisible(label.visible());
    if (QWidget* labelled = widget.buddy()) labelled->setAccessibleName(spokenName(label.caption()));
  });
}

void Binding::bind(Label& label, LineList& columns) {
  enter(label, *columns.header(),
        [&label, &columns] { columns.header()->setAccessibleName(spokenName(label.caption())); });
}

void Binding::bind(ListBox& list, LineList& widget) {
  addLineActions(widget, runner_);
  enter(list, widget, [&list, &widget, watch = LineWatch(list.items())]() mutable {
    if (watch.takeChange()) widget.reload();
    widget.setEmphasis(list.emphasis());
    widget.setVisible(list.visible());
  });
}

void Binding::bind(ComboBox& combo, Picker& widget) {
  connect(&widget, &QComboBox::activated, this, [this, &combo](int index) {
    take([&combo, index] { combo.setText(combo.items()[static_cast<std::size_t>(index)]); });
  });
  connect(widget.lineEdit(), &QLineEdit::textEdited, this,
          [this, &combo](const QString& text) { take([&] { combo.setText(toText(text)); }); });
  enter(combo, widget, [&combo, &widget, watch = LineWatch(combo.items())]() mutable {
    if (watch.takeChange()) widget.reload();
    widget.showText(toQString(combo.text()));
    widget.setVisible(combo.visible());
  });
}

void Binding::bind(ComboBox& combo, ChoiceList& widget) {
  addLineActions(widget.list(), runner_);
  widget.onChosen = [this, &combo](const QString& item) {
    if (form_ != nullptr) take([&] { combo.setText(toText(item)); });
  };
  enter(combo, widget, [&combo, &widget, watch = LineWatch(combo.items())]() mutable {
    if (watch.takeChange()) widget.list().reload();
    widget.showText(toQString(combo.text()));
    widget.setVisible(combo.visible());
  });
}

void Binding::bind(Frame& frame, QWidget& widget) {
  enter(frame, widget, [&frame, &widget] { widget.setVisible(frame.visible()); });
}

void Binding::bind(TabStrip& strip, QTabWidget& widget) {
  connect(&widget, &QTabWidget::currentChanged, this, [this, &strip](int tab) {
    // Tabs beyond the model's are the window's own.
    if (tab < strip.tabs()) take([&strip, tab] { strip.setTab(tab); });
  });
  enter(strip, widget, [&strip, &widget] {
    const QSignalBlocker quiet(&widget);
    widget.setCurrentIndex(strip.tab());
  });
}

void Binding::bind(Chart& chart, ChartView& widget) {
  enter(chart, widget, [&chart, &widget] { widget.show(chart); });
}

void Binding::bind(Image& image, BallPicture& widget) {
  enter(image, widget, [this, &image, &widget] {
    widget.showNumber(toQString(image.number()), image.isExtraBall(), loadPicture(folder_, image));
  });
}

void Binding::bind(ProgressBar& bar, QProgressBar& widget) {
  enter(bar, widget, [&bar, &widget] {
    widget.setValue(bar.value());
    widget.setVisible(bar.visible());
  });
}

void Binding::bind(StatusBar& status, const std::vector<QLabel*>& panels) {
  if (panels.size() != status.panels().size()) {
    throw std::logic_error(join(form_->name(), ": ", status.name(), " has another number of panels"));
  }
  enter(status, *panels.front(), [&status, panels] {
    for (std::size_t i = 0; i < panels.size(); ++i) panels[i]->setText(toQString(status.panels()[i]));
  });
}

void Binding::bind(MenuEntry& entry, QAction& widget, const Wording& wording) {
  connect(&widget, &QAction::triggered, this, [this, &entry] { press(entry); });
  enter(entry, widget, [&entry, &widget, wording] {
    if (!entry.isSeparator()) widget.setText(wording(entry.caption()));
    widget.setEnabled(entry.enabled());
  });
}

void Binding::bind(OptionButton& option, QRadioButton& widget, const Wording& wording) {
  connect(&widget, &QAbstractButton::clicked, this, [this, &option] { press(option); });
  enter(option, widget, [&option, &widget, wording] {
    widget.setText(wording(option.caption()));
    widget.setChecked(option.value());
    widget.setVisible(option.visible());
  });
}

}  // namespace tallywick
