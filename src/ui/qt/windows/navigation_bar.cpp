// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/navigation_bar.h"

#include "app/main_form.h"
#include "ui/qt/binding/form_window.h"
#include "ui/qt/parts/flow.h"
#include "ui/qt/parts/handler_runner.h"
#include "ui/qt/parts/layouts.h"
#include "ui/qt/windows/transfer_panel.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QToolButton>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

QPushButton* gameSwitch(QWidget* parent) {
  auto* button = new QPushButton(parent);
  button->setCheckable(true);
  button->setFont(theme::headingFont(button->font()));
  return button;
}

/// Presses a side of the switch in, or lets it out; the colour shows it on dark desktops too.
void showSide(QPushButton& button, bool on) {
  button.setChecked(on);
  QPalette colors;
  if (on) {
    colors.setColor(QPalette::Button, colors.color(QPalette::Highlight));
    colors.setColor(QPalette::ButtonText, theme::readableOn(colors.color(QPalette::Highlight)));
  }
  button.setPalette(colors);
}

QToolButton* toolButton(QWidget* parent, const QString& text, const QString& tip) {
  auto* button = new QToolButton(parent);
  button->setText(text);
  button->setToolTip(tip);
  button->setFocusPolicy(Qt::TabFocus);
  return button;
}

QToolButton* settingsButton(QWidget* parent) {
  auto* button =
      toolButton(parent, u"Settings…"_s, u"Where updates come from, web pages and prices (Ctrl+,)"_s);
  button->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Comma));
  return button;
}

QToolButton* backupButton(QWidget* parent) {
  auto* button =
      toolButton(parent, u"Backup…"_s, u"Copies the record book, and brings a copy back (Ctrl+B)"_s);
  button->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_B));
  return button;
}

QToolButton* drawsButton(QWidget* parent) {
  return toolButton(parent, u"Draws…"_s, u"What draws there are; fetch, import or type in more (Ctrl+D)"_s);
}

}  // namespace

NavigationBarView::NavigationBarView(MainForm& form, FormWindow& window)
    : form_(form),
      window_(window),
      powerBall_(gameSwitch(this)),
      megaMillions_(gameSwitch(this)),
      selection_(new QPushButton(this)),
      opens_(new QLabel(this)),
      transfer_(new TransferPanel(this)),
      note_(sentences(this)),
      again_(new QPushButton(u"Fetch A&gain"_s, this)) {
  auto* update = new QPushButton(this);
  auto* progress = new QProgressBar(this);
  progress->setAccessibleName(u"Update progress"_s);
  progress->setMaximumWidth(24 * theme::gap);
  auto* next = new QPushButton(this);
  auto* backup = backupButton(this);
  auto* draws = drawsButton(this);
  auto* settings = settingsButton(this);

  auto* games = row(theme::halfGap / 2);
  games->addWidget(powerBall_);
  games->addWidget(megaMillions_);
  auto* bar = new Flow;
  bar->addLayout(games);
  bar->addSpacing(theme::gap);
  bar->addWidget(selection_);
  bar->addWidget(opens_);
  bar->addWidget(update);
  bar->addWidget(progress, true);
  bar->addWidget(transfer_);
  bar->addStretch();
  auto* others = row();
  for (QWidget* each : {static_cast<QWidget*>(next), static_cast<QWidget*>(backup),
                        static_cast<QWidget*>(draws), static_cast<QWidget*>(settings)})
    others->addWidget(each);
  bar->addLayout(others);
  auto* column = columnIn(this);
  column->addLayout(bar);
  column->addWidget(updateNote());

  Binding& binding = window.binding();
  binding.bind(form.bar.Command7, *powerBall_, withMnemonic('P'));
  binding.bind(form.bar.Command4, *megaMillions_, withMnemonic('M'));
  binding.bind(form.bar.Command48, *selection_, withMnemonic('S'));
  binding.bind(form.update.Command2, *update, withMnemonic('U'));
  binding.bind(form.update.ProgressBar1, *progress);
  binding.bind(form.bar.Command8, *next, withMnemonic('N'));
  connect(backup, &QToolButton::clicked, &window,
          [&window] { window.desk().runner.attempt([&window] { window.desk().backUp(); }); });
  connect(draws, &QToolButton::clicked, &window,
          [&window] { window.desk().runner.attempt([&window] { window.desk().editDraws(); }); });
  connect(settings, &QToolButton::clicked, &window, [&window] {
    window.desk().runner.attempt([&window] { window.desk().editSettings(); });
    window.binding().showChanges();
  });
  showGame();
}

QWidget* NavigationBarView::updateNote() {
  auto* box = new QWidget(this);
  again_->setToolTip(u"Asks once more for the draws of both games"_s);
  auto* line = new QHBoxLayout(box);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(theme::gap);
  line->addWidget(again_);
  line->addWidget(note_, 1);
  connect(again_, &QPushButton::clicked, &window_,
          [this] { window_.desk().runner.run([this] { window_.desk().updateAgain(); }); });
  box->hide();
  return box;
}

void NavigationBarView::showSwitch() {
  const GameInfo* const game = gameOnShow(form_.frames);
  showSide(*powerBall_, game == &powerBall);
  showSide(*megaMillions_, game == &megaMillions);
}

void NavigationBarView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) showSwitch();
}

void NavigationBarView::showGame() {
  showSwitch();
  sayWhatOpens();
  const QString note = window_.desk().updateNote ? toQString(window_.desk().updateNote()) : QString();
  note_->setText(note);
  again_->setAccessibleDescription(note);
  note_->parentWidget()->setVisible(!note.isEmpty() && transfer_->isHidden());
}

void NavigationBarView::sayWhatOpens() {
  const GameInfo* const game = gameOnShow(form_.frames);
  const Button& open = form_.bar.Command48;
  const bool isOther = game != nullptr && !open.caption().starts_with(game->name);
  const QString name = isOther ? toQString(game->name) : QString();
  const QString tip = isOther ? u"Opens the play selection of %1, the game on show"_s.arg(name) : QString();
  opens_->setText(isOther ? u"opens %1"_s.arg(name) : QString());
  opens_->setVisible(isOther);
  selection_->setToolTip(isOther ? tip : toQString(open.toolTip()));
  selection_->setAccessibleDescription(tip);
}

}  // namespace tallywick
