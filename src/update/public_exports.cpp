// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/public_exports.h"

#include "core/clock.h"
#include "core/data_folder.h"
#include "core/file_names.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "core/work_files.h"
#include "exports/csv_reader.h"
#include "exports/folder_merge.h"
#include "exports/made_up.h"
#include "update/folder_transfer.h"
#include "update/transfer_errors.h"

#include <algorithm>
#include <chrono>
#include <optional>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace tallywick {

namespace fs = std::filesystem;

namespace {

std::optional<Game> gameOf(std::string_view serverFolder) {
  for (const GameInfo* game : allGames) {
    if (equalIgnoringCase(closedWith('/', game->serverFolder), closedWith('/', serverFolder)))
      return game->game;
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

std::string noteText(const ExportNote& note) {
  return join(noteHead, "\n", note.address, "\n", note.files, "\n", note.validators.entityTag, "\n",
              note.validators.lastModified, "\n");
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
  return noteText({address, files, validators}) == join(head, note) ? validators : Validators{};
}

/// A last row without a line end is whole where the transfer is known to be.
bool isCutShort(const FetchedDocument& document) {
  const std::string_view contents = document.contents;
  exports::CsvReader rows(contents);
  exports::CsvReader::Row row;
  while (rows.next(row)) {
  }
  return row.isCut || !(document.isKnownWhole || contents.ends_with('\n') || contents.ends_with('\r'));
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

class PublicExports : public TransferComponent {
 public:
  /// How the export of a game is come by.
  using Getting = std::function<FetchedExport(Game game, const std::string& address,
                                              const FetchSettings& settings, TransferWatch& watch)>;

  PublicExports(const DataFolder& folder, Getting get, FetchSettings settings, TransferWatch* watch,
                TransferWindow* window)
      : folder_(folder),
        get_(std::move(get)),
        settings_(std::move(settings)),
        watch_(watch),
        window_(window) {}

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

 private:
  [[noreturn]] static void refuseToSend() {
    throw transferError(TransferFault::protocol, "nothing can be sent to the public exports");
  }
  void report(std::string_view status) const {
    if (listener_ != nullptr) listener_->status(status);
  }

  const DataFolder& folder_;
  Getting get_;
  FetchSettings settings_;
  TransferWatch* watch_;
  TransferWindow* window_;
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
    throw RuntimeError(ErrorNumber::pathNotFound, textOf(folder_.resolve(localFolder)));
  }
  report(join("Asking for the draws of ", game.name));
  Onlookers onlookers(watch_, listener_, windowWanted_ ? window_ : nullptr, join("Draws of ", game.name));
  const FetchedExport fetched = get_(*asked, address_, settings_, onlookers);
  if (onlookers.cancelled()) throw TransferCancelled();
  takeInto(folder_, fetched);
  report("");
}

/// Made-up draws are replaced whatever the server says.
Validators knownOf(const DataFolder& folder, const GameInfo& game, const std::string& address) {
  if (exports::isMadeUp(folder, game.game)) return {};
  const exports::GameFiles files = exports::readGameFiles(game, folder.resolve(game.folder));
  return validatorsIn(files.exportNote, address, fingerprintOf(files));
}

/// Fetches a game's export and reads it; writes nothing. Where the game's files are still what the last
/// answer made them, only a newer one is asked for. Raises a RuntimeError that says why it cannot be had, or
/// TransferCancelled.
FetchedExport fetchExport(const DataFolder& folder, const Clock& clock, Game game, const std::string& address,
                          const FetchSettings& settings, TransferWatch* watch) {
  FetchedExport fetched{game, address,
                        fetchDocument(address, knownOf(folder, infoOf(game), address), settings, watch)};
  if (!fetched.document.isUnchanged) {
    fetched.draws = drawsIn(fetched.document, address, game, parseDay(clock.date()).value());
  }
  return fetched;
}

/// What a game's files become with the export, the note on its version among them; nothing changes where the
/// document is unchanged. Raises an error that names the address where the export must not be taken.
exports::Merge mergeOf(const FetchedExport& fetched, const exports::GameFiles& files,
                       exports::DrawOrigin origin) {
  if (fetched.document.isUnchanged) return {};
  const GameInfo& game = infoOf(fetched.game);
  exports::Merge merge;
  try {
    merge = exports::mergeExport(fetched.game, fetched.draws, {}, files, origin);
  } catch (const std::runtime_error& error) {
    throw transferError(TransferFault::exportContents,
                        join(inQuotes(fetched.address), " cannot be used: ", error.what()),
                        printable(fetched.address));
  }
  // A row that is later than today may be good tomorrow.
  if (fetched.document.validators == Validators{} || fetched.draws.refused.areLater) return merge;
  exports::GameFiles now = exports::withChanges(game, files, merge.files);
  now.exportNote = noteText({fetched.address, fingerprintOf(now), fetched.document.validators});
  merge.files = exports::changedFiles(game, files, std::move(now));
  return merge;
}

/// What merging the export makes of the files that the game has now.
exports::Merge trialMerge(const DataFolder& folder, const FetchedExport& fetched) {
  const GameInfo& game = infoOf(fetched.game);
  return mergeOf(
      fetched, exports::readGameFiles(game, folder.resolve(game.folder)),
      exports::isMadeUp(folder, fetched.game) ? exports::DrawOrigin::madeUp : exports::DrawOrigin::real);
}

/// Adds what was fetched before to what one fetch reports, so that several are seen as one transfer.
class CountingWatch : public TransferWatch {
 public:
  /// `soFar` has the count of all exports, and takes this one in when the watch goes.
  CountingWatch(TransferWatch* watch, TransferProgress& soFar) : watch_(watch), soFar_(soFar) {}
  ~CountingWatch() override {
    soFar_.bytes += bytes_;
    ++soFar_.files;
  }
  CountingWatch(const CountingWatch&) = delete;
  CountingWatch& operator=(const CountingWatch&) = delete;

  void progress(const TransferProgress& now) override {
    bytes_ = now.bytes;
    if (watch_ != nullptr) watch_->progress({soFar_.bytes + bytes_, soFar_.files, soFar_.filesInAll});
  }
  bool cancelled() override { return watch_ != nullptr && watch_->cancelled(); }

 private:
  TransferWatch* watch_;
  TransferProgress& soFar_;
  std::uint64_t bytes_ = 0;
};

/// What `action` raises becomes the fetch's error.
template <typename Action>
void orError(GameFetch& fetch, Action action) {
  try {
    action();
  } catch (const TransferCancelled&) {
    throw;
  } catch (const RuntimeError& error) {
    // An error of the transfer names the address already.
    fetch.error = error.source().empty() ? error.what() : error.description();
  } catch (const std::exception& error) {
    fetch.error = error.what();
  }
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
                        join(subject, " is not an export of draws: ", error.what()), printable(address));
  }
  if (isCutShort(document)) {
    throw transferError(TransferFault::exportContents,
                        join(subject, " is cut short: its last row has no end"), printable(address));
  }
  return draws;
}

exports::MergeReport takeInto(const DataFolder& folder, const FetchedExport& fetched) {
  if (fetched.document.isUnchanged) return {};
  exports::FolderMerge change(folder, fetched.game,
                              [&](const exports::GameFiles& files, exports::DrawOrigin origin) {
                                return mergeOf(fetched, files, origin);
                              });
  change.commit();
  return change.report();
}

std::unique_ptr<TransferComponent> newPublicExports(const DataFolder& folder, const Clock& clock,
                                                    FetchSettings settings, TransferWatch* watch,
                                                    TransferWindow* window) {
  return std::make_unique<PublicExports>(
      folder,
      [&folder, &clock](Game game, const std::string& address, const FetchSettings& fetchSettings,
                        TransferWatch& onlookers) {
        return fetchExport(folder, clock, game, address, fetchSettings, &onlookers);
      },
      std::move(settings), watch, window);
}

FetchedExports::FetchedExports(const DataFolder& folder, const Clock& clock, std::size_t count,
                               FetchSettings settings, TransferWatch* watch)
    : folder_(folder), clock_(clock), settings_(std::move(settings)), watch_(watch) {
  soFar_.filesInAll = count;
}

const GameFetch& FetchedExports::fetch(const ExportAddress& from) {
  soFar_.files -=
      std::erase_if(results_, [&](const GameFetch& earlier) { return earlier.game == from.game; });
  std::erase_if(*fetched_, [&](const FetchedExport& earlier) { return earlier.game == from.game; });
  GameFetch& result = results_.emplace_back(GameFetch{from.game, from.address});
  orError(result, [&] {
    CountingWatch counting(watch_, soFar_);
    const FetchedExport& fetched =
        fetched_->emplace_back(fetchExport(folder_, clock_, from.game, from.address, settings_, &counting));
    exports::Merge merge = trialMerge(folder_, fetched);
    result.isUnchanged = fetched.document.isUnchanged;
    result.bringsDraws =
        std::ranges::any_of(merge.files, [](const exports::NewFile& file) { return !isOwnName(file.name); });
    result.report = std::move(merge.report);
  });
  if (watch_ != nullptr && watch_->cancelled()) throw TransferCancelled();
  return result;
}

bool FetchedExports::isComplete() const {
  return std::ranges::all_of(results_, &std::string::empty, &GameFetch::error);
}

bool FetchedExports::bringDraws() const {
  return std::ranges::any_of(results_, &GameFetch::bringsDraws);
}

std::string FetchedExports::remarks() const {
  std::string text;
  for (const GameFetch& result : results_) {
    const std::string_view game = infoOf(result.game).name;
    for (const std::string& notice : result.report.notices) text += join(game, ": ", notice, "\n");
    const exports::RefusedRows& refused = result.report.refused;
    if (refused.count == 0) continue;
    text += join(game, ": rows of the export that cannot be used: ", std::to_string(refused.count),
                 "; the first is in line ", std::to_string(refused.first.front().line), ": ",
                 refused.first.front().reason, "\n");
  }
  return text;
}

void FetchedExports::takeInto(const DataFolder& folder) {
  for (const FetchedExport& fetched : *fetched_) {
    GameFetch& result = *std::ranges::find(results_, fetched.game, &GameFetch::game);
    if (!result.error.empty()) continue;
    orError(result, [&] { result.report = tallywick::takeInto(folder, fetched); });
  }
}

TransferFactory FetchedExports::components() const {
  return [&folder = folder_, fetched = fetched_]() -> std::unique_ptr<TransferComponent> {
    return std::make_unique<PublicExports>(
        folder,
        [fetched](Game game, const std::string& address, const FetchSettings&, TransferWatch&) {
          const auto found = std::ranges::find(*fetched, game, &FetchedExport::game);
          if (found == fetched->end()) {
            throw transferError(TransferFault::nothingThere,
                                join("the draws of ", infoOf(game).name, " have not been fetched"),
                                printable(address));
          }
          return *found;
        },
        FetchSettings{}, nullptr, nullptr);
  };
}

std::vector<GameFetch> fetchDraws(const DataFolder& folder, const Clock& clock,
                                  const std::vector<ExportAddress>& addresses, const FetchSettings& settings,
                                  TransferWatch* watch) {
  FetchedExports exports(folder, clock, addresses.size(), settings, watch);
  for (const ExportAddress& from : addresses) exports.fetch(from);
  exports.takeInto(folder);
  return exports.results();
}

}  // namespace tallywick
