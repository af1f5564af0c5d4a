// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/parts/choice_list.h"

#include "ui/qt/parts/layouts.h"
#include "ui/qt/parts/line_list.h"

#include <QItemSelectionModel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace tallywick {

ChoiceList::ChoiceList(const TextLines& lines, QWidget* parent)
    : QWidget(parent), text_(new QLineEdit(this)), list_(new LineList(lines, this)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(theme::halfGap);
  auto* line = row(theme::halfGap);
  line->addWidget(new QLabel(QStringLiteral("Chosen:"), this));
  line->addWidget(text_, 1);
  column->addLayout(line);
  column->addWidget(list_, 1);
  text_->setReadOnly(true);
  text_->setFocusPolicy(Qt::NoFocus);
  new ListFace(text_);
  setFocusProxy(list_);
  const auto choose = [this](const QModelIndex& index) {
    if (index.isValid() && onChosen) onChosen(index.data().toString());
  };
  connect(list_, &QAbstractItemView::clicked, this, choose);
  connect(list_, &QAbstractItemView::activated, this, choose);
  connect(list_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this, choose](const QModelIndex& now) {
            if (list_->hasFocus()) choose(now);
          });
}

void ChoiceList::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  text_->setAccessibleName(QStringLiteral("%1, chosen").arg(list_->accessibleName()));
}

void ChoiceList::showText(const QString& text) {
  text_->setText(text);
  text_->setCursorPosition(0);
}

}  // namespace tallywick
