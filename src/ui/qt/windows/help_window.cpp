// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/help_window.h"

#include "ui/qt/parts/layouts.h"

#include <QApplication>
#include <QDir>
#include <QHash>
#include <QImage>
#include <QPointer>
#include <QShortcut>
#include <QTextBrowser>
#include <QToolBar>
#include <QUrl>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

/// Room for the pictures in their own size.
constexpr QSize usualSize = {920, 700};

/// A page whose pictures are never wider than the window, and whose links are readable on every ground.
class ManualText : public QTextBrowser {
 public:
  ManualText() {
    document()->setDocumentMargin(theme::pageMargin);
    // The room for pictures does not depend on how long the page is.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    colorLinks();
  }

  QVariant loadResource(int type, const QUrl& name) override {
    QVariant loaded = QTextBrowser::loadResource(type, name);
    if (type == QTextDocument::HtmlResource) pictures_.clear();
    if (type != QTextDocument::ImageResource) return loaded;
    const QImage picture = QImage::fromData(loaded.toByteArray());
    pictures_.insert(name, picture);
    return fitted(picture);
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
  QImage fitted(const QImage& picture) const {
    // A picture may be in a list.
    const int room = viewport()->width() - 2 * theme::pageMargin - qRound(document()->indentWidth());
    if (picture.width() <= room || room <= 0) return picture;
    QImage shown = picture.scaledToWidth(qRound(room * devicePixelRatioF()), Qt::SmoothTransformation);
    shown.setDevicePixelRatio(devicePixelRatioF());
    return shown;
  }

  void colorLinks() {
    const QColor color = theme::standingOutFrom(palette().color(QPalette::Base),
                                                palette().color(QPalette::Link), theme::textContrast);
    document()->setDefaultStyleSheet(u"a { color: %1; }"_s.arg(color.name()));
  }

  void fitPictures() {
    for (auto picture = pictures_.cbegin(); picture != pictures_.cend(); ++picture)
      document()->addResource(QTextDocument::ImageResource, picture.key(), fitted(picture.value()));
    if (!pictures_.isEmpty()) document()->markContentsDirty(0, document()->characterCount());
  }

  /// Those of the page, in their own size.
  QHash<QUrl, QImage> pictures_;
};

}  // namespace

QString manualFolder() {
  for (const QString& place : {u"/../share/tallywick/manual"_s, u"/manual"_s}) {
    const QDir folder(QCoreApplication::applicationDirPath() + place);
    if (folder.exists(u"index.html"_s)) return folder.canonicalPath();
  }
  return {};
}

void HelpWindow::showPage(const QString& page) {
  static QPointer<HelpWindow> open;
  if (open == nullptr) open = new HelpWindow;
  open->goTo(page);
  open->show();
  open->raise();
  open->activateWindow();
}

HelpWindow::HelpWindow() : text_(new ManualText) {
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(u"Tallywick Help"_s);
  text_->setOpenExternalLinks(true);
  text_->setAccessibleName(u"Manual"_s);
  setCentralWidget(text_);
  auto* bar = addToolBar(u"Pages"_s);
  bar->setMovable(false);
  bar->addAction(u"&Contents"_s, text_, &QTextBrowser::home);
  auto* back = bar->addAction(u"&Back"_s, text_, &QTextBrowser::backward);
  back->setShortcut(QKeySequence::Back);
  connect(text_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  back->setEnabled(false);
  auto* close = new QShortcut(Qt::Key_Escape, this);
  connect(close, &QShortcut::activated, this, &QWidget::close);
  resizeOnScreen(*this, usualSize);
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
