// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/zip_archive.h"

#include "core/file_names.h"
#include "core/os.h"
#include "core/text.h"
#include "core/work_files.h"

#include <memory>
#include <stdexcept>
#include <string_view>
#include <zip.h>

namespace tallywick {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t mostEntries = 100'000;
constexpr zip_uint64_t mostBytes = zip_uint64_t{1} << 31U;

template <typename... Pieces>
[[noreturn]] void fail(const fs::path& file, const Pieces&... pieces) {
  throw std::runtime_error(join(textOf(file), ": ", pieces...));
}

struct DiscardArchive {
  void operator()(zip_t* archive) const { zip_discard(archive); }
};
using Archive = std::unique_ptr<zip_t, DiscardArchive>;

struct FreeSource {
  void operator()(zip_source_t* source) const { zip_source_free(source); }
};
using Source = std::unique_ptr<zip_source_t, FreeSource>;

struct ZipError : zip_error_t {
  ZipError() : zip_error_t() { zip_error_init(this); }
  ~ZipError() { zip_error_fini(this); }
  ZipError(const ZipError&) = delete;
  ZipError& operator=(const ZipError&) = delete;
};

Archive openArchive(const fs::path& file, std::string_view bytes) {
  ZipError error;
  Source source(zip_source_buffer_create(bytes.data(), bytes.size(), 0, &error));
  if (!source) fail(file, zip_error_strerror(&error));
  Archive archive(zip_open_from_source(source.get(), ZIP_RDONLY | ZIP_CHECKCONS, &error));
  if (!archive) fail(file, zip_error_strerror(&error));
  static_cast<void>(source.release());
  return archive;
}

std::string bytesOf(const fs::path& file, zip_source_t* source) {
  zip_stat_t status;
  zip_stat_init(&status);
  if (zip_source_stat(source, &status) == 0 && zip_source_open(source) == 0) {
    std::string bytes(status.size, '\0');
    const zip_int64_t got = zip_source_read(source, bytes.data(), bytes.size());
    zip_source_close(source);
    if (got == static_cast<zip_int64_t>(bytes.size())) return bytes;
  }
  fail(file, zip_error_strerror(zip_source_error(source)));
}

std::string readEntry(const fs::path& file, zip_t* archive, zip_uint64_t index, const zip_stat_t& entry) {
  const std::unique_ptr<zip_file_t, int (*)(zip_file_t*)> stream(zip_fopen_index(archive, index, 0),
                                                                 zip_fclose);
  if (!stream) fail(file, entry.name, ": ", zip_strerror(archive));
  std::string bytes(entry.size, '\0');
  const zip_int64_t got = zip_fread(stream.get(), bytes.data(), entry.size);
  char more = 0;
  // Reading on to the end has the checksum compared.
  if (got != static_cast<zip_int64_t>(entry.size) || zip_fread(stream.get(), &more, 1) != 0) {
    fail(file, entry.name, ": damaged");
  }
  return bytes;
}

}  // namespace

bool canBeRestored(std::string_view name) {
  if (name.ends_with('/')) name.remove_suffix(1);
  if (name.find_first_of("\\:") != std::string_view::npos || name.find('\0') != std::string_view::npos)
    return false;
  while (true) {
    const std::string_view part = name.substr(0, name.find('/'));
    if (part.empty() || part == "." || part == ".." || isOwnWorkName(part)) return false;
    if (part.size() == name.size()) return true;
    name.remove_prefix(part.size() + 1);
  }
}

std::string zipOf(const fs::path& file, const BookContents& contents) {
  ZipError error;
  const Source bytesWritten(zip_source_buffer_create(nullptr, 0, 0, &error));
  if (!bytesWritten) fail(file, zip_error_strerror(&error));
  Archive archive(zip_open_from_source(bytesWritten.get(), ZIP_TRUNCATE, &error));
  if (!archive) fail(file, zip_error_strerror(&error));
  zip_source_keep(bytesWritten.get());  // the archive frees its source
  for (const auto& [name, bytes] : contents) {
    zip_int64_t added = -1;
    if (name.ends_with('/')) {
      added = zip_dir_add(archive.get(), name.c_str(), 0);
    } else if (zip_source_t* source = zip_source_buffer(archive.get(), bytes.data(), bytes.size(), 0)) {
      added = zip_file_add(archive.get(), name.c_str(), source, 0);
      if (added < 0) zip_source_free(source);
    }
    if (added < 0) fail(file, name, ": ", zip_strerror(archive.get()));
  }
  if (zip_close(archive.get()) != 0) fail(file, zip_strerror(archive.get()));
  static_cast<void>(archive.release());
  return bytesOf(file, bytesWritten.get());
}

BookContents readZip(const fs::path& file) {
  std::error_code ignored;
  if (const auto fileSize = fs::file_size(file, ignored); !ignored && fileSize > mostBytes)
    fail(file, "it is too large");
  const os::FileBytes whole = os::readFile(file);
  const Archive archive = openArchive(file, whole.view());
  const auto entries = static_cast<zip_uint64_t>(zip_get_num_entries(archive.get(), 0));
  if (entries > mostEntries) fail(file, "it has too many files");
  BookContents contents;
  zip_uint64_t size = 0;
  for (zip_uint64_t i = 0; i < entries; ++i) {
    zip_stat_t entry;
    zip_stat_init(&entry);
    if (zip_stat_index(archive.get(), i, ZIP_FL_ENC_RAW, &entry) != 0)
      fail(file, zip_strerror(archive.get()));
    const std::string name = entry.name;
    if (!canBeRestored(name)) fail(file, "\"", name, "\" is not a file of a record book");
    if (entry.size > mostBytes || (size += entry.size) > mostBytes) fail(file, "it is too large");
    const std::string bytes = name.ends_with('/') ? "" : readEntry(file, archive.get(), i, entry);
    if (!contents.emplace(name, bytes).second) fail(file, "it has \"", name, "\" twice");
  }
  return contents;
}

}  // namespace tallywick
