// SPDX-License-Identifier: GPL-3.0-or-later
// What the transfer classes need: an FTP client, or what takes its place.
#pragma once

#include <cstddef>
#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace tallywick {

/// One file's progress.
struct TransferInfo {
  std::string file;
  std::uint64_t bytesDone = 0;
  /// 0 where the server does not report it.
  std::uint64_t bytesInAll = 0;
};

/// Receives a transfer's events.
class TransferListener {
 public:
  virtual ~TransferListener() = default;
  virtual void status(std::string_view text) = 0;
  virtual void transferInfo(const TransferInfo& info) = 0;
};

/// The component's own progress window.
class TransferWindow {
 public:
  virtual ~TransferWindow() = default;
  /// Opens the window where it is not open, and shows the file in hand.
  virtual void show(const TransferInfo& info) = 0;
  virtual void close() = 0;
};

/// How far the transfer of a folder is.
struct TransferProgress {
  /// Of all its files together.
  std::uint64_t bytes = 0;
  /// Those that are through.
  std::size_t files = 0;
  /// 0 before the folder's list is there.
  std::size_t filesInAll = 0;
};

/// Looks after a transfer, for example to keep a window painted and to offer Cancel.
class TransferWatch {
 public:
  virtual ~TransferWatch() = default;
  /// Called many times a second until the transfer ends, also while nothing comes.
  virtual void progress(const TransferProgress& soFar) = 0;
  /// Whether the transfer is to end at once, with TransferCancelled and without a change.
  virtual bool cancelled() = 0;
};

/// Ends a transfer that its watch has cancelled. It is no RuntimeError: the program goes on.
class TransferCancelled : public std::exception {
 public:
  const char* what() const noexcept override { return "The transfer was cancelled"; }
};

/// Set up, open the session, then copy whole folders. Failures are RuntimeErrors that say
/// what happened and never contain the login or the password.
class TransferComponent {
 public:
  virtual ~TransferComponent() = default;

  /// Back to an unused state.
  virtual void prepare() = 0;
  virtual void setUserName(std::string_view name) = 0;
  virtual void setPassword(std::string_view password) = 0;
  virtual void setHost(std::string_view host) = 0;
  virtual void setPassive(bool passive) = 0;
  virtual void setProgressWindow(bool shown) = 0;
  /// How long the server may be silent; 0 for the component's own limits.
  virtual void setInactivityLifetime(int seconds) = 0;
  virtual void setListener(TransferListener* listener) = 0;

  virtual void openSession() = 0;
  /// Copies all files of the server folder that match `wildcard`; the local folder changes as a whole or not
  /// at all.
  virtual void download(std::string_view serverFolder, std::string_view wildcard,
                        std::string_view localFolder) = 0;
  virtual void upload(std::string_view localFolder, std::string_view wildcard,
                      std::string_view serverFolder) = 0;
  virtual bool directoryExists(std::string_view serverFolder) = 0;
  virtual void createDirectory(std::string_view serverFolder) = 0;
};

using TransferFactory = std::function<std::unique_ptr<TransferComponent>()>;

}  // namespace tallywick
