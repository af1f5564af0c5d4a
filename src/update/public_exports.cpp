// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/public_exports.h"

#include "core/clock.h"
#include "core/data_folder.h"
#include "core/file_commit.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "exports/csv_reader.h"
#include "exports/folder_merge.h"
#include "exports/made_up.h"
#include "update/folder_transfer.h"
#include "update/transfer_errors.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <optional>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace tallywick {

namespace fs = std::filesystem;

namespace {

constexpr std::array<std::pair<std::string_view, Game>, 2> serverFolders = {
    {{"/D:/QZR/Z1-Pwr/Qzr6/", Game::powerBall}, {"/D:/QZR/Z2-Meg/Qzr6/", Game::megaMillions}}};

std::optional<Game> gameOf(std::string_view serverFolder) {
  for (const auto& [folder, game] : serverFolders) {
    if (equalIgnoringCase(folder, closedWith('/', serverFolder))) return game;
  }
  return std::nullopt;
}

std::string fingerprintOf(const exports::GameFiles& files) {
  return join(fingerprint(files.draws), " ", fingerprint(files.searchDraws), " ",
              fingerprint(files.doublePlay), " ", fingerprint(files.amounts));
}

/// Which version of an export a game's files are merged with. It is good for that address and those files
/// only: a restored backup must not stay old.
struct ExportNote {
  std::string address;
  std::string files;
  Validators validators;
};

constexpr std::string_view noteHead = "tallywick-source 1";

std::string textOf(const ExportNote& note) {
  return join(noteHead, "\n", note.address, "\n", note.files, "\n", note.validators.entityTag, "\n",
              note.validators.lastModified, "\n");
}

/// Empty where there is none.
std::string noteText(const fs::path& folder) {
  const fs::path file = entryInAnyCase(folder, exportNoteName);
  return fs::exists(file) ? std::string(os::readFile(file).view()) : std::string();
}

/// None of them where the note is good for another address or other files, or where it is damaged.
Validators validatorsIn(std::string_view note, const std::string& address, const std::string& files) {
  const std::string head = join(noteHead, "\n", address, "\n", files, "\n");
  if (!note.starts_with(head)) return {};
  note.remove_prefix(head.size());
  const std::size_t end = note.find('\n');
  if (end == std::string_view::npos || !note.ends_with('\n')) return {};
  const Validators validators{std::string(note.substr(0, end)),
                              std::string(note.substr(end + 1, note.size() - end - 2))};
  return textOf({address, files, validators}) == join(head, note) ? validators : Validators{};
}

/// The transfer library takes compressed contents for whole wherever they end.
bool isCutShort(std::string_view contents) {
  exports::CsvReader rows(contents);
  exports::CsvReader::Row row;
  while (rows.next(row)) {
  }
  return row.isCut || !(contents.ends_with('\n') || contents.ends_with('\r'));
}

/// Passes on what a transfer reports, to whoever looks on.
class Onlookers : public TransferWatch {
 public:
  Onlookers(TransferWatch* watch, TransferListener* listener, TransferWindow* window, std::string subject)
      : watch_(watch), listener_(listener), window_(window), subject_(std::move(subject)) {}
  ~Onlookers() override {
    if (window_ != nullptr) window_->close();
  }
  Onlookers(const Onlookers&) = delete;
  Onlookers& operator=(const Onlookers&) = delete;

  void progress(const TransferProgress& soFar) override {
    const TransferInfo info{subject_, soFar.bytes, 0};
    if (listener_ != nullptr && soFar.bytes > 0) listener_->transferInfo(info);
    if (window_ != nullptr) window_->show(info);
    if (watch_ != nullptr) watch_->progress(soFar);
  }
  bool cancelled() override { return watch_ != nullptr && watch_->cancelled(); }

 private:
  TransferWatch* watch_;
  TransferListener* listener_;
  TransferWindow* window_;
  std::string subject_;
};

/// Adds what was fetched before to what one fetch reports.
class CountingWatch : public TransferWatch {
 public:
  CountingWatch(TransferWatch* watch, const TransferProgress& before) : watch_(watch), before_(before) {}

  void progress(const TransferProgress& soFar) override {
    bytes_ = soFar.bytes;
    if (watch_ == nullptr) return;
    watch_->progress({before_.bytes + bytes_, before_.files, before_.filesInAll});
  }
  bool cancelled() override { return watch_ != nullptr && watch_->cancelled(); }
  std::uint64_t bytes() const { return bytes_; }

 private:
  TransferWatch* watch_;
  TransferProgress before_;
  std::uint64_t bytes_ = 0;
};

/// Gets a game's export: what is at the address, or the word that it is still what `known` names.
using ExportFetch =
    std::function<FetchedDocument(Game game, const std::string& address, const Validators& known,
                                  const FetchSettings& settings, TransferWatch& watch)>;

FetchedDocument fetchFromNet(Game /*game*/, const std::string& address, const Validators& known,
                             const FetchSettings& settings, TransferWatch& watch) {
  return fetchDocument(address, known, settings, &watch);
}

class PublicExports : public TransferComponent {
 public:
  PublicExports(const DataFolder& folder, const Clock& clock, FetchSettings settings, TransferWatch* watch,
                TransferWindow* window, ExportFetch fetch = fetchFromNet)
      : folder_(folder),
        clock_(clock),
        settings_(std::move(settings)),
        watch_(watch),
        window_(window),
        fetch_(std::move(fetch)) {}

  void prepare() override {
    address_.clear();
    windowWanted_ = false;
  }
  void setUserName(std::string_view) override {}
  void setPassword(std::string_view) override {}
  void setHost(std::string_view host) override { address_ = host; }
  void setPassive(bool) override {}
  void setProgressWindow(bool shown) override { windowWanted_ = shown; }
  void setInactivityLifetime(int seconds) override {
    const TransferTimes usual;
    settings_.times.answer = seconds > 0 ? std::chrono::seconds(seconds) : usual.answer;
    settings_.times.stall = seconds > 0 ? std::chrono::seconds(seconds) : usual.stall;
  }
  void setListener(TransferListener* listener) override { listener_ = listener; }

  void openSession() override {}
  void download(std::string_view serverFolder, std::string_view wildcard,
                std::string_view localFolder) override;
  void upload(std::string_view, std::string_view, std::string_view) override { refuseToSend(); }
  bool directoryExists(std::string_view serverFolder) override { return gameOf(serverFolder).has_value(); }
  void createDirectory(std::string_view) override { refuseToSend(); }

  /// The merge of a game's export, not yet made; null where the export is what it was.
  std::unique_ptr<exports::FolderMerge> mergeOf(const GameInfo& game);

 private:
  [[noreturn]] static void refuseToSend() {
    throw transferError(TransferFault::protocol, "nothing can be sent to the public exports");
  }
  Validators known(const GameInfo& game, const fs::path& local) const;
  exports::Merge merged(const GameInfo& game, const FetchedDocument& document,
                        const exports::ExportedDraws& draws, const exports::GameFiles& files,
                        exports::Standing standing) const;
  void tell(std::string_view status) const {
    if (listener_ != nullptr) listener_->status(status);
  }

  const DataFolder& folder_;
  const Clock& clock_;
  FetchSettings settings_;
  TransferWatch* watch_;
  TransferWindow* window_;
  ExportFetch fetch_;
  TransferListener* listener_ = nullptr;
  std::string address_;
  bool windowWanted_ = false;
};

void PublicExports::download(std::string_view serverFolder, std::string_view /*wildcard*/,
                             std::string_view localFolder) {
  const std::optional<Game> asked = gameOf(serverFolder);
  if (!asked) {
    throw transferError(TransferFault::serverFolder,
                        join("the public exports do not have ", inQuotes(serverFolder)));
  }
  const GameInfo& game = infoOf(*asked);
  const fs::path local = folder_.resolve(game.folder);
  if (!fs::is_directory(local) || folder_.resolve(localFolder) != local) {
    throw RuntimeError(ErrorNumber::pathNotFound, folder_.resolve(localFolder).string());
  }
  tell(join("Asking for the draws of ", game.name));
  if (const auto merge = mergeOf(game)) merge->commit();
  tell("");
}

std::unique_ptr<exports::FolderMerge> PublicExports::mergeOf(const GameInfo& game) {
  Onlookers onlookers(watch_, listener_, windowWanted_ ? window_ : nullptr, join("Draws of ", game.name));
  const Validators before = known(game, folder_.resolve(game.folder));
  const FetchedDocument document = fetch_(game.game, address_, before, settings_, onlookers);
  if (document.isUnchanged) return nullptr;
  const exports::ExportedDraws draws =
      drawsIn(document, address_, game.game, parseDay(clock_.date()).value());
  if (onlookers.cancelled()) throw TransferCancelled();
  return std::make_unique<exports::FolderMerge>(
      folder_, game.game, [&](const exports::GameFiles& files, exports::Standing standing) {
        return merged(game, document, draws, files, standing);
      });
}

/// Made-up draws are replaced whatever the server says.
Validators PublicExports::known(const GameInfo& game, const fs::path& local) const {
  if (exports::isMadeUp(folder_, game.game)) return {};
  return validatorsIn(noteText(local), address_, fingerprintOf(exports::readGameFiles(game, local)));
}

/// The merge, with a new note among its files.
exports::Merge PublicExports::merged(const GameInfo& game, const FetchedDocument& document,
                                     const exports::ExportedDraws& draws, const exports::GameFiles& files,
                                     exports::Standing standing) const {
  exports::Merge merge;
  try {
    merge = exports::mergeExport(game.game, draws, {}, files, standing);
  } catch (const std::runtime_error& error) {
    throw transferError(TransferFault::exportContents,
                        join(inQuotes(address_), " cannot be used: ", error.what()), printable(address_));
  }
  // A row that is refused today may be good tomorrow.
  if (document.validators == Validators{} || draws.refused.count > 0) return merge;
  const std::string now = fingerprintOf(exports::withChanges(game, files, merge.files));
  std::string note = textOf({address_, now, document.validators});
  if (note != noteText(folder_.resolve(game.folder))) {
    merge.files.insert(merge.files.begin(), {exportNoteName, std::move(note)});
  }
  return merge;
}

}  // namespace

exports::ExportedDraws drawsIn(const FetchedDocument& document, const std::string& address, Game game,
                               Day today) {
  const std::string subject = inQuotes(address);
  exports::ExportedDraws draws;
  try {
    exports::CsvReader rows{std::string_view(document.contents)};
    draws = exports::readDraws(game, rows, today);
  } catch (const std::runtime_error& error) {
    throw transferError(TransferFault::exportContents,
                        join(subject, " is no export of draws: ", error.what()), printable(address));
  }
  if (isCutShort(document.contents)) {
    throw transferError(TransferFault::exportContents,
                        join(subject, " is cut short: its last row has no end"), printable(address));
  }
  return draws;
}

std::unique_ptr<TransferComponent> newPublicExports(const DataFolder& folder, const Clock& clock,
                                                    FetchSettings settings, TransferWatch* watch,
                                                    TransferWindow* window) {
  return std::make_unique<PublicExports>(folder, clock, std::move(settings), watch, window);
}

FetchedExports::FetchedExports(const DataFolder& folder, const Clock& clock, TransferWatch* watch,
                               std::size_t count)
    : folder_(folder), clock_(clock), watch_(watch) {
  soFar_.filesInAll = count;
}

void FetchedExports::fetch(Game game, const std::string& address) {
  Fetched& fetched = (*documents_)[game];
  fetched.address = address;
  CountingWatch watch(watch_, soFar_);
  PublicExports component(folder_, clock_, {}, &watch, nullptr,
                          [&](Game asked, const std::string& from, const Validators& known,
                              const FetchSettings& settings, TransferWatch& onlooker) {
                            fetched.document = fetchFromNet(asked, from, known, settings, onlooker);
                            return fetched.document;
                          });
  component.setHost(address);
  const auto merge = component.mergeOf(infoOf(game));
  const auto isOfDraws = [](const exports::NewFile& file) { return !isOwnName(file.name); };
  if (merge && std::ranges::any_of(merge->files(), isOfDraws)) bringDraws_ = true;
  soFar_.bytes += watch.bytes();
  ++soFar_.files;
}

TransferFactory FetchedExports::components() const {
  return [&folder = folder_, &clock = clock_, documents = documents_] {
    return std::make_unique<PublicExports>(
        folder, clock, FetchSettings(), nullptr, nullptr,
        [documents](Game game, const std::string&, const Validators&, const FetchSettings&, TransferWatch&) {
          return documents->at(game).document;
        });
  };
}

void FetchedExports::merge() const {
  for (const auto& [game, fetched] : *documents_) {
    PublicExports component(folder_, clock_, {}, nullptr, nullptr,
                            [&document = fetched.document](auto&&...) { return document; });
    component.setHost(fetched.address);
    if (const auto merge = component.mergeOf(infoOf(game))) merge->commit();
  }
}

}  // namespace tallywick
