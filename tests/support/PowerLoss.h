#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include <sys/stat.h>

#include "ForwardingFileManager.h"

namespace orvanta::test {

/// Simulates a loss of power: removes the contents and names that were not synced from the disk.
/// Its `watch` must be called with every operation of a `ForwardingFileManager`.
class PowerLoss {
 public:
  enum class Names { lost, kept };  ///< A system may write a name before it is told to.

  /// Keeps replaced files in `stash`, a folder on the same file system as what is watched.
  explicit PowerLoss(std::filesystem::path stash) : stash_(std::move(stash)) {
    std::filesystem::create_directories(stash_);
  }

  void watch(std::string_view operation, std::string_view path) {
    const std::filesystem::path item(path);
    std::vector<std::function<void()>>& undo = unsyncedNames_[item.parent_path()];
    if (operation == "createFolder" || operation == "createFile") {
      if (!exists(item)) {
        undo.emplace_back([item] { std::filesystem::remove_all(item); });
      }
    } else if (operation == "rename") {
      const auto old = stash_ / std::to_string(++stashed_);
      const bool replaces = exists(item);
      if (replaces) {
        create_hard_link(item, old);
      }
      undo.emplace_back([=] {
        std::filesystem::remove(item);
        if (replaces) {
          create_hard_link(old, item);
        }
      });
    } else if (operation == "write") {
      unsyncedContents_.insert(inodeOf(item));
    } else if (operation == "sync") {
      unsyncedContents_.erase(inodeOf(item));
    } else if (operation == "syncFolder") {
      unsyncedNames_[item].clear();
    }
  }

  /// Loses what was not synced. Call it after the last operation.
  void strike(const std::filesystem::path& root, Names names) {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
      if (entry.is_regular_file() && unsyncedContents_.contains(inodeOf(entry.path()))) {
        std::filesystem::resize_file(entry.path(), 0);
      }
    }
    for (auto& [folder, undo] : unsyncedNames_) {
      for (auto step = undo.rbegin(); names == Names::lost && step != undo.rend(); ++step) {
        if (exists(folder)) {
          (*step)();
        }
      }
    }
  }

 private:
  static ino_t inodeOf(const std::filesystem::path& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 ? status.st_ino : 0;
  }

  std::filesystem::path stash_;
  int stashed_ = 0;
  std::map<std::filesystem::path, std::vector<std::function<void()>>> unsyncedNames_;
  std::set<ino_t> unsyncedContents_;
};

}  // namespace orvanta::test
