// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/zip_archive.h"

#include "core/file_commit.h"
#include "core/file_names.h"
#include "core/text.h"

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

std::string pathText(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

struct DiscardArchive {
  void operator()(zip_t* archive) const { zip_discard(archive); }
};
using Archive = std::unique_ptr<zip_t, DiscardArchive>;

Archive openArchive(const fs::path& file, int flags) {
  int error = 0;
  zip_t* const archive = zip_open(pathText(file).c_str(), flags, &error);
  if (archive != nullptr) return Archive(archive);
  zip_error_t details;
  zip_error_init_with_code(&details, error);
  const std::string text = zip_error_strerror(&details);
  zip_error_fini(&details);
  fail(file, text);
}

/// Whether a name from an archive stays inside the folder and is none of the program's own.
bool isSafe(std::string_view name) {
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

void writeZip(const fs::path& file, const BookContents& contents) {
  Archive archive = openArchive(file, ZIP_CREATE | ZIP_EXCL);
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
}

BookContents readZip(const fs::path& file) {
  const Archive archive = openArchive(file, ZIP_RDONLY | ZIP_CHECKCONS);
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
    if (!isSafe(name)) fail(file, "\"", name, "\" is not a file of a record book");
    if (entry.size > mostBytes || (size += entry.size) > mostBytes) fail(file, "it is too large");
    const std::string bytes = name.ends_with('/') ? "" : readEntry(file, archive.get(), i, entry);
    if (!contents.emplace(name, bytes).second) fail(file, "it has \"", name, "\" twice");
  }
  return contents;
}

}  // namespace tallywick
