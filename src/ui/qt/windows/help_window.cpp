// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/help_window.h"

#include "ui/qt/parts/layouts.h"
#include "ui/qt/windows/manual_search.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QBuffer>
#include <QDialog>
#include <QDir>
#include <QHash>
#include <QImage>
#include <QImageReader>
#include <QPointer>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTimer>
#include <QToolBar>
#include <QUrl>
#include <QWindow>
#include <utility>
#include <vector>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

/// Room for the pictures in their own size.
constexpr QSize usualSize = {920, 700};

}  // namespace

/// A page whose pictures are never wider than the window, and whose links are readable on every ground.
class ManualText : public QTextBrowser {
 public:
  ManualText() {
    document()->setDocumentMargin(theme::pageMargin);
    // The room for pictures does not depend on how long the page is.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    colorLinks();
    connect(this, &QTextBrowser::sourceChanged, this, [this] { light(); });
    connect(&reading_, &QTimer::timeout, this, [this] { readPicture(); });
  }

  /// Lights these words in this page and in all that follow.
  void lightWords(const QRegularExpression& words) {
    words_ = words;
    light();
  }

  /// Scrolls so that the line with this character is the first one seen.
  void showAt(int position) {
    QTextCursor cursor(document());
    cursor.setPosition(position);
    setTextCursor(cursor);
    const QRectF line = document()->documentLayout()->blockBoundingRect(cursor.block());
    verticalScrollBar()->setValue(qRound(line.top()) - theme::gap);
  }

  QVariant loadResource(int type, const QUrl& name) override {
    QVariant loaded = QTextBrowser::loadResource(type, name);
    if (type == QTextDocument::HtmlResource) {
      pictures_.clear();
      unread_.clear();
    }
    if (type != QTextDocument::ImageResource) return loaded;
    const QByteArray bytes = loaded.toByteArray();
    QBuffer file;
    file.setData(bytes);
    QImage blank(fittedSize(QImageReader(&file).size()), QImage::Format_ARGB32_Premultiplied);
    blank.fill(Qt::transparent);
    unread_.emplace_back(name, bytes);
    reading_.start(0);
    return blank;
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QTextBrowser::resizeEvent(event);
    fitPictures();
  }
  void changeEvent(QEvent* event) override {
    QTextBrowser::changeEvent(event);
    if (event->type() != QEvent::PaletteChange) return;
    colorLinks();
    reload();
  }

 private:
  QSize fittedSize(QSize size) const {
    // A picture may be in a list.
    const int room = viewport()->width() - 2 * theme::pageMargin - qRound(document()->indentWidth());
    if (size.width() <= room || room <= 0) return size;
    return {room, qRound(static_cast<double>(size.height()) * room / size.width())};
  }

  QImage fitted(const QImage& picture) const {
    const QSize size = fittedSize(picture.size());
    if (size == picture.size()) return picture;
    QImage shown =
        picture.scaled(size * devicePixelRatioF(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    shown.setDevicePixelRatio(devicePixelRatioF());
    return shown;
  }

  /// One after the other, so that no step is long.
  void readPicture() {
    if (unread_.empty()) return reading_.stop();
    const auto [name, bytes] = unread_.front();
    unread_.erase(unread_.begin());
    const QImage picture = QImage::fromData(bytes);
    pictures_.insert(name, picture);
    document()->addResource(QTextDocument::ImageResource, name, fitted(picture));
    viewport()->update();
  }

  void colorLinks() {
    const QColor color = theme::standingOutFrom(palette().color(QPalette::Base),
                                                palette().color(QPalette::Link), theme::textContrast);
    document()->setDefaultStyleSheet(u"a { color: %1; }"_s.arg(color.name()));
  }

  void light() {
    QTextCharFormat bright;
    bright.setBackground(palette().color(QPalette::Highlight));
    bright.setForeground(palette().color(QPalette::HighlightedText));
    QList<ExtraSelection> lit;
    // The first line leads to the other pages.
    const int begin = document()->firstBlock().length();
    for (const QRegularExpressionMatch& match : words_.globalMatch(toPlainText(), begin)) {
      QTextCursor cursor(document());
      cursor.setPosition(static_cast<int>(match.capturedStart()));
      cursor.setPosition(static_cast<int>(match.capturedEnd()), QTextCursor::KeepAnchor);
      lit.append({cursor, bright});
    }
    setExtraSelections(lit);
  }

  void fitPictures() {
    for (auto picture = pictures_.cbegin(); picture != pictures_.cend(); ++picture)
      document()->addResource(QTextDocument::ImageResource, picture.key(), fitted(picture.value()));
    if (!pictures_.isEmpty()) document()->markContentsDirty(0, document()->characterCount());
  }

  /// Those of the page, in their own size.
  QHash<QUrl, QImage> pictures_;
  /// Those of the page that are blank so far.
  std::vector<std::pair<QUrl, QByteArray>> unread_;
  QTimer reading_;
  QRegularExpression words_{u"(?!)"_s};
};

QString manualFolder() {
  for (const QString& place : {u"/../share/tallywick/manual"_s, u"/manual"_s}) {
    const QDir folder(QCoreApplication::applicationDirPath() + place);
    if (folder.exists(u"index.html"_s)) return folder.canonicalPath();
  }
  return {};
}

void HelpWindow::showPage(const QString& page) {
  static QPointer<HelpWindow> open;
  // A closed one is there until it is deleted.
  if (open == nullptr || !open->isVisible()) open = new HelpWindow;
  open->goTo(page);
  open->show();
  open->raise();
  open->activateWindow();
}

HelpWindow::HelpWindow() : text_(new ManualText), search_(new ManualSearch(manualFolder(), this)) {
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(u"Tallywick Help"_s);
  text_->setOpenExternalLinks(true);
  text_->setAccessibleName(u"Manual"_s);
  auto* whole = new QWidget;
  auto* column = columnIn(whole);
  column->setSpacing(0);
  column->addWidget(search_);
  column->addWidget(text_, 1);
  setCentralWidget(whole);
  addBar();
  addSearch();
  resizeOnScreen(*this, usualSize);
}

bool HelpWindow::event(QEvent* event) {
  if (event->type() == QEvent::WindowBlocked) QTimer::singleShot(0, this, &HelpWindow::followDialog);
  return QMainWindow::event(event);
}

/// A dialog shuts out every window but its own ones.
void HelpWindow::followDialog() {
  const auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  if (dialog == nullptr || !isVisible()) return;
  windowHandle()->setTransientParent(dialog->windowHandle());
  // There may be another dialog behind it.
  connect(dialog, &QDialog::finished, this,
          [this] { QTimer::singleShot(0, this, &HelpWindow::followDialog); });
}

void HelpWindow::addBar() {
  auto* bar = addToolBar(u"Pages"_s);
  bar->setMovable(false);
  bar->addAction(u"&Contents"_s, text_, &QTextBrowser::home);
  auto* back = bar->addAction(u"&Back"_s, text_, &QTextBrowser::backward);
  back->setShortcut(QKeySequence::Back);
  connect(text_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  back->setEnabled(false);
}

void HelpWindow::addSearch() {
  search_->onSearched = [this] { text_->lightWords(search_->wordsToLight()); };
  search_->onChosen = [this](const QString& page, int position) {
    goTo(page);
    text_->showAt(position);
    text_->setFocus(Qt::OtherFocusReason);
  };
  const auto* begin = new QShortcut(QKeySequence::Find, this);
  connect(begin, &QShortcut::activated, search_, &ManualSearch::begin);
  const auto* close = new QShortcut(Qt::Key_Escape, this);
  connect(close, &QShortcut::activated, this, [this] {
    if (!search_->end()) this->close();
  });
  text_->setFocus();
}

void HelpWindow::goTo(const QString& page) {
  const QDir folder(manualFolder());
  if (manualFolder().isEmpty()) {
    text_->setPlainText(u"The manual is not installed."_s);
    return;
  }
  if (text_->source().isEmpty()) text_->setSource(QUrl::fromLocalFile(folder.filePath(u"index.html"_s)));
  if (folder.exists(page)) text_->setSource(QUrl::fromLocalFile(folder.filePath(page)));
}

}  // namespace tallywick
