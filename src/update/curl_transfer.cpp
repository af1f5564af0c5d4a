// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/curl_transfer.h"

#include "core/clock.h"
#include "core/data_folder.h"
#include "core/file_names.h"
#include "core/text.h"
#include "core/work_files.h"
#include "update/curl_errors.h"
#include "update/curl_runner.h"
#include "update/folder_transfer.h"
#include "update/ftp_operation.h"
#include "update/incoming_files.h"
#include "update/transfer_errors.h"

#include <algorithm>
#include <utility>

namespace tallywick {

namespace fs = std::filesystem;

namespace {

class CurlTransfer : public TransferComponent {
 public:
  CurlTransfer(const DataFolder& folder, const Clock& clock, CurlTransferSettings settings,
               TransferWatch* watch, TransferWindow* window)
      : folder_(folder), clock_(clock), settings_(std::move(settings)), window_(window), runner_(watch) {
    prepare();
  }
  ~CurlTransfer() override { leave(); }
  CurlTransfer(const CurlTransfer&) = delete;
  CurlTransfer& operator=(const CurlTransfer&) = delete;

  void prepare() override;
  void setUserName(std::string_view name) override { session_.userName = name; }
  void setPassword(std::string_view password) override { session_.password = password; }
  void setHost(std::string_view host) override { session_.host = host; }
  void setPassive(bool passive) override { session_.passive = passive; }
  void setProgressWindow(bool shown) override { windowWanted_ = shown; }
  void setInactivityLifetime(int seconds) override { inactivityLifetime_ = seconds; }
  void setListener(TransferListener* listener) override { listener_ = listener; }

  void openSession() override;
  void download(std::string_view serverFolder, std::string_view wildcard,
                std::string_view localFolder) override;
  void upload(std::string_view localFolder, std::string_view wildcard,
              std::string_view serverFolder) override;
  bool directoryExists(std::string_view serverFolder) override;
  void createDirectory(std::string_view serverFolder) override;

 private:
  void leave() noexcept;
  CURLcode run(CurlOperation& operation, const TransferInfo& info = {});
  /// `subject` is what the operation is about, for an error's text; `path` is for standard error.
  void runOrRaise(CurlOperation& operation, std::string_view subject, std::string_view path,
                  const TransferInfo& info = {});
  Listing machineListing(std::string_view serverFolder);
  Listing peopleListing(std::string_view serverFolder);
  std::vector<ListedFile> filesOf(std::string_view serverFolder, std::string_view wildcard);
  std::optional<std::uint64_t> lengthOf(std::string_view path, const ListedFile& file);
  /// No longer than `most` bytes.
  std::string fetch(std::string_view serverFolder, const ListedFile& file, std::uint64_t most);
  fs::path localFolderOf(std::string_view written) const;
  void report(std::string_view status) const;
  void report(const TransferInfo& info) const;
  std::string whereIs(std::string_view path) const {
    return printable(join("server ", session_.host, " ", path));
  }

  const DataFolder& folder_;
  const Clock& clock_;
  CurlTransferSettings settings_;
  TransferWindow* window_;
  CurlRunner runner_;
  FtpSession session_;
  bool windowWanted_ = false;
  int inactivityLifetime_ = 0;
  TransferListener* listener_ = nullptr;
};

constexpr std::chrono::milliseconds farewellTime(1'000);

/// Closes the progress window on every way out.
struct WindowCloser {
  TransferWindow* window;
  ~WindowCloser() {
    if (window != nullptr) window->close();
  }
};

/// A folder that cannot be listed is an error of the runtime's, like any other of a file.
template <typename Action>
void inRuntimeTerms(Action action) {
  try {
    action();
  } catch (const fs::filesystem_error& error) {
    throw runtimeErrorFrom(error.code(), error.path1());
  }
}

/// The plain files of a local folder in the order of their names, but for the program's own.
std::vector<fs::path> filesToSend(const fs::path& folder, std::string_view wildcard) {
  std::vector<fs::path> files;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    const std::string name = nameOf(entry.path());
    const bool isPlain = entry.is_regular_file() && !entry.is_symlink() && !isOwnName(name);
    if (isPlain && matchesWildcard(wildcard, name)) files.push_back(entry.path());
  }
  std::ranges::sort(files);
  return files;
}

void CurlTransfer::prepare() {
  leave();
  session_ = {};
  session_.tlsRequired = settings_.tlsRequired;
  session_.addresses = settings_.addresses;
  session_.certificates = trustedCertificates(settings_.certificates);
  windowWanted_ = false;
}

void CurlTransfer::openSession() {
  session_.times = settings_.times;
  if (inactivityLifetime_ > 0) {
    session_.times.answer = session_.times.stall = std::chrono::seconds(inactivityLifetime_);
  }
  report("Connecting to the update server");
  runner_.begin(session_.times);
  FtpOperation operation(session_, "");
  operation.goThereOnly();
  runOrRaise(operation, "the login", "");
}

void CurlTransfer::download(std::string_view serverFolder, std::string_view wildcard,
                            std::string_view localFolder) {
  const WindowCloser closer{windowWanted_ ? window_ : nullptr};
  const fs::path local = localFolderOf(localFolder);
  runner_.begin(session_.times);
  const std::vector<ListedFile> listed = filesOf(serverFolder, wildcard);
  checkIncoming(listed, settings_.limits);
  runner_.progress().filesInAll = listed.size();
  std::vector<IncomingFile> files;
  std::uint64_t room = settings_.limits.allSizes;
  for (const ListedFile& file : listed) {
    report(join("Receiving ", file.name));
    files.push_back({file.name, fetch(serverFolder, file, std::min(room, settings_.limits.fileSize))});
    room -= files.back().contents.size();
  }
  runner_.look();
  inRuntimeTerms([&] { takeIn(files, folder_, local, clock_); });
  report("");
}

void CurlTransfer::upload(std::string_view localFolder, std::string_view wildcard,
                          std::string_view serverFolder) {
  const WindowCloser closer{windowWanted_ ? window_ : nullptr};
  std::vector<fs::path> files;
  inRuntimeTerms([&] { files = filesToSend(localFolderOf(localFolder), wildcard); });
  runner_.begin(session_.times);
  runner_.progress().filesInAll = files.size();
  for (const fs::path& file : files) {
    const std::string name = nameOf(file);
    report(join("Sending ", name));
    const os::FileBytes bytes = os::readFile(file);
    const std::string path = join(serverFolder, name);
    FtpOperation operation(session_, path);
    operation.send(bytes.view());
    runOrRaise(operation, inQuotes(name), path, {name, 0, bytes.view().size()});
  }
  report("");
}

bool CurlTransfer::directoryExists(std::string_view serverFolder) {
  const std::string path = closedWith('/', serverFolder);
  runner_.begin(session_.times);
  FtpOperation operation(session_, path);
  operation.goThereOnly();
  const CURLcode result = run(operation);
  if (result == CURLE_OK) return true;
  if (result == CURLE_REMOTE_ACCESS_DENIED) return false;
  throw curlError(result, operation, inQuotes(path), whereIs(path));
}

void CurlTransfer::createDirectory(std::string_view serverFolder) {
  const auto isControl = [](char letter) { return static_cast<unsigned char>(letter) < ' '; };
  if (std::ranges::any_of(serverFolder, isControl)) {
    throw transferError(TransferFault::name, join(inQuotes(serverFolder), " is not a folder's name"));
  }
  runner_.begin(session_.times);
  FtpOperation operation(session_, "");
  operation.goThereOnly();
  operation.giveCommand(join("MKD ", serverFolder));
  runOrRaise(operation, inQuotes(serverFolder), serverFolder);
}

/// Ends the connection. A server that does not answer must not delay the program.
void CurlTransfer::leave() noexcept {
  if (!runner_.isConnected()) return;
  try {
    FtpSession hurried = session_;
    hurried.times.connect = hurried.times.answer = hurried.times.stall = farewellTime;
    FtpOperation farewell(hurried, "");
    farewell.goThereOnly();
    farewell.giveCommand("*QUIT");
    // Keeps the operation from its end, so that the connection goes with it.
    farewell.giveCommand("*NOOP");
    runner_.leave(farewell);
  } catch (...) {
    // The connection is gone all the same.
  }
}

CURLcode CurlTransfer::run(CurlOperation& operation, const TransferInfo& info) {
  TransferProgress& progress = runner_.progress();
  const std::uint64_t bytesBefore = progress.bytes;
  const CURLcode result = runner_.run(operation, [&] {
    if (info.file.empty()) return;
    progress.bytes = bytesBefore + operation.bytesDone();
    report({info.file, operation.bytesDone(), info.bytesInAll});
  });
  if (!info.file.empty()) ++progress.files;
  return result;
}

void CurlTransfer::runOrRaise(CurlOperation& operation, std::string_view subject, std::string_view path,
                              const TransferInfo& info) {
  const CURLcode result = run(operation, info);
  if (result != CURLE_OK) throw curlError(result, operation, subject, whereIs(path));
}

/// None where the server does not know this form, or where it cannot be relied on.
Listing CurlTransfer::machineListing(std::string_view serverFolder) {
  FtpOperation operation(session_, serverFolder);
  operation.set(CURLOPT_CUSTOMREQUEST, "MLSD");
  const CURLcode result = run(operation);
  if (result == CURLE_OK) return readMachineListing(operation.received());
  if (result == CURLE_FTP_COULDNT_RETR_FILE && operation.responseCode() >= 500) {
    // A connection on which a transfer was refused is not to be trusted with the next one.
    leave();
    return std::nullopt;
  }
  throw curlError(result, operation, inQuotes(serverFolder), whereIs(serverFolder));
}

Listing CurlTransfer::peopleListing(std::string_view serverFolder) {
  FtpOperation operation(session_, serverFolder);
  runOrRaise(operation, inQuotes(serverFolder), serverFolder);
  return readPeopleListing(operation.received());
}

std::vector<ListedFile> CurlTransfer::filesOf(std::string_view serverFolder, std::string_view wildcard) {
  report("Asking for the files");
  Listing files = machineListing(serverFolder);
  if (!files) files = peopleListing(serverFolder);
  if (!files) {
    throw transferError(TransferFault::listing, "the server's list of files is cut short or not understood",
                        whereIs(serverFolder));
  }
  std::erase_if(*files, [&](const ListedFile& file) { return !matchesWildcard(wildcard, file.name); });
  return std::move(*files);
}

/// What the list says, or else the server when it is asked; none where it does not know.
std::optional<std::uint64_t> CurlTransfer::lengthOf(std::string_view path, const ListedFile& file) {
  if (file.size) return file.size;
  FtpOperation operation(session_, path);
  operation.goThereOnly();
  runOrRaise(operation, inQuotes(file.name), path);
  const std::int64_t length = operation.announcedLength();
  return length < 0 ? std::nullopt : std::optional(static_cast<std::uint64_t>(length));
}

std::string CurlTransfer::fetch(std::string_view serverFolder, const ListedFile& file, std::uint64_t most) {
  const std::string path = join(serverFolder, file.name);
  const std::optional<std::uint64_t> length = lengthOf(path, file);
  FtpOperation operation(session_, path);
  operation.setLimit(most);
  operation.takeAllBytes();
  const TransferInfo info{file.name, 0, length.value_or(0)};
  report(info);
  runOrRaise(operation, inQuotes(file.name), path, info);
  const std::uint64_t got = operation.received().size();
  if (got != length.value_or(got)) {
    throw transferError(TransferFault::length,
                        join(inQuotes(file.name), " has another length than the server announced"),
                        whereIs(path));
  }
  return operation.received();
}

fs::path CurlTransfer::localFolderOf(std::string_view written) const {
  fs::path local = folder_.resolve(written);
  std::error_code ignored;
  if (!fs::is_directory(local, ignored)) throw RuntimeError(ErrorNumber::pathNotFound, textOf(local));
  return local;
}

void CurlTransfer::report(std::string_view status) const {
  if (listener_ != nullptr) listener_->status(status);
}

void CurlTransfer::report(const TransferInfo& info) const {
  if (listener_ != nullptr) listener_->transferInfo(info);
  if (windowWanted_ && window_ != nullptr) window_->show(info);
}

}  // namespace

std::unique_ptr<TransferComponent> newCurlTransfer(const DataFolder& folder, const Clock& clock,
                                                   CurlTransferSettings settings, TransferWatch* watch,
                                                   TransferWindow* window) {
  return std::make_unique<CurlTransfer>(folder, clock, std::move(settings), watch, window);
}

}  // namespace tallywick
