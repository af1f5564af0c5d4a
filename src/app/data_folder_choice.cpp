#include "app/data_folder_choice.h"

#include "core/data_folder.h"
#include "core/os.h"

#include <cstdlib>

namespace tallywick {

namespace fs = std::filesystem;

fs::path chooseDataFolder(const std::string& named) {
  if (!named.empty()) return fs::absolute(named);
  if (const char* folder = std::getenv("TALLYWICK_FOLDER"); folder != nullptr && *folder != '\0') {
    return fs::absolute(folder);
  }
  if (isDataFolder(fs::current_path())) return fs::current_path();
  return os::userDataFolder();
}

bool isDataFolder(const fs::path& folder) {
  std::error_code ignored;
  return fs::is_directory(entryInAnyCase(folder, "QzrNumbers"), ignored);
}

}  // namespace tallywick
